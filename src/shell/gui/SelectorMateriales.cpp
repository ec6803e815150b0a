#include "shell/gui/SelectorMateriales.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "shell/gui/TablaEnWidget.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr const char* kPista = "(Para crear nuevas capas debe especificar un grupo de materiales)";
constexpr const char* kLadrillos = "Fábricas de ladrillo";

}  // namespace

SelectorMateriales::SelectorMateriales(ContextoGui& contexto, bool vertical, QWidget* padre)
    : QWidget(padre),
      contexto_(contexto),
      vertical_(vertical),
      catalogo_(contexto.Ficheros().Espacio().Datos() / "Materiales.xml") {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(0, 0, 0, 0);
  columna->addLayout(Filtro());
  materiales_ = CrearTablaDeFilas({tr("Material"), "m", "k", "ρ", "cp", "µ", "R"}, this);
  materiales_->setObjectName("materiales");
  materiales_->setToolTip(
      tr("Espesor (m), conductividad (W/mK), densidad (kg/m³), calor "
         "específico (J/kgK), factor de vapor y resistencia (m²K/W). Dos "
         "pulsaciones añaden la capa"));
  columna->addWidget(materiales_, 1);
  columna->addLayout(Ordenes());
  pista_ = new QLabel(kPista, this);
  pista_->setProperty("papel", "nota");
  pista_->setWordWrap(true);
  columna->addWidget(pista_);
  panel_ = PanelNuevo();
  panel_->hide();
  columna->addWidget(panel_);
  connect(materiales_, &QTableWidget::currentCellChanged, this, [this] { Ensenar(); });
  connect(materiales_, &QTableWidget::cellDoubleClicked, this, [this] { Anadir(); });
  LlenarGrupos();
}

QLayout* SelectorMateriales::Filtro() {
  auto* fila = new QHBoxLayout;
  listas_ = new QComboBox(this);
  listas_->setObjectName("listas");
  listas_->addItem(tr("Catálogo oficial"));
  listas_->addItem(tr("Otros materiales"));
  grupos_ = new QComboBox(this);
  grupos_->setObjectName("grupos");
  grupos_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  grupos_->setMinimumContentsLength(14);
  grupos_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  buscar_ = new QLineEdit(this);
  buscar_->setObjectName("buscarMaterial");
  buscar_->setPlaceholderText(tr("Buscar en todo el catálogo"));
  buscar_->setClearButtonEnabled(true);
  fila->addWidget(listas_);
  fila->addWidget(grupos_, 1);
  fila->addWidget(buscar_, 1);
  connect(listas_, &QComboBox::currentIndexChanged, this, [this] { LlenarGrupos(); });
  connect(grupos_, &QComboBox::currentIndexChanged, this, [this] { Llenar(); });
  connect(buscar_, &QLineEdit::textChanged, this, [this] { Llenar(); });
  return fila;
}

QLayout* SelectorMateriales::Ordenes() {
  auto* fila = new QHBoxLayout;
  const auto boton = [&](const char* nombre, const QString& texto, const QString& ayuda,
                         const auto& hacer) {
    auto* b = new QPushButton(texto, this);
    b->setObjectName(nombre);
    b->setToolTip(ayuda);
    b->setAutoDefault(false);
    b->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(b, &QPushButton::clicked, this, hacer);
    fila->addWidget(b);
    return b;
  };
  anadir_ = boton("anadir", tr("Añadir capa"), tr("Añade el material elegido al cerramiento"),
                  [this] { Anadir(); });
  espesor_ = new QLineEdit("0.1", this);
  espesor_->setObjectName("espesorNuevo");
  espesor_->setFixedWidth(56);
  espesor_->setAlignment(Qt::AlignRight);
  espesor_->setToolTip(tr("Espesor de la capa nueva, m"));
  fila->addWidget(espesor_);
  nuevoEspesor_ = boton("nuevoEspesor", tr("Nuevo espesor"),
                        tr("Crea en el catálogo el material elegido con este espesor"),
                        [this] { NuevoEspesor(); });
  nuevo_ = boton("nuevoMaterial", tr("Nuevo material…"), tr("Define un material del grupo elegido"),
                 [this] {
                   panel_->setVisible(!panel_->isVisible());
                   Ensenar();
                 });
  borrar_ = boton("borrarMaterial", tr("Eliminar material"), tr("Lo borra del catálogo"),
                  [this] { Borrar(); });
  fila->addStretch(1);
  subir_ = boton("subirMaterial", "▲", tr("arriba"), [this] { Mover(Sentido::Arriba); });
  bajar_ = boton("bajarMaterial", "▼", tr("abajo"), [this] { Mover(Sentido::Abajo); });
  subir_->setFixedWidth(36);
  bajar_->setFixedWidth(36);
  return fila;
}

