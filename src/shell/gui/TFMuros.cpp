#include "shell/gui/TFMuros.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "base/NumeroTexto.h"
#include "shell/gui/TFCrearMuro.h"
#include "shell/gui/TablaEnWidget.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

QString Cifra(float valor, int decimales) {
  return Q(Fijo(static_cast<double>(valor), decimales));
}

QString NombreLegible(FamiliaCerramiento familia) {
  return Q(NombreFamilia(familia)).replace('_', ' ');
}

}  // namespace

TFMuros::TFMuros(ContextoGui& contexto, std::size_t ranura, QWidget* padre)
    : QDialog(padre),
      contexto_(contexto),
      ranura_(ranura),
      familia_(FamiliaDeRanura(ranura)),
      catalogo_(contexto.Ficheros().Espacio().Datos() / "Composiciones.xml") {
  setWindowTitle(tr("Biblioteca de composiciones · %1").arg(NombreLegible(familia_)));
  resize(1240, 660);
  auto* todo = new QVBoxLayout(this);
  auto* fila = new QHBoxLayout;
  auto* izquierda = new QVBoxLayout;
  izquierda->addLayout(Filtro());
  composiciones_ =
      CrearTablaDeFilas({tr("Composición"), tr("Época"), tr("cm"), tr("U (W/m²K)")}, this);
  composiciones_->setObjectName("composiciones");
  izquierda->addWidget(composiciones_, 1);
  vacia_ = new QLabel(tr("Ninguna composición contiene ese texto. Borre la búsqueda o cree una."));
  vacia_->setProperty("papel", "nota");
  izquierda->addWidget(vacia_);
  izquierda->addLayout(Ordenes());
  fila->addLayout(izquierda, 5);
  fila->addWidget(VistaPrevia(), 4);
  todo->addLayout(fila, 1);
  todo->addLayout(Asignada());
  connect(composiciones_, &QTableWidget::currentCellChanged, this, [this] { Ensenar(); });
  connect(composiciones_, &QTableWidget::cellDoubleClicked, this, [this] { accept(); });
  Llenar(contexto_.Caso().GetComposicion(ranura_).nombre);
  composiciones_->setFocus();
}

QLayout* TFMuros::Filtro() {
  auto* fila = new QHBoxLayout;
  fila->addWidget(new QLabel(tr("Subtipo"), this));
  subtipos_ = new QComboBox(this);
  subtipos_->setObjectName("subtipos");
  subtipos_->addItem(Q(kTodosLosGrupos));
  for (const std::string& subtipo : catalogo_.Subtipos(familia_)) subtipos_->addItem(Q(subtipo));
  fila->addWidget(subtipos_);
  buscar_ = new QLineEdit(this);
  buscar_->setObjectName("buscar");
  buscar_->setPlaceholderText(tr("Buscar por nombre, subtipo o época"));
  buscar_->setClearButtonEnabled(true);
  fila->addWidget(buscar_, 1);
  connect(subtipos_, &QComboBox::currentIndexChanged, this, [this] { Llenar(); });
  connect(buscar_, &QLineEdit::textChanged, this, [this] { Llenar(); });
  return fila;
}

QLayout* TFMuros::Ordenes() {
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
  boton("crear", tr("Crear solución"), tr("Una composición nueva en el subtipo elegido"),
        [this] { Crear(nullptr); });
  copiar_ = boton("copiar", tr("Editar copia…"), tr("Una nueva a partir de la elegida"),
                  [this] { Crear(Elegida()); });
  eliminar_ = boton("eliminar", tr("Eliminar solución"), tr("Borra la elegida de la biblioteca"),
                    [this] { Eliminar(); });
  fila->addStretch(1);
  subir_ = boton("arriba", "▲", tr("arriba"), [this] { Mover(Sentido::Arriba); });
  bajar_ = boton("abajo", "▼", tr("abajo"), [this] { Mover(Sentido::Abajo); });
  subir_->setFixedWidth(36);
  bajar_->setFixedWidth(36);
  return fila;
}

