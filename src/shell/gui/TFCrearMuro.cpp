#include "shell/gui/TFCrearMuro.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "base/NumeroTexto.h"
#include "entry/VaporCerramiento.h"
#include "model/CatalogoCampos.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr double kCentimetros = 100;

QLineEdit* Casilla(const char* nombre, QWidget* padre) {
  auto* casilla = new QLineEdit(padre);
  casilla->setObjectName(nombre);
  casilla->setFixedWidth(64);
  casilla->setAlignment(Qt::AlignRight);
  return casilla;
}

}  // namespace

TFCrearMuro::TFCrearMuro(ContextoGui& contexto, CatalogoComposiciones& catalogo, std::size_t ranura,
                         const ComposicionCatalogo& modelo, QWidget* padre)
    : QDialog(padre),
      contexto_(contexto),
      catalogo_(catalogo),
      ranura_(ranura),
      familia_(FamiliaDeRanura(ranura)),
      capas_(modelo.capas),
      peliculas_(PeliculasDe(familia_)) {
  setWindowTitle(tr("Crear solución · %1").arg(Q(NombreFamilia(familia_)).replace('_', ' ')));
  resize(1320, 690);
  auto* columna = new QVBoxLayout(this);
  columna->addLayout(Cabecera(modelo));
  auto* partes = new QSplitter(this);
  partes->addWidget(LadoCapas());
  auto* materiales = new SelectorMateriales(contexto_, EsVertical(familia_), this);
  connect(materiales, &SelectorMateriales::Anadida, this, &TFCrearMuro::Anadir);
  partes->addWidget(materiales);
  partes->setStretchFactor(0, 1);
  partes->setStretchFactor(1, 1);
  partes->setChildrenCollapsible(false);
  partes->setSizes({620, 680});
  columna->addWidget(partes, 1);
  columna->addLayout(Pie());
  Ensenar(capas_.empty() ? -1 : 0);
}

QLayout* TFCrearMuro::Cabecera(const ComposicionCatalogo& modelo) {
  auto* fila = new QHBoxLayout;
  fila->addWidget(new QLabel(tr("Nombre"), this));
  nombre_ = new QLineEdit(Q(modelo.nombre), this);
  nombre_->setObjectName("nombre");
  nombre_->setPlaceholderText(tr("Con el que se busca en la biblioteca"));
  fila->addWidget(nombre_, 1);
  fila->addWidget(new QLabel(tr("Subtipo"), this));
  subtipos_ = new QComboBox(this);
  subtipos_->setObjectName("subtipo");
  for (const std::string& subtipo : catalogo_.Subtipos(familia_)) subtipos_->addItem(Q(subtipo));
  subtipos_->setCurrentText(Q(modelo.subtipo));
  fila->addWidget(subtipos_);
  return fila;
}

QWidget* TFCrearMuro::LadoCapas() {
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 8, 0);
  lista_ = new ListaCapas(EsVertical(familia_), caja);
  lista_->setObjectName("capas");
  columna->addWidget(lista_, 3);
  vacio_ =
      new QLabel(EsVertical(familia_)
                     ? tr("Añada las capas desde el catálogo de la derecha, de fuera adentro.")
                     : tr("Añada las capas desde el catálogo de la derecha, de arriba abajo."));
  vacio_->setProperty("papel", "nota");
  columna->addWidget(vacio_);
  columna->addLayout(OrdenesCapas());
  resumen_ = new QLabel(caja);
  resumen_->setObjectName("resumen");
  columna->addWidget(resumen_);
  dibujos_ = new QTabWidget(caja);
  dibujos_->setDocumentMode(true);
  U_ = new QLabel(this);
  U_->setObjectName("U");
  U_->setProperty("papel", "titulo");
  dibujos_->setCornerWidget(U_, Qt::TopRightCorner);
  seccion_ = new DibujoSeccion(caja);
  seccion_->PonerVacio(tr("Sin capas"));
  vapor_ = new DibujoVapor(caja);
  dibujos_->addTab(seccion_, tr("Sección"));
  if (SeCompruebaCondensacion(ranura_))
    dibujos_->addTab(vapor_, tr("Vapor"));
  else
    vapor_->hide();
  columna->addWidget(dibujos_, 3);
  connect(lista_, &ListaCapas::Movida, this, &TFCrearMuro::Mover);
  connect(lista_, &ListaCapas::PideQuitar, this, &TFCrearMuro::Quitar);
  // La rejilla se vuelve a llenar cuando su editor ya se ha cerrado.
  connect(lista_, &ListaCapas::EspesorTecleado, this, &TFCrearMuro::CambiarEspesor,
          Qt::QueuedConnection);
  connect(lista_, &QTreeWidget::currentItemChanged, this, [this] {
    seccion_->Poner(capas_, ranura_, lista_->Elegida());
    EnsenarOrdenes(lista_->Elegida());
  });
  connect(seccion_, &DibujoSeccion::Pulsada, this,
          [this](int capa) { lista_->setCurrentItem(lista_->topLevelItem(capa)); });
  return caja;
}