QWidget* SelectorMateriales::PanelNuevo() {
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 0, 0);
  auto* titulo = new QLabel(tr("Nuevo material"), caja);
  titulo->setProperty("papel", "seccion");
  columna->addWidget(titulo);
  auto* fila = new QHBoxLayout;
  columna->addLayout(fila);
  auto* uno = new QFormLayout;
  auto* dos = new QFormLayout;
  fila->addLayout(uno, 3);
  fila->addLayout(dos, 2);
  const auto linea = [&](QFormLayout* formulario, const char* nombre, const QString& rotulo,
                         const QString& valor) {
    auto* l = new QLineEdit(valor, caja);
    l->setObjectName(nombre);
    l->setMinimumWidth(70);
    formulario->addRow(rotulo, l);
    return l;
  };
  nombreN_ = linea(uno, "nombreN", tr("Nombre"), {});
  espesorN_ = linea(uno, "espesorN", tr("Espesor (m)"), "0.1");
  iniN_ = linea(uno, "iniN", tr("Código corto"), {});
  rvaporN_ = linea(uno, "rvaporN", tr("Factor de vapor"), "1");
  rtermN_ = linea(dos, "rtermN", tr("Resistencia (m²K/W)"), "1");
  kN_ = linea(dos, "kN", tr("Conductividad (W/mK)"), "1");
  denN_ = linea(dos, "denN", tr("Densidad (kg/m³)"), "1000");
  cpN_ = linea(dos, "cpN", tr("Calor específico (J/kgK)"), "1000");
  admitido_ = new QLabel(caja);
  admitido_->setObjectName("admitido");
  admitido_->setProperty("papel", "nota");
  dos->addRow(admitido_);
  auto* crear = new QPushButton(tr("Crear material"), caja);
  crear->setObjectName("crearMaterial");
  crear->setAutoDefault(false);
  connect(crear, &QPushButton::clicked, this, &SelectorMateriales::NuevoMaterial);
  dos->addRow(crear);
  return caja;
}

RamaMateriales SelectorMateriales::Rama() const {
  return {vertical_, listas_->currentIndex() == 0 ? kListaCte : kListaNoCte};
}

std::string SelectorMateriales::Grupo() const {
  return S(grupos_->currentText());
}

void SelectorMateriales::LlenarGrupos() {
  {
    const QSignalBlocker callado(grupos_);
    grupos_->clear();
    grupos_->addItem(Q(kTodosLosGrupos));
    for (const std::string& grupo : catalogo_.Grupos(Rama())) grupos_->addItem(Q(grupo));
  }
  Llenar();
}

void SelectorMateriales::Llenar(std::size_t elegir) {
  if (buscar_->text().trimmed().isEmpty()) {
    lista_ = catalogo_.Materiales(Rama(), Grupo());
  } else {
    lista_ = catalogo_.Buscar(S(buscar_->text().trimmed()));
    std::erase_if(lista_, [&](const MaterialCatalogo& m) { return m.rama.vertical != vertical_; });
  }
  Tabla tabla;
  const auto numero = [](float valor, int decimales) {
    return Celda::Numero(static_cast<double>(valor), decimales);
  };
  for (const MaterialCatalogo& m : lista_) {
    const Capa& c = m.capa;
    tabla.filas.push_back({c.especificacion, numero(c.espesor, 3), numero(c.k, 3), numero(c.den, 0),
                           numero(c.cp, 0), numero(c.rvapor, 0), numero(c.rterm, 3)});
  }
  PonerTabla(materiales_, tabla);
  if (!lista_.empty())
    materiales_->selectRow(static_cast<int>(std::min(elegir, lista_.size() - 1)));
  Ensenar();
}

