#include "shell/gui/TForm1.h"

#include <QApplication>
#include <QDockWidget>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "base/NumeroTexto.h"
#include "shell/gui/DialogoExpres.h"
#include "shell/gui/PaginaAdministrativa.h"
#include "shell/gui/PaginaComparacion.h"
#include "shell/gui/PaginaHorarios.h"
#include "shell/gui/PaginaPestanas.h"
#include "shell/gui/PaginaSitio.h"
#include "shell/gui/PaginaTitulo.h"
#include "shell/gui/PaginaUso.h"
#include "shell/gui/TDefEdificio.h"
#include "shell/gui/TFDefinicion.h"
#include "shell/gui/THE1.h"
#include "shell/gui/TResultadosT.h"
#include "shell/gui/TTEquipos.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr std::array<const char*, 8> kPestanas = {
    "Titulo",        "Global",      "Edificio", "Instalaciones",
    "Certificación", "Comparación", "HE",       "Definición"};
constexpr int kCopiaMs = 4000;
constexpr std::size_t kCasosMaximos = 6;

bool EsDeResultados(Destino d) {
  return d == Destino::Certificacion || d == Destino::Comparacion || d == Destino::HE;
}

QString Cifra(float valor) {
  return Q(Fijo(static_cast<double>(valor), 0));
}

}  // namespace

TForm1::TForm1(SesionProyecto& sesion, MensajesVentana& mensajes,
               const std::filesystem::path& carpetaRecuperacion)
    : contexto_(sesion), mensajes_(mensajes), recuperacion_(carpetaRecuperacion) {
  CrearOrdenes();
  CrearPaginas();
  connect(&contexto_, &ContextoGui::Editado, this, &TForm1::AlEditar);
  connect(&contexto_, &ContextoGui::ProyectoCambiado, this, &TForm1::AlCambiarProyecto);
  connect(&contexto_, &ContextoGui::Guardado, this, &TForm1::AlGuardar);
  connect(&contexto_, &ContextoGui::PideAdministracion, this, [this] { Imprimir(true); });
  connect(&contexto_, &ContextoGui::Ir, this, &TForm1::IrA);
  connect(&contexto_, &ContextoGui::IrADestino, this, &TForm1::Mostrar);
  copia_.setSingleShot(true);
  copia_.setInterval(kCopiaMs);
  connect(&copia_, &QTimer::timeout, this, &TForm1::GuardarCopia);
  resize(1280, 720);
  AlCambiarProyecto();
}

QAction* TForm1::Orden(const char* control, const char* icono, const QString& texto,
                       const QString& ayuda, const QKeySequence& tecla, void (TForm1::*hacer)()) {
  QAction* orden = barra_->addAction(QIcon(QString(":/iconos/%1.svg").arg(icono)), texto);
  orden->setObjectName(control);
  orden->setShortcut(tecla);
  const QString con =
      tecla.isEmpty() ? QString() : " (" + tecla.toString(QKeySequence::NativeText) + ")";
  orden->setToolTip(ayuda + con);
  connect(orden, &QAction::triggered, this, hacer);
  return orden;
}