QWidget* TFMuros::VistaPrevia() {
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(8, 0, 0, 0);
  titulo_ = new QLabel(caja);
  titulo_->setObjectName("titulo");
  titulo_->setProperty("papel", "seccion");
  titulo_->setWordWrap(true);
  columna->addWidget(titulo_);
  seccion_ = new DibujoSeccion(caja);
  columna->addWidget(seccion_, 2);
  capas_ = CrearTablaDeFilas({tr("Capa"), "m", "k", "R", tr("Vapor"), "kg/m²"}, caja);
  capas_->setObjectName("capas");
  capas_->setToolTip(
      tr("Espesor (m), conductividad (W/mK), resistencia (m²K/W), espesor de vapor y peso"));
  columna->addWidget(capas_, 3);
  resumen_ = new QLabel(caja);
  resumen_->setObjectName("resumen");
  resumen_->setWordWrap(true);
  columna->addWidget(resumen_);
  connect(seccion_, &DibujoSeccion::Pulsada, capas_, &QTableWidget::selectRow);
  connect(capas_, &QTableWidget::currentCellChanged, this, [this](int fila) {
    if (const ComposicionCatalogo* c = Elegida()) seccion_->Poner(c->capas, ranura_, fila);
  });
  return caja;
}

QLayout* TFMuros::Asignada() {
  auto* fila = new QHBoxLayout;
  const composicion& puesta = contexto_.Caso().GetComposicion(ranura_);
  asignada_ =
      new QLabel(tr("Asignada: %1 · U %2 W/m²K").arg(Q(puesta.nombre), Cifra(puesta.U, 2)), this);
  asignada_->setProperty("papel", "nota");
  fila->addWidget(asignada_, 1);
  almacenar_ = new QPushButton(tr("Almacenar base datos"), this);
  almacenar_->setObjectName("almacenar");
  almacenar_->setAutoDefault(false);
  almacenar_->setToolTip(tr("Guarda en la biblioteca, en el subtipo elegido, la asignada"));
  almacenar_->setEnabled(!puesta.capas.empty());
  connect(almacenar_, &QPushButton::clicked, this, &TFMuros::Almacenar);
  fila->addWidget(almacenar_);
  auto* botones = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  aceptar_ = botones->button(QDialogButtonBox::Ok);
  aceptar_->setText(tr("Aceptar"));
  aceptar_->setDefault(true);
  botones->button(QDialogButtonBox::Cancel)->setText(tr("Cancelar"));
  connect(botones, &QDialogButtonBox::accepted, this, &TFMuros::accept);
  connect(botones, &QDialogButtonBox::rejected, this, &TFMuros::reject);
  fila->addWidget(botones);
  return fila;
}

std::string TFMuros::Subtipo() const {
  return S(subtipos_->currentText());
}

void TFMuros::Llenar(const std::string& elegir) {
  const std::string subtipo = Subtipo();
  if (buscar_->text().trimmed().isEmpty()) {
    lista_ = catalogo_.Composiciones(familia_, subtipo);
  } else {
    lista_ = catalogo_.Buscar(S(buscar_->text().trimmed()));
    std::erase_if(lista_, [&](const ComposicionCatalogo& c) {
      return c.familia != familia_ || (subtipo != kTodosLosGrupos && c.subtipo != subtipo);
    });
  }
  Tabla tabla;
  for (const ComposicionCatalogo& c : lista_) {
    const ResumenCerramiento r = ResumirCerramiento(c.capas);
    tabla.filas.push_back({c.nombre, c.periodo,
                           Celda::Numero(static_cast<double>(r.espesor) * 100, 1),
                           Celda::Numero(static_cast<double>(c.U()), 2)});
  }
  PonerTabla(composiciones_, tabla);
  vacia_->setVisible(lista_.empty());
  const auto it = std::find_if(lista_.begin(), lista_.end(),
                               [&](const ComposicionCatalogo& c) { return c.nombre == elegir; });
  if (!lista_.empty())
    composiciones_->selectRow(it == lista_.end() ? 0 : static_cast<int>(it - lista_.begin()));
  Ensenar();
}

const ComposicionCatalogo* TFMuros::Elegida() const {
  const int fila = composiciones_->currentRow();
  return fila < 0 || static_cast<std::size_t>(fila) >= lista_.size()
             ? nullptr
             : &lista_[static_cast<std::size_t>(fila)];
}