void SelectorMateriales::LlenarY(const MaterialCatalogo& elegido) {
  Llenar();
  const auto it = std::find_if(lista_.begin(), lista_.end(), [&](const MaterialCatalogo& m) {
    return m.rama == elegido.rama && m.grupo == elegido.grupo && m.indice == elegido.indice;
  });
  if (it != lista_.end()) materiales_->selectRow(static_cast<int>(it - lista_.begin()));
}

const MaterialCatalogo* SelectorMateriales::Elegido() const {
  const int fila = materiales_->currentRow();
  return fila < 0 || static_cast<std::size_t>(fila) >= lista_.size()
             ? nullptr
             : &lista_[static_cast<std::size_t>(fila)];
}

void SelectorMateriales::Ensenar() {
  const MaterialCatalogo* elegido = Elegido();
  const bool puede = CatalogoMateriales::PuedeCrear(Rama().lista, Grupo());
  for (QWidget* control : std::initializer_list<QWidget*>{nuevoEspesor_, espesor_, nuevo_, borrar_})
    control->setVisible(puede);
  pista_->setVisible(Grupo() == kTodosLosGrupos);
  if (!puede) panel_->hide();
  anadir_->setEnabled(elegido != nullptr);
  // Lo que encuentra una búsqueda puede ser de otro grupo, y allí no tiene a la vista a sus
  // vecinos.
  const bool suyo = elegido != nullptr &&
                    CatalogoMateriales::PuedeCrear(elegido->rama.lista, elegido->capa.grupo);
  for (QPushButton* boton : {nuevoEspesor_, borrar_}) boton->setEnabled(suyo);
  const bool enOrden = buscar_->text().trimmed().isEmpty();
  for (QPushButton* boton : {subir_, bajar_}) boton->setEnabled(elegido != nullptr && enOrden);
  const bool sinInercia = Grupo() == kGrupoSinInercia;
  rtermN_->setEnabled(sinInercia);
  for (QLineEdit* linea : {kN_, denN_, cpN_}) linea->setEnabled(!sinInercia);
  admitido_->setText(elegido != nullptr && elegido->capa.grupo == kLadrillos
                         ? Q(CatalogoMateriales::EspesorAdmitido(elegido->capa.especificacion))
                         : QString());
}

void SelectorMateriales::Anadir() {
  if (const MaterialCatalogo* elegido = Elegido()) emit Anadida(elegido->capa);
}

void SelectorMateriales::NuevoEspesor() {
  const MaterialCatalogo* elegido = Elegido();
  if (elegido == nullptr) return;
  if (const auto creado =
          catalogo_.NuevoEspesor(*elegido, S(espesor_->text()), contexto_.Sesion().Avisos()))
    LlenarY(*creado);
}

void SelectorMateriales::NuevoMaterial() {
  const MaterialNuevo datos{S(nombreN_->text()), S(espesorN_->text()), S(rtermN_->text()),
                            S(kN_->text()),      S(denN_->text()),     S(cpN_->text()),
                            S(rvaporN_->text()), S(iniN_->text())};
  if (const auto creado =
          catalogo_.NuevoMaterial(Rama(), Grupo(), datos, contexto_.Sesion().Avisos())) {
    panel_->hide();
    buscar_->clear();  // el nuevo está en el grupo elegido
    LlenarY(*creado);
  }
}

void SelectorMateriales::Borrar() {
  const MaterialCatalogo* elegido = Elegido();
  Mensajes& mensajes = contexto_.Sesion().Avisos();
  if (elegido == nullptr) return;
  if (!mensajes.Preguntar("Atención",
                          "¿Quiere borrar del catálogo \"" + elegido->capa.especificacion + "\"?"))
    return;
  const int fila = materiales_->currentRow();
  if (catalogo_.Borrar(*elegido, mensajes)) Llenar(static_cast<std::size_t>(fila));
}

void SelectorMateriales::Mover(Sentido sentido) {
  const MaterialCatalogo* elegido = Elegido();
  if (elegido == nullptr) return;
  MaterialCatalogo movido = *elegido;
  if (!catalogo_.Mover(movido, sentido, contexto_.Sesion().Avisos())) return;
  movido.indice += sentido == Sentido::Arriba ? std::size_t(-1) : 1;
  LlenarY(movido);
}

}  // namespace novex::gui