void TForm1::CrearOrdenes() {
  barra_ = addToolBar(tr("Órdenes"));
  barra_->setObjectName("ToolBarPrincipal");
  barra_->setMovable(false);
  barra_->toggleViewAction()->setVisible(false);
  barra_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  barra_->installEventFilter(this);
  Orden("SBNuevo", "nuevo", tr("Nuevo"), tr("Proyecto nuevo, en el mismo sitio"), QKeySequence::New,
        &TForm1::Nuevo);
  Orden("SBAbrir", "abrir", tr("Abrir"), tr("Abre un proyecto"), QKeySequence::Open,
        &TForm1::AbrirConDialogo);
  Orden("SBGuardar", "guardar", tr("Guardar"), tr("Guarda el proyecto"), QKeySequence::Save,
        &TForm1::Guardar);
  Orden("guardarComo", "guardarcomo", tr("Guardar como"), tr("Guarda con otro nombre"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), &TForm1::GuardarComo);
  Orden("SBImpresor", "imprimir", tr("Imprimir"),
        tr("Escribe el certificado o la verificación en PDF"), QKeySequence::Print,
        &TForm1::ImprimirPagina);
  Orden("SpeedButton4", "anadir", tr("Añadir"), tr("Añade los casos de otro fichero"), {},
        &TForm1::Anadir);
  barra_->addSeparator();
  duplicar_ = Orden("SBDuplicar", "duplicar", tr("Duplicar"), tr("Una mejora igual al caso activo"),
                    QKeySequence(Qt::CTRL | Qt::Key_D), &TForm1::Duplicar);
  Orden("SBBorrar", "borrar", tr("Borrar"), tr("Borra el caso activo"), {}, &TForm1::Borrar);
  barra_->addSeparator();
  deshacer_ = Orden("deshacer", "deshacer", tr("Deshacer"), tr("Deshace lo último"),
                    QKeySequence::Undo, &TForm1::Deshacer);
  rehacer_ = Orden("rehacer", "rehacer", tr("Rehacer"), tr("Vuelve a hacer lo deshecho"),
                   QKeySequence::Redo, &TForm1::Rehacer);
  barra_->addSeparator();
  Orden("SBABrirICE", "inspeccion", tr("Inspección"),
        tr("Abre el programa del fichero de inspección de la comunidad"), {},
        &TForm1::AbrirInspeccion);
  Orden("ayuda", "ayuda", tr("Ayuda"), tr("El manual de la página que se ve"),
        QKeySequence::HelpContents, &TForm1::Ayuda);
  Orden("SBAcerca", "acerca", tr("Acerca de"), tr("Qué es este programa"), {}, &TForm1::Acerca);
}

void TForm1::CrearPaginas() {
  auto* centro = new QWidget(this);
  auto* columna = new QVBoxLayout(centro);
  columna->setContentsMargins(0, 0, 0, 0);
  columna->setSpacing(0);
  auto* fila = new QHBoxLayout;
  pestanas_ = new QTabBar(centro);
  pestanas_->setObjectName("pestanas");
  pestanas_->setDrawBase(false);
  pestanas_->setExpanding(false);
  for (const char* nombre : kPestanas) pestanas_->addTab(nombre);
  fila->addWidget(pestanas_);
  fila->addStretch(1);
  selector_ = new QWidget(centro);
  auto* selector = new QHBoxLayout(selector_);
  selector->setContentsMargins(0, 0, 0, 0);
  selector->addWidget(new QLabel(tr("Caso"), selector_));
  casos_ = new QComboBox(selector_);
  casos_->setObjectName("RGEdificio");
  casos_->setMinimumWidth(casos_->fontMetrics().horizontalAdvance("Mejora 5") + 48);
  selector->addWidget(casos_);
  fila->addWidget(selector_);
  columna->addLayout(fila);
  pila_ = new QStackedWidget(centro);
  columna->addWidget(pila_, 1);
  setCentralWidget(centro);

  titulo_ = new PaginaTitulo(contexto_);
  paginas_[static_cast<std::size_t>(Destino::Titulo)] = titulo_;
  pila_->addWidget(titulo_);
  connect(pestanas_, &QTabBar::currentChanged, this,
          [this](int i) { Mostrar(static_cast<Destino>(i)); });
  connect(casos_, &QComboBox::activated, this, [this](int i) {
    contexto_.Sesion().ActivarCaso(
        GestorEdifActivo::NombreCasoUsuario(static_cast<std::size_t>(i)));
    emit contexto_.ProyectoCambiado();
  });
  connect(titulo_, &PaginaTitulo::PideNuevo, this, &TForm1::Nuevo);
  connect(titulo_, &PaginaTitulo::PideAbrir, this, &TForm1::AbrirConDialogo);
  connect(titulo_, &PaginaTitulo::PideFichero, this, [this](const QString& ruta) {
    if (!ruta.isEmpty()) Abrir(S(ruta));
  });
  connect(titulo_, &PaginaTitulo::PideExpres, this,
          [this] { DialogoExpres(contexto_, this).exec(); });

  CrearPanelVivo(fila);
  resumen_ = new QLabel(this);
  falta_ = new QLabel(this);
  falta_->setTextFormat(Qt::RichText);
  falta_->setObjectName("falta");
  connect(falta_, &QLabel::linkActivated, this, [this] {
    const auto motivos = TodasLasComprobaciones(contexto_.Caso());
    if (!motivos.empty()) IrA(motivos.back());
  });
  statusBar()->addWidget(resumen_, 1);
  statusBar()->addPermanentWidget(falta_);
}