QLayout* TFCrearMuro::OrdenesCapas() {
  auto* fila = new QHBoxLayout;
  const auto boton = [&](const char* nombre, const QString& texto, const QString& ayuda,
                         const auto& hacer) {
    auto* b = new QPushButton(texto, this);
    b->setObjectName(nombre);
    b->setToolTip(ayuda);
    b->setAutoDefault(false);
    connect(b, &QPushButton::clicked, this, hacer);
    fila->addWidget(b);
    return b;
  };
  subir_ = boton("subirCapa", "▲", tr("arriba (Alt+Arriba)"),
                 [this] { Mover(lista_->Elegida(), lista_->Elegida() - 1); });
  bajar_ = boton("bajarCapa", "▼", tr("abajo (Alt+Abajo)"),
                 [this] { Mover(lista_->Elegida(), lista_->Elegida() + 2); });
  subir_->setFixedWidth(36);
  bajar_->setFixedWidth(36);
  quitar_ = boton("quitarCapa", tr("Eliminar capa"), tr("Quita la capa elegida (Supr)"),
                  [this] { Quitar(); });
  vaciar_ = boton("vaciar", tr("Eliminar cerramiento"), tr("Quita todas las capas"), [this] {
    capas_.clear();
    Ensenar(-1);
  });
  fila->addStretch(1);
  const auto pelicula = [&](const char* nombre, const QString& rotulo, QLineEdit*& casilla) {
    fila->addWidget(new QLabel(rotulo, this));
    casilla = Casilla(nombre, this);
    casilla->setToolTip(tr("Coeficiente de convección y radiación, W/m²K (UNE-EN ISO 6946)"));
    connect(casilla, &QLineEdit::editingFinished, this, &TFCrearMuro::LeerPeliculas);
    fila->addWidget(casilla);
  };
  pelicula("he", "he", he_);
  pelicula("hi", "hi", hi_);
  he_->setText(Q(TextoPelicula(peliculas_.he)));
  hi_->setText(Q(TextoPelicula(peliculas_.hi)));
  return fila;
}

QLayout* TFCrearMuro::Pie() {
  auto* fila = new QHBoxLayout;
  auto* nota = new QLabel(tr("Se guarda en la biblioteca, en el subtipo elegido."), this);
  nota->setProperty("papel", "nota");
  fila->addWidget(nota, 1);
  auto* botones = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  QPushButton* aceptar = botones->button(QDialogButtonBox::Ok);
  aceptar->setText(tr("Aceptar"));
  aceptar->setAutoDefault(false);
  botones->button(QDialogButtonBox::Cancel)->setText(tr("Cancelar"));
  botones->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
  connect(botones, &QDialogButtonBox::accepted, this, &TFCrearMuro::accept);
  connect(botones, &QDialogButtonBox::rejected, this, &TFCrearMuro::reject);
  fila->addWidget(botones);
  return fila;
}

void TFCrearMuro::Anadir(const Capa& capa) {
  // Detrás de la elegida, que es donde se está mirando.
  const int elegida = lista_->Elegida();
  const int lugar = elegida < 0 ? static_cast<int>(capas_.size()) : elegida + 1;
  capas_.insert(capas_.begin() + lugar, capa);
  Ensenar(lugar);
}

void TFCrearMuro::Quitar() {
  const int elegida = lista_->Elegida();
  if (elegida < 0) return;
  capas_.erase(capas_.begin() + elegida);
  Ensenar(std::min(elegida, static_cast<int>(capas_.size()) - 1));
}

void TFCrearMuro::Mover(int desde, int hasta) {
  const int cuantas = static_cast<int>(capas_.size());
  if (desde < 0 || desde >= cuantas || hasta < 0 || hasta > cuantas) return;
  const Capa movida = capas_[static_cast<std::size_t>(desde)];
  capas_.erase(capas_.begin() + desde);
  const int lugar = hasta > desde ? hasta - 1 : hasta;
  capas_.insert(capas_.begin() + lugar, movida);
  Ensenar(lugar);
}

