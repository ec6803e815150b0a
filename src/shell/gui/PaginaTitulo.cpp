#include "shell/gui/PaginaTitulo.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
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

constexpr int kAnchoMaximo = 1180;
constexpr int kAltoEtiqueta = 220;
constexpr int kAltoListaMinimo = 120;
constexpr int kAltoLista = 320;

QLabel* Titulo(const QString& texto, QWidget* padre) {
  auto* titulo = new QLabel(texto, padre);
  titulo->setProperty("papel", "titulo");
  return titulo;
}

}  // namespace

PaginaTitulo::PaginaTitulo(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {
  auto* fuera = new QVBoxLayout(this);
  auto* dentro = new QWidget(this);
  dentro->setMaximumWidth(kAnchoMaximo);
  fuera->addStretch(1);
  auto* medio = new QHBoxLayout;
  medio->addStretch(1);
  medio->addWidget(dentro, 100);
  medio->addStretch(1);
  fuera->addLayout(medio, 12);
  fuera->addStretch(2);
  auto* columna = new QVBoxLayout(dentro);
  columna->setContentsMargins(16, 8, 16, 8);
  columna->setSpacing(24);
  auto* arriba = new QHBoxLayout;
  arriba->setSpacing(32);
  arriba->addWidget(CajaEmpezar(), 2);
  arriba->addWidget(CajaLista(tr("Recientes"), recientes_), 4);
  arriba->addWidget(CajaLista(tr("Ejemplos"), ejemplos_), 4);
  columna->addLayout(arriba, 1);
  auto* abajo = new QHBoxLayout;
  abajo->setSpacing(32);
  abajo->addWidget(CajaTrabajo(), 4);
  primaria_ = new EtiquetaEnergetica(tr("Energía primaria no renovable"), this);
  emisiones_ = new EtiquetaEnergetica(tr("Emisiones de CO2"), this);
  for (EtiquetaEnergetica* etiqueta : {primaria_, emisiones_}) {
    etiqueta->setMaximumHeight(kAltoEtiqueta);
    abajo->addWidget(etiqueta, 3);
  }
  columna->addLayout(abajo);
}

QWidget* PaginaTitulo::CajaLista(const QString& titulo, QListWidget*& lista) {
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 0, 0);
  columna->addWidget(Titulo(titulo, caja));
  lista = new QListWidget(caja);
  lista->setObjectName(titulo.toLower());
  lista->setAccessibleName(titulo);
  lista->setItemDelegate(new DelegadoProyecto(lista));
  lista->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lista->setMinimumHeight(kAltoListaMinimo);
  lista->setMaximumHeight(kAltoLista);
  lista->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  columna->addWidget(lista, 1);
  connect(lista, &QListWidget::itemActivated, this, [this](const QListWidgetItem* entrada) {
    emit PideFichero(entrada->data(kRutaProyecto).toString());
  });
  return caja;
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
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 0, 0);
  columna->addWidget(Titulo(tr("Trabajo"), caja));
  auto* formulario = new QFormLayout;
  columna->addLayout(formulario);
  columna->addStretch(1);
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

void PaginaTitulo::LlenarRecientes() {
  recientes_->clear();
  const QDateTime ahora = QDateTime::currentDateTime();
  for (const QString& ruta : ProyectosRecientes()) {
    const QFileInfo fichero(ruta);
    if (!fichero.exists()) continue;
    auto* entrada = new QListWidgetItem(fichero.fileName(), recientes_);
    entrada->setData(kRutaProyecto, ruta);
    entrada->setData(kFechaProyecto, FechaRelativa(fichero.lastModified(), ahora));
    entrada->setData(kLetraProyecto, LetraDe(ruta));
    entrada->setToolTip(ruta);
  }
  if (recientes_->count() > 0) return;
  auto* vacia = new QListWidgetItem(tr("Aquí saldrán los proyectos que abra"), recientes_);
  vacia->setFlags(Qt::NoItemFlags);
}

void PaginaTitulo::LlenarEjemplos() {
  if (ejemplos_->count() == 0) {
    std::error_code fallo;
    std::vector<std::filesystem::path> rutas;
    for (const auto& f :
         std::filesystem::directory_iterator(contexto_.Ficheros().Espacio().Proyectos(), fallo))
      if (f.path().extension() == ".xml") rutas.push_back(std::filesystem::absolute(f.path()));
    std::sort(rutas.begin(), rutas.end());
    for (const auto& ruta : rutas) {
      QString nombre = Q(ruta.stem());
      auto* entrada = new QListWidgetItem(nombre.replace('_', ' '), ejemplos_);
      entrada->setData(kRutaProyecto, Q(ruta));
    }
  }
  for (int i = 0; i < ejemplos_->count(); ++i) {
    QListWidgetItem* entrada = ejemplos_->item(i);
    entrada->setData(kLetraProyecto, LetraDe(entrada->data(kRutaProyecto).toString()));
  }
}

void PaginaTitulo::LlenarListas() {
  LlenarRecientes();
  LlenarEjemplos();
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
  // Lo calculado es lo que hay en el fichero si no se ha tocado y es su caso base.
  const SesionProyecto& sesion = contexto_.Sesion();
  if (letraPrimaria.isEmpty() || !sesion.TieneFichero() || sesion.Modificado() ||
      !sesion.Gestor().EsCasoActivo(caso::kViejo))
    return;
  const QString ruta = Q(sesion.Fichero());
  if (LetraDe(ruta) == letraPrimaria) return;
  RecordarLetra(ruta, letraPrimaria);
  LlenarListas();
}

}  // namespace novex::gui
