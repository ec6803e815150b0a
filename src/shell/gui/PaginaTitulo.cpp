#include "shell/gui/PaginaTitulo.h"

#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QVBoxLayout>

#include "entry/CambioUso.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

struct Objetivo {
  const char* valor;
  const char* rotulo;
};
constexpr std::array<Objetivo, 3> kObjetivos = {
    {{"CertificacionSolo", "Certificación Energética"},
     {"Certificacion", "Certificación Energética y Cumplimiento CTE 2022"},
     {"Simulacion", "Simulación Energética Libre"}}};

// La clase de edificio, con lo que se lee de cada una.
const std::vector<std::string> kTipos = {
    "Existente",       "ProyectoNuevaConstruccion", "ProyectoAmpliacion",
    "ProyectoReforma", "ObraNuevaConstruccion",     "ObraAmpliacion",
    "ObraReforma"};
const std::vector<std::string> kRotulosTipos = {"Existente",
                                                "Proyecto, obra nueva",
                                                "Proyecto, ampliación",
                                                "Proyecto, reforma",
                                                "Obra terminada, nueva",
                                                "Obra terminada, ampliación",
                                                "Obra terminada, reforma"};
const std::vector<std::string> kReformas = {"Reforma >25% envolvente + Clima + ACS",
                                            "Reforma <25% envolvente + Clima + ACS",
                                            "Reforma >25% envolvente + Clima",
                                            "Reforma <25% envolvente + Clima",
                                            "Reforma >25% envolvente + ACS",
                                            "Reforma <25% envolvente + ACS",
                                            "Reforma >25% envolvente",
                                            "Reforma <25% envolvente",
                                            "Ampliación",
                                            "Cambio de uso"};

QLabel* Titulo(const QString& texto, QWidget* padre) {
  auto* titulo = new QLabel(texto, padre);
  titulo->setProperty("papel", "titulo");
  return titulo;
}

}  // namespace

QStringList ProyectosRecientes() {
  return QSettings().value("recientes").toStringList();
}

PaginaTitulo::PaginaTitulo(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(24, 20, 24, 20);
  auto* arriba = new QHBoxLayout;
  arriba->addWidget(CajaEmpezar(), 1);
  const auto lista = [&](const QString& titulo, QListWidget*& widget) {
    auto* caja = new QVBoxLayout;
    caja->addWidget(Titulo(titulo, this));
    widget = new QListWidget(this);
    widget->setMaximumHeight(230);
    caja->addWidget(widget);
    arriba->addLayout(caja, 2);
    connect(widget, &QListWidget::itemActivated, this, [this](const QListWidgetItem* entrada) {
      emit PideFichero(entrada->data(Qt::UserRole).toString());
    });
  };
  lista(tr("Recientes"), recientes_);
  lista(tr("Ejemplos"), ejemplos_);
  columna->addLayout(arriba);
  auto* abajo = new QHBoxLayout;
  abajo->addWidget(CajaTrabajo(), 3);
  primaria_ = new EtiquetaEnergetica(tr("Energía primaria no renovable"), this);
  emisiones_ = new EtiquetaEnergetica(tr("Emisiones de CO2"), this);
  abajo->addWidget(primaria_, 2);
  abajo->addWidget(emisiones_, 2);
  columna->addLayout(abajo);
  columna->addStretch(1);
}

QWidget* PaginaTitulo::CajaEmpezar() {
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 12, 0);
  columna->addWidget(Titulo(tr("Empezar"), caja));
  const auto boton = [&](const QString& texto, const QString& ayuda,
                         void (PaginaTitulo::*senal)()) {
    auto* b = new QPushButton(texto, caja);
    b->setToolTip(ayuda);
    columna->addWidget(b);
    connect(b, &QPushButton::clicked, this, senal);
  };
  boton(tr("Proyecto nuevo"), tr("Un edificio en blanco que conserva el sitio"),
        &PaginaTitulo::PideNuevo);
  boton(tr("Definición exprés…"), tr("Un edificio entero a partir de unas pocas cifras"),
        &PaginaTitulo::PideExpres);
  boton(tr("Abrir…"), tr("Un fichero de proyecto"), &PaginaTitulo::PideAbrir);
  columna->addStretch(1);
  return caja;
}

