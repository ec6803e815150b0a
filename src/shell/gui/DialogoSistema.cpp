#include "shell/gui/DialogoSistema.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "base/NumeroTexto.h"
#include "entry/DimensionadoSistema.h"
#include "entry/ListasSistemas.h"
#include "model/CatalogoCampos.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

std::string Elegido(const QComboBox* lista) {
  return S(lista->currentText());
}

void Llenar(QComboBox* lista, ListaTextos textos) {
  const QString antes = lista->currentText();
  lista->clear();
  for (const std::string_view t : textos) lista->addItem(Q(t));
  lista->setCurrentIndex(std::max(0, lista->findText(antes)));
}

QLabel* Seccion(const QString& texto, QWidget* padre) {
  auto* seccion = new QLabel(texto, padre);
  seccion->setProperty("papel", "seccion");
  return seccion;
}

}  // namespace

DialogoSistema::DialogoSistema(ContextoGui& contexto, QWidget* padre)
    : QDialog(padre), contexto_(contexto) {
  setWindowTitle(Q(kBotonCrear));
  auto* columna = new QVBoxLayout(this);
  auto* fila = new QHBoxLayout;
  fila->addWidget(CajaServicios());
  fila->addWidget(CajaOpciones(), 1);
  columna->addLayout(fila);
  aviso_ = new QLabel(this);
  aviso_->setProperty("papel", "aviso");
  aviso_->setWordWrap(true);
  aviso_->setMinimumHeight(34);
  columna->addWidget(aviso_);
  auto* botones = new QHBoxLayout;
  botones->addStretch(1);
  auto* cancelar = new QPushButton(tr("Cancelar"), this);
  auto* crear = new QPushButton(Q(kBotonCrear), this);
  crear->setObjectName("BitBtn3");
  crear->setDefault(true);
  botones->addWidget(cancelar);
  botones->addWidget(crear);
  columna->addLayout(botones);
  connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
  connect(crear, &QPushButton::clicked, this, &DialogoSistema::Crear);
  PonerClases();
}

QWidget* DialogoSistema::CajaServicios() {
  auto* todo = new QWidget(this);
  auto* columna = new QVBoxLayout(todo);
  columna->setContentsMargins(0, 0, 0, 0);
  const auto grupo = [&](std::string_view titulo, const char* nombre, QButtonGroup*& botones) {
    auto* caja = new QWidget(todo);
    caja->setObjectName(nombre);
    auto* dentro = new QVBoxLayout(caja);
    dentro->setContentsMargins(0, 0, 0, 0);
    dentro->addWidget(Seccion(Q(titulo), caja));
    columna->addWidget(caja);
    botones = new QButtonGroup(this);
    connect(botones, &QButtonGroup::idClicked, this, &DialogoSistema::PonerClases);
    return caja;
  };
  const auto opcion = [](QWidget* caja, QButtonGroup* botones, std::string_view texto, int i) {
    auto* boton = new QRadioButton(Q(texto), caja);
    caja->layout()->addWidget(boton);
    botones->addButton(boton, i);
  };
  QWidget* servicios = grupo(kTituloServicio, "RGTipoServicio", servicios_);
  for (std::size_t i = 0; i < kServiciosOfrecidos; ++i)
    opcion(servicios, servicios_, kServiciosSistema[i].rotulo, static_cast<int>(i));
  QWidget* tipologias = grupo(kTituloTipologia, "RGTipologiaInstalacion", tipologias_);
  for (std::size_t i = 0; i < kTipologiasInstalacion.size(); ++i)
    opcion(tipologias, tipologias_, kTipologiasInstalacion[i].rotulo, static_cast<int>(i));
  servicios_->button(0)->setChecked(true);
  tipologias_->button(1)->setChecked(true);
  columna->addStretch(1);
  return todo;
}