void TForm1::CrearPanelVivo(QHBoxLayout* fila) {
  panel_ = new PanelVivo(contexto_);
  connect(panel_, &PanelVivo::Calculado, this, &TForm1::PonerEstado);
  auto* muelle = new QDockWidget(tr("Calificación"), this);
  muelle->setObjectName("calificacion");
  muelle->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
  muelle->setWidget(panel_);
  addDockWidget(Qt::RightDockWidgetArea, muelle);
  auto* plegar = new QToolButton(this);
  plegar->setDefaultAction(muelle->toggleViewAction());
  plegar->setToolTip(tr("Enseña o esconde la calificación en vivo (F9)"));
  muelle->toggleViewAction()->setShortcut(Qt::Key_F9);
  fila->addWidget(plegar);
}

Pagina* TForm1::CrearPagina(Destino destino) {
  switch (destino) {
    case Destino::Titulo:
      return titulo_;
    case Destino::Global: {
      auto* global = new PaginaPestanas(contexto_);
      global->Anadir(new PaginaSitio(contexto_), "Sitio");
      global->Anadir(new PaginaUso(contexto_), "Uso");
      global->Anadir(new PaginaHorarios(contexto_), "Horarios");
      global->Anadir(new PaginaAdministrativa(contexto_), "Datos administrativos");
      return global;
    }
    case Destino::Edificio:
      return new TDefEdificio(contexto_);
    case Destino::Instalaciones:
      return new TTEquipos(contexto_);
    case Destino::Certificacion:
      return new TResultadosT(contexto_);
    case Destino::Comparacion:
      return new PaginaComparacion(contexto_);
    case Destino::HE:
      return new THE1(contexto_);
    case Destino::Definicion:
      break;
  }
  return new TFDefinicion(contexto_);
}

Pagina* TForm1::PaginaDe(Destino destino) {
  Pagina*& pagina = paginas_[static_cast<std::size_t>(destino)];
  if (pagina == nullptr) {
    pagina = CrearPagina(destino);
    pila_->addWidget(pagina);
  }
  return pagina;
}

bool TForm1::PasaAResultados() {
  const auto avisos = AvisosPrevios(contexto_.Caso());
  for (const Mensaje& aviso : avisos) mensajes_.Avisar(aviso.titulo, aviso.texto);
  return avisos.empty();
}

void TForm1::Mostrar(Destino destino, const QString& subdestino) {
  // Lo que se está tecleando se guarda antes de salir de la página.
  if (QWidget* foco = QApplication::focusWidget()) foco->clearFocus();
  if (EsDeResultados(destino) && !PasaAResultados()) destino = Destino::Titulo;
  mostrada_ = destino;
  {
    const QSignalBlocker callada(pestanas_);
    pestanas_->setCurrentIndex(static_cast<int>(destino));
  }
  pila_->setCurrentWidget(PaginaDe(destino));
  PaginaDe(destino)->Refrescar();
  if (!subdestino.isEmpty()) PaginaDe(destino)->AbrirEn(subdestino);
}