QWidget* PaginaTitulo::CajaTrabajo() {
  auto* caja = new QGroupBox(tr("Trabajo"), this);
  auto* formulario = new QFormLayout(caja);
  std::vector<std::string> valores, rotulos;
  for (const Objetivo& o : kObjetivos) {
    valores.emplace_back(o.valor);
    rotulos.emplace_back(o.rotulo);
  }
  OpcionesCampo objetivo;
  objetivo.rotulo = tr("Objetivo");
  objetivo.ayuda = tr("Vale para todos los casos del proyecto");
  QComboBox* lista = enlaces_.Lista(formulario, "Tiposimulacion", valores, objetivo, rotulos);
  // El objetivo es de todos los casos: no se guarda como un campo de este.
  lista->disconnect(&enlaces_);
  connect(lista, &QComboBox::activated, this, [this, lista](int posicion) {
    const std::string valor = S(lista->itemData(posicion).toString());
    contexto_.EditarProyecto(tr("Objetivo"), [&](GestorEdifActivo& gestor) {
      CambiarObjetivo(gestor, valor, contexto_.Ficheros().Xml("PerfilesUso.xml", "PERFILES_USO"),
                      contexto_.Sesion().Avisos());
    });
  });
  OpcionesCampo tipo;
  tipo.rotulo = tr("Edificio");
  tipo.poner = [](Edificio& e, std::string_view texto, Mensajes&) {
    CambiarTipoCertificado(e, texto);
  };
  enlaces_.Lista(formulario, "TipoCertificado", kTipos, tipo, kRotulosTipos);
  enlaces_.Lista(formulario, "Reforma", kReformas, {tr("Intervención"), {}, {}, {}, {}});
  enlaces_.Lista(formulario, "Modo_Vision", {"Simplificado", "Completo"},
                 {tr("Modo de visión"), {}, {}, {}, {}});
  enlaces_.Casilla(formulario, "Equipos_Defecto",
                   {tr("Con equipos por defecto donde no llegan los definidos"), {}, {}, {}, {}},
                   "SI", "NO");
  return caja;
}

void PaginaTitulo::LlenarListas() {
  recientes_->clear();
  for (const QString& ruta : ProyectosRecientes()) {
    if (!QFileInfo::exists(ruta)) continue;
    auto* entrada = new QListWidgetItem(QFileInfo(ruta).fileName(), recientes_);
    entrada->setData(Qt::UserRole, ruta);
    entrada->setToolTip(ruta);
  }
  if (recientes_->count() == 0)
    new QListWidgetItem(tr("Aquí saldrán los proyectos que abra"), recientes_);
  if (ejemplos_->count() > 0) return;
  std::error_code fallo;
  std::vector<std::filesystem::path> rutas;
  for (const auto& f :
       std::filesystem::directory_iterator(contexto_.Ficheros().Espacio().Proyectos(), fallo))
    if (f.path().extension() == ".xml") rutas.push_back(f.path());
  std::sort(rutas.begin(), rutas.end());
  for (const auto& ruta : rutas) {
    QString nombre = Q(ruta.stem());
    auto* entrada = new QListWidgetItem(nombre.replace('_', ' '), ejemplos_);
    entrada->setData(Qt::UserRole, Q(ruta));
  }
}

void PaginaTitulo::Refrescar() {
  LlenarListas();
  Pagina::Refrescar();
  const bool nuevo = contexto_.Caso().GetDatosGenerales().Modo_trabajo == "Nuevo";
  if (QWidget* reforma = enlaces_.Editor("Reforma")) reforma->setEnabled(!nuevo);
}

void PaginaTitulo::PonerEtiqueta(const QString& letraPrimaria, const QString& primaria,
                                 const QString& letraEmisiones, const QString& emisiones) {
  primaria_->Poner(letraPrimaria, primaria);
  emisiones_->Poner(letraEmisiones, emisiones);
}

}  // namespace novex::gui