void TFCrearMuro::CambiarEspesor(int capa, const QString& texto) {
  if (capa < 0 || static_cast<std::size_t>(capa) >= capas_.size()) return;
  EditarEspesor(capas_[static_cast<std::size_t>(capa)], S(texto), EsVertical(familia_),
                contexto_.Sesion().Avisos());
  Ensenar(capa);
}

void TFCrearMuro::LeerPeliculas() {
  const auto leer = [&](QLineEdit* casilla, const char* clave, float& valor) {
    if (!casilla->isModified()) return;
    casilla->setModified(false);
    valor = ComprobarValor(S(casilla->text()), clave, contexto_.Sesion().Avisos());
    casilla->setText(Q(TextoPelicula(valor)));
  };
  leer(he_, "HE", peliculas_.he);
  leer(hi_, "HI", peliculas_.hi);
  EnsenarU();
}

void TFCrearMuro::EnsenarU() {
  const double U = static_cast<double>(UCerramiento(capas_, peliculas_));
  U_->setText("U " + Q(Fijo(U, 2)) + " W/m²K");
  U_->adjustSize();
}

void TFCrearMuro::EnsenarVapor() {
  if (!SeCompruebaCondensacion(ranura_)) return;
  const auto vapor = VaporDeCapas(
      contexto_.Caso(), contexto_.Ficheros().Xml("Capitales.xml", "CAPITALES"), ranura_, capas_);
  if (vapor)
    vapor_->Poner(vapor->elemento, vapor->condiciones);
  else
    vapor_->Vaciar(capas_.empty() ? tr("Sin capas no hay presiones que dibujar")
                                  : tr("La provincia no está en la lista de capitales"));
}

void TFCrearMuro::Ensenar(int elegida) {
  lista_->Poner(capas_, elegida);
  seccion_->Poner(capas_, ranura_, elegida);
  const ResumenCerramiento r = ResumirCerramiento(capas_);
  resumen_->setText(tr("Espesor (cm) %1 · Peso (kg/m2) %2 · Resis.Vapor (adim.) %3")
                        .arg(Q(r.textoEspesor), Q(r.textoPeso), Q(r.textoVapor)));
  resumen_->setToolTip(
      tr("Espesor %1 cm").arg(Q(Fijo(static_cast<double>(r.espesor) * kCentimetros, 1))));
  vacio_->setVisible(capas_.empty());
  EnsenarOrdenes(elegida);
  EnsenarU();
  EnsenarVapor();
}

void TFCrearMuro::EnsenarOrdenes(int elegida) {
  subir_->setEnabled(elegida > 0);
  bajar_->setEnabled(elegida >= 0 && elegida + 1 < static_cast<int>(capas_.size()));
  quitar_->setEnabled(elegida >= 0);
  vaciar_->setEnabled(!capas_.empty());
}

void TFCrearMuro::keyPressEvent(QKeyEvent* evento) {
  if (evento->key() != Qt::Key_Return && evento->key() != Qt::Key_Enter)
    QDialog::keyPressEvent(evento);
}

void TFCrearMuro::accept() {
  const std::string subtipo = S(subtipos_->currentText());
  if (!catalogo_.Crear(familia_, subtipo, S(nombre_->text()), capas_, contexto_.Sesion().Avisos()))
    return;
  creada_ = catalogo_.Composiciones(familia_, subtipo).back();
  QDialog::accept();
}

void DefinirComposicion(ContextoGui& contexto, std::size_t ranura, QWidget* padre) {
  CatalogoComposiciones catalogo(contexto.Ficheros().Espacio().Datos() / "Composiciones.xml");
  ComposicionCatalogo modelo;
  modelo.capas = CapasDeRanura(contexto.Caso(), ranura);
  if (!modelo.capas.empty()) {
    modelo.nombre = contexto.Caso().GetComposicion(ranura).nombre;
    if (const auto suya = catalogo.PorNombre(FamiliaDeRanura(ranura), modelo.nombre))
      modelo.subtipo = suya->subtipo;
    modelo = CopiaParaEditar(modelo);
  }
  TFCrearMuro editor(contexto, catalogo, ranura, modelo, padre);
  if (editor.exec() != QDialog::Accepted) return;
  contexto.Editar(QObject::tr("Crear composición"), [&](Edificio& e) {
    ElegirComposicion(e, ranura, editor.Creada().nombre, editor.Creada().capas);
  });
}

}  // namespace novex::gui