void TForm1::IrA(const MensajePrevio& motivo) {
  Destino destino = Destino::Edificio;
  if (motivo.pagina == PaginaProyecto::Instalaciones) destino = Destino::Instalaciones;
  if (motivo.pagina == PaginaProyecto::Global) destino = Destino::Global;
  Mostrar(destino);
  PaginaDe(destino)->Senalar(motivo);
}

void TForm1::AlEditar() {
  PaginaDe(mostrada_)->Refrescar();
  PonerTitulo();
  PonerEstado();
  panel_->Pedir();
  copia_.start();
}

void TForm1::AlCambiarProyecto() {
  PonerCasos();
  PonerTitulo();
  // Antes que el estado, que enseña lo último calculado.
  panel_->PedirDeNuevo();
  PonerEstado();
  // Otro proyecto, o lo que se ha deshecho, puede que no se pueda calcular. La barra de estado dice
  // por qué. Un caso calculado al entrar se sigue viendo.
  const auto& hecho = contexto_.Caso().GetCalculo();
  if (EsDeResultados(mostrada_) && (!hecho || !hecho->Calculado()) &&
      !AvisosPrevios(contexto_.Caso()).empty())
    Mostrar(Destino::Titulo);
  else
    PaginaDe(mostrada_)->Refrescar();
  if (contexto_.Sesion().Modificado()) copia_.start();
}

void TForm1::PonerTitulo() {
  const SesionProyecto& s = contexto_.Sesion();
  setWindowTitle("NOVEX — " + Q(s.Fichero().filename()) + (s.Modificado() ? "*" : ""));
  const auto ponerOrden = [](QAction* orden, const QString& verbo, std::string_view que) {
    orden->setEnabled(!que.empty());
    orden->setToolTip(que.empty() ? verbo : verbo + ": " + Q(que));
  };
  ponerOrden(deshacer_, tr("Deshacer"), s.QueDeshace());
  ponerOrden(rehacer_, tr("Rehacer"), s.QueRehace());
}

void TForm1::PonerCasos() {
  const QSignalBlocker callado(casos_);
  const GestorEdifActivo& gestor = contexto_.Sesion().Gestor();
  casos_->clear();
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i) {
    const std::string_view nombre = GestorEdifActivo::NombreCasoUsuario(i);
    casos_->addItem(nombre == caso::kViejo ? tr("Base") : Q(nombre).replace('_', ' '));
    if (gestor.EsCasoActivo(nombre)) casos_->setCurrentIndex(static_cast<int>(i));
  }
  const bool varios = gestor.NumeroCasos() > 1;
  selector_->setVisible(varios);
  pestanas_->setTabVisible(static_cast<int>(Destino::Comparacion), varios);
  pestanas_->updateGeometry();
  duplicar_->setVisible(gestor.NumeroCasos() < kCasosMaximos);
}

void TForm1::PonerEstado() {
  const Edificio& e = contexto_.Caso();
  const Localizacion& lugar = e.GetLocalizacion();
  const Recinto& r = e.GetRecinto(0);
  resumen_->setText(Q(lugar.ZonaClimatica) + " " + Q(lugar.Municipio) + " · " +
                    Cifra(r.Suelo_habitable_m2) + " m² · " + Cifra(r.Volumen_total_m3) + " m³");
  const auto motivos = TodasLasComprobaciones(e);
  falta_->setText(motivos.empty()
                      ? QString()
                      : "<a href=\"#\">" + Q(motivos.back().texto).toHtmlEscaped() + " →</a>");
  const auto& vivo = panel_->Calculo().Resumen();
  if (!vivo)
    titulo_->PonerEtiqueta({}, {}, {}, {});
  else
    titulo_->PonerEtiqueta(Q(vivo->letraPrimaria), Cifra(vivo->primaria), Q(vivo->letraEmisiones),
                           Cifra(vivo->emisiones));
}

}  // namespace novex::gui