void TFMuros::Ensenar() {
  const ComposicionCatalogo* c = Elegida();
  for (QPushButton* b : {copiar_, eliminar_, aceptar_}) b->setEnabled(c != nullptr);
  // En una búsqueda las vecinas en el catálogo no están a la vista.
  const bool enOrden = buscar_->text().trimmed().isEmpty();
  for (QPushButton* b : {subir_, bajar_}) b->setEnabled(c != nullptr && enOrden);
  titulo_->setText(c == nullptr ? QString() : Q(kNuevoElegido) + Q(c->nombre));
  seccion_->Poner(c == nullptr ? std::vector<Capa>{} : c->capas, ranura_);
  const ResumenCerramiento r = c == nullptr ? ResumenCerramiento{} : ResumirCerramiento(c->capas);
  PonerTabla(capas_, CapasNumeradas(r));
  resumen_->clear();
  if (c == nullptr) return;
  const Peliculas p = PeliculasDe(familia_);
  resumen_->setText(tr("<b>U %1 W/m²K</b> · he %2 · hi %3<br>Espesor %4 cm · %5 kg/m² · vapor %6")
                        .arg(Cifra(c->U(), 2), Q(TextoPelicula(p.he)), Q(TextoPelicula(p.hi)),
                             Cifra(r.espesor * 100, 1), Q(r.textoPeso), Q(r.textoVapor)));
}

void TFMuros::accept() {
  const ComposicionCatalogo* elegida = Elegida();
  if (elegida == nullptr) return;
  contexto_.Editar(tr("Elegir composición"), [&](Edificio& e) {
    ElegirComposicion(e, ranura_, elegida->nombre, elegida->capas);
  });
  QDialog::accept();
}

void TFMuros::Crear(const ComposicionCatalogo* modelo) {
  Mensajes& mensajes = contexto_.Sesion().Avisos();
  const std::string subtipo = modelo == nullptr ? Subtipo() : modelo->subtipo;
  if (!catalogo_.PuedeCrear(familia_, subtipo, mensajes)) return;
  TFCrearMuro editor(contexto_, catalogo_, ranura_,
                     modelo == nullptr ? ComposicionCatalogo{familia_, subtipo, 0, 0, {}, {}, {}}
                                       : CopiaParaEditar(*modelo),
                     this);
  if (editor.exec() == QDialog::Accepted) {
    buscar_->clear();
    if (Subtipo() != kTodosLosGrupos) subtipos_->setCurrentText(Q(editor.Creada().subtipo));
    Llenar(editor.Creada().nombre);
  }
}

void TFMuros::Eliminar() {
  Mensajes& mensajes = contexto_.Sesion().Avisos();
  const ComposicionCatalogo* elegida = Elegida();
  if (elegida == nullptr) return;
  if (!mensajes.Preguntar("Atención",
                          "¿Quiere borrar de la biblioteca \"" + elegida->nombre + "\"?"))
    return;
  if (catalogo_.Eliminar(*elegida, mensajes)) Llenar();
}

void TFMuros::Mover(Sentido sentido) {
  const ComposicionCatalogo* elegida = Elegida();
  if (elegida == nullptr) return;
  // Por su lugar: dos de subtipos distintos pueden llamarse igual.
  const std::size_t grupo = elegida->grupo;
  const std::size_t lugar = elegida->indice + (sentido == Sentido::Arriba ? std::size_t(-1) : 1);
  if (!catalogo_.Mover(*elegida, sentido, contexto_.Sesion().Avisos())) return;
  Llenar();
  const auto it = std::find_if(lista_.begin(), lista_.end(), [&](const ComposicionCatalogo& c) {
    return c.grupo == grupo && c.indice == lugar;
  });
  if (it != lista_.end()) composiciones_->selectRow(static_cast<int>(it - lista_.begin()));
}

void TFMuros::Almacenar() {
  if (catalogo_.Almacenar(contexto_.Caso(), ranura_, Subtipo(), contexto_.Sesion().Avisos()))
    Llenar(contexto_.Caso().GetComposicion(ranura_).nombre);
}

}  // namespace novex::gui