QWidget* DialogoSistema::CajaOpciones() {
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(16, 0, 0, 0);
  columna->addWidget(Seccion(tr("Generador"), caja));
  clases_ = new QListWidget(caja);
  clases_->setObjectName("clases");
  clases_->setMinimumSize(300, 190);
  columna->addWidget(clases_);
  opciones_ = new QFormLayout;
  columna->addLayout(opciones_);
  const auto lista = [&](const QString& rotulo, const char* nombre, QComboBox*& combo) {
    combo = new QComboBox(caja);
    combo->setObjectName(nombre);
    opciones_->addRow(rotulo, combo);
    connect(combo, &QComboBox::activated, this, &DialogoSistema::PonerAviso);
  };
  lista(tr("Emisor"), "emisor", emisor_);
  lista(tr("Construcción"), "bomba", bomba_);
  lista(tr("Distribución"), "distribucion", distribucion_);
  lista(tr("Distribución"), "distribucion2", distribucion2_);
  const float util = contexto_.Caso().GetRecinto(0).Suelo_habitable_m2;
  superficie_ = new QLineEdit(Q(Fijo(static_cast<double>(util), 2)), caja);
  superficie_->setObjectName("superficie");
  superficie_->setAlignment(Qt::AlignRight);
  superficie_->setMaximumWidth(90);
  superficie_->setToolTip(tr("La que sirve el sistema, m²; mayor que cero"));
  opciones_->addRow(tr("Superficie acondicionada, m²"), superficie_);
  nombre_ = new QLineEdit(caja);
  nombre_->setObjectName("nombre");
  nombre_->setPlaceholderText(
      tr("Sistema %1").arg(static_cast<int>(contexto_.Caso().NumeroSistemas()) + 1));
  opciones_->addRow(tr("Nombre"), nombre_);
  potencia_ = new QLabel(caja);
  potencia_->setProperty("papel", "nota");
  potencia_->setWordWrap(true);
  columna->addWidget(potencia_);
  connect(clases_, &QListWidget::currentRowChanged, this, &DialogoSistema::PonerOpciones);
  connect(superficie_, &QLineEdit::textChanged, this, &DialogoSistema::PonerAviso);
  return caja;
}

PeticionSistema DialogoSistema::Peticion(Mensajes& avisos) const {
  PeticionSistema p;
  p.tipoSistema =
      kServiciosSistema[static_cast<std::size_t>(std::max(0, servicios_->checkedId()))].tipoSistema;
  p.tipologia =
      kTipologiasInstalacion[static_cast<std::size_t>(std::max(0, tipologias_->checkedId()))].texto;
  if (const QListWidgetItem* clase = clases_->currentItem()) p.seleccion = S(clase->text());
  p.nombre = S(nombre_->text().trimmed());
  p.emisor = Elegido(emisor_);
  p.tipoBC1 = Elegido(bomba_);
  p.distribucion = Elegido(distribucion_);
  p.distribucion2 = Elegido(distribucion2_);
  p.superficie = ComprobarValor(S(superficie_->text()), "Area", avisos);
  return p;
}

void DialogoSistema::PonerClases() {
  RegistroMensajes callados;
  const PeticionSistema p = Peticion(callados);
  {
    const QSignalBlocker callada(clases_);
    clases_->clear();
    for (const std::string_view clase : ClasesOfrecidas(p.tipoSistema, p.tipologia))
      clases_->addItem(Q(clase));
    const auto iguales = clases_->findItems(Q(p.seleccion), Qt::MatchExactly);
    if (iguales.isEmpty())
      clases_->setCurrentRow(0);
    else
      clases_->setCurrentItem(iguales.first());
  }
  PonerOpciones();
}

void DialogoSistema::PonerOpciones() {
  RegistroMensajes callados;
  const PeticionSistema p = Peticion(callados);
  const ListaTextos distribuciones = DistribucionesOfrecidas(p.tipoSistema, p.seleccion);
  const ClaseGenerador clase = ClaseGeneradorDe(p.seleccion);
  const bool bomba = clase == ClaseGenerador::BombaCalor ||
                     clase == ClaseGenerador::BombaCalorCaldera ||
                     clase == ClaseGenerador::Enfriadora;
  const auto poner = [this](QComboBox* lista, ListaTextos textos) {
    Llenar(lista, textos);
    lista->setVisible(!textos.empty());
    opciones_->labelForField(lista)->setVisible(!textos.empty());
  };
  poner(emisor_, EmisoresOfrecidos(p.tipoSistema, p.seleccion));
  poner(bomba_, bomba ? ListaTextos(kTiposBC) : ListaTextos());
  poner(distribucion_, distribuciones);
  poner(distribucion2_, Distribuciones2Ofrecidas(p.tipoSistema, p.seleccion));
  const double kW = PotenciaDimensionado(TipoSistemaDe(p.tipoSistema),
                                         CargasPuntaDe(contexto_.Caso(), p.tipologia));
  potencia_->setText(
      tr("Se dimensiona para %1 kW. Después se puede cambiar todo.").arg(Q(Fijo(kW, 1))));
  PonerAviso();
}

void DialogoSistema::PonerAviso() {
  RegistroMensajes avisos;
  const auto rechazo = RechazoSistema(contexto_.Caso(), Peticion(avisos));
  aviso_->setText(rechazo ? Q(rechazo->texto) : QString());
}

void DialogoSistema::Crear() {
  Mensajes& avisos = contexto_.Sesion().Avisos();
  RegistroMensajes callados;
  const PeticionSistema peticion = Peticion(callados);
  const CatalogoEquipos catalogo(contexto_.Ficheros().Xml("Equipos.xml", "EquiposNovex"), avisos);
  const bool creado = contexto_.Editar(
      Q(kBotonCrear), [&](Edificio& e) { CrearSistema(e, peticion, &catalogo, avisos); });
  if (creado) accept();
}

}  // namespace novex::gui
