#include "shell/gui/TImpresor.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPixmap>
#include <QScrollArea>
#include <QUrl>
#include <algorithm>

#include "calculation/ComprobacionesPrevias.h"
#include "shell/LanzadorExterno.h"
#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kAnchoMandos = 330;
constexpr int kMirarMs = 40;
enum Vista { kVacia, kPaginas, kHtml };

QLabel* Nota(std::string_view texto, QWidget* padre) {
  QLabel* nota = NuevaNota(padre);
  nota->setText(Q(texto));
  return nota;
}

}  // namespace

TImpresor::TImpresor(ContextoGui& contexto, bool desdeVerificacion, QWidget* padre)
    : QDialog(padre), contexto_(contexto), desdeVerificacion_(desdeVerificacion) {
  setWindowTitle(tr("Imprimir"));
  resize(1220, 690);
  auto* fila = new QHBoxLayout(this);
  fila->setSpacing(14);
  fila->addWidget(CrearMandos());
  fila->addWidget(CrearVista(), 1);
  reloj_.setInterval(kMirarMs);
  connect(&reloj_, &QTimer::timeout, this, &TImpresor::Mirar);
  PonerPanel();
}

QWidget* TImpresor::CrearPaneles() {
  mandos_ = new QWidget(this);
  auto* columna = new QVBoxLayout(mandos_);
  columna->setContentsMargins(0, 0, 0, 0);
  auto* tipo = new QWidget(mandos_);
  tipo->setObjectName("RGExistente");
  auto* opciones = new QHBoxLayout(tipo);
  opciones->setContentsMargins(0, 0, 0, 0);
  opciones->addWidget(new QLabel(tr("Edificio"), tipo));
  nuevo_ = new QRadioButton(tr("Nuevo"), tipo);
  existente_ = new QRadioButton(tr("Existente"), tipo);
  for (QRadioButton* opcion : {nuevo_, existente_}) opciones->addWidget(opcion);
  opciones->addStretch(1);
  connect(existente_, &QRadioButton::clicked, this, [this] {
    contexto_.Editar(tr("Edificio existente"), [](Edificio& e) { PonerExistente(e, true); });
    PonerPanel();
  });
  connect(nuevo_, &QRadioButton::clicked, this, [this] {
    contexto_.Editar(tr("Edificio nuevo"), [](Edificio& e) { PonerExistente(e, false); });
    PonerPanel();
  });
  columna->addWidget(tipo);
  for (const PanelImpresion cual :
       {PanelImpresion::PHE1, PanelImpresion::Pnuevo1, PanelImpresion::PExistente}) {
    auto* panel =
        new QGroupBox(cual == PanelImpresion::PHE1      ? tr("Verificación del DB-HE")
                      : cual == PanelImpresion::Pnuevo1 ? tr("Certificado de edificio nuevo")
                                                        : tr("Certificado de edificio existente"),
                      mandos_);
    panel->setObjectName(Q(NombrePanel(cual)));
    auto* botones = new QVBoxLayout(panel);
    for (const OrdenImpresion& orden : OrdenesImpresion()) {
      if (orden.panel != cual) continue;
      auto* boton = new QPushButton(QIcon(":/iconos/imprimir.svg"), Q(orden.rotulo), panel);
      boton->setObjectName(Q(orden.control));
      connect(boton, &QPushButton::clicked, this, [this, &orden] { Emitir(orden); });
      botones->addWidget(boton);
    }
    paneles_.push_back(panel);
    columna->addWidget(panel);
  }
  auto* administracion = new QGroupBox(tr("Fichero para la administración"), mandos_);
  auto* botones = new QVBoxLayout(administracion);
  const auto boton = [&](const char* nombre, const QString& texto, bool preguntar) {
    auto* orden = new QPushButton(texto, administracion);
    orden->setObjectName(nombre);
    connect(orden, &QPushButton::clicked, this, [this, preguntar] { Administracion(preguntar); });
    botones->addWidget(orden);
  };
  boton("BitBtn6", tr("Genera el fichero para la administración"), false);
  boton("Panel5", tr("Genera el fichero con otro nombre…"), true);
  columna->addWidget(administracion);
  return mandos_;
}

QWidget* TImpresor::CrearMandos() {
  auto* lado = new QWidget(this);
  lado->setFixedWidth(kAnchoMandos);
  auto* columna = new QVBoxLayout(lado);
  columna->setContentsMargins(0, 0, 0, 0);
  columna->addWidget(CrearPaneles());
  auto* avance = new QHBoxLayout;
  medidor_ = new QProgressBar(lado);
  medidor_->setRange(TareaImpresion::kAvanceInicial, TareaImpresion::kAvanceFinal);
  medidor_->setTextVisible(false);
  avance->addWidget(medidor_, 1);
  cancelar_ = new QPushButton(tr("Cancelar"), lado);
  connect(cancelar_, &QPushButton::clicked, this, [this] {
    if (!tarea_) return;
    tarea_->Cancelar();
    estado_->setText(tr("Cancelando…"));
  });
  avance->addWidget(cancelar_);
  columna->addLayout(avance);
  estado_ = new QLabel(lado);
  estado_->setObjectName("estado");
  estado_->setWordWrap(true);
  columna->addWidget(estado_);
  escrito_ = NuevaNota(lado);
  escrito_->setObjectName("escrito");
  columna->addWidget(escrito_);
  abrirPdf_ = new QPushButton(tr("Abrir el PDF"), lado);
  connect(abrirPdf_, &QPushButton::clicked, this,
          [this] { Abrir(documento_.pdf.empty() ? documento_.html : documento_.pdf); });
  abrirCarpeta_ = new QPushButton(tr("Abrir la carpeta"), lado);
  connect(abrirCarpeta_, &QPushButton::clicked, this,
          [this] { Abrir(std::filesystem::absolute(contexto_.Sesion().Fichero()).parent_path()); });
  auto* abrir = new QHBoxLayout;
  for (QPushButton* orden : {abrirPdf_, abrirCarpeta_}) abrir->addWidget(orden);
  columna->addLayout(abrir);
  columna->addStretch(1);
  columna->addWidget(Nota(kTextoSalidaPdf, lado));
  columna->addWidget(Nota(kTextoCausas, lado));
  auto* cerrar = new QPushButton(tr("Cerrar"), lado);
  connect(cerrar, &QPushButton::clicked, this, &TImpresor::reject);
  columna->addWidget(cerrar, 0, Qt::AlignRight);
  for (QPushButton* orden : {cancelar_, abrirPdf_}) orden->setEnabled(false);
  for (QPushButton* orden : findChildren<QPushButton*>()) orden->setAutoDefault(false);
  return lado;
}

QWidget* TImpresor::CrearVista() {
  vista_ = new QStackedWidget(this);
  auto* vacia = new QLabel(tr("Aquí se verá el documento"), vista_);
  vacia->setAlignment(Qt::AlignCenter);
  vacia->setProperty("papel", "nota");
  vista_->addWidget(vacia);
  auto* visor = new QScrollArea(vista_);
  visor->setWidgetResizable(true);
  visor->setBackgroundRole(QPalette::Mid);
  auto* papel = new QWidget;
  papel->setBackgroundRole(QPalette::Mid);
  hojas_ = new QVBoxLayout(papel);
  hojas_->setSpacing(12);
  visor->setWidget(papel);
  vista_->addWidget(visor);
  html_ = new QTextBrowser(vista_);
  html_->setOpenLinks(false);
  vista_->addWidget(html_);
  return vista_;
}

void TImpresor::PonerPanel() {
  const DatosGenerales& generales = contexto_.Caso().GetDatosGenerales();
  const std::string_view cual = NombrePanel(PanelDeImpresion(desdeVerificacion_, generales));
  for (QWidget* panel : paneles_) panel->setVisible(panel->objectName() == Q(cual));
  const bool nuevo = generales.Modo_trabajo == "Nuevo";
  nuevo_->setChecked(nuevo);
  existente_->setChecked(!nuevo);
}

void TImpresor::Empezar(TareaImpresion::Trabajo trabajo, std::function<void()> alAcabar) {
  if (tarea_) return;
  alAcabar_ = std::move(alAcabar);
  mandos_->setEnabled(false);
  cancelar_->setEnabled(true);
  escrito_->clear();
  estado_->setText(tr("Escribiendo…"));
  medidor_->setValue(TareaImpresion::kAvanceInicial);
  const GestorEdifActivo& gestor = contexto_.Sesion().Gestor();
  tarea_ =
      std::make_unique<TareaImpresion>(gestor, contexto_.Ficheros().Espacio(), std::move(trabajo));
  reloj_.start();
}

void TImpresor::Mirar() {
  medidor_->setValue(tarea_->Avance());
  cancelar_->setEnabled(tarea_->SePuedeCancelar());
  if (tarea_->Acabada()) Acabar();
}

void TImpresor::Acabar() {
  reloj_.stop();
  const std::unique_ptr<TareaImpresion> hecha = std::move(tarea_);
  mandos_->setEnabled(true);
  cancelar_->setEnabled(false);
  estado_->setText(hecha->Cancelada() ? tr("Cancelado: no se ha escrito nada") : QString());
  Mensajes& avisos = contexto_.Sesion().Avisos();
  if (!hecha->Fallo().empty()) avisos.Avisar("AVISO", hecha->Fallo());
  if (hecha->Cancelada() || !hecha->Fallo().empty()) return;
  alAcabar_();
  for (const Mensaje& aviso : hecha->Avisos()) avisos.Avisar(aviso.titulo, aviso.texto);
}

void TImpresor::Emitir(const OrdenImpresion& orden) {
  PedidoDocumento pedido;
  pedido.tipo = orden.tipo;
  pedido.clase = orden.clase;
  pedido.proyecto = contexto_.Sesion().Fichero();
  pedido.hilos = std::max(1U, std::thread::hardware_concurrency());
  documento_ = {};
  paginas_.clear();
  carpetaVista_ = std::make_unique<QTemporaryDir>();
  const std::filesystem::path vista = S(carpetaVista_->path());
  const std::string caso(contexto_.Sesion().Gestor().NombreActivo());
  Empezar(
      [this, pedido, vista, caso](GestorEdifActivo& gestor, Entorno& entorno) {
        documento_ = EmitirDocumento(gestor, caso, pedido, entorno);
        paginas_ = PaginasDePdf(documento_.pdf, vista);
      },
      [this] { AcabarDocumento(); });
}

void TImpresor::AcabarDocumento() {
  const bool escrito = !documento_.html.empty();
  abrirPdf_->setEnabled(escrito);
  abrirPdf_->setText(documento_.pdf.empty() ? tr("Abrir el documento") : tr("Abrir el PDF"));
  if (!escrito) {
    estado_->setText(tr("No se ha escrito el documento"));
    return;
  }
  medidor_->setValue(TareaImpresion::kAvanceFinal);
  estado_->setText(Q(kTextoDocumentoEscrito));
  escrito_->setText(Q(documento_.pdf.empty() ? documento_.html : documento_.pdf));
  Ensenar();
}

// Las páginas del PDF; sin él, o sin con qué dibujarlas, el HTML.
void TImpresor::Ensenar() {
  while (QLayoutItem* hoja = hojas_->takeAt(0)) {
    delete hoja->widget();
    delete hoja;
  }
  if (paginas_.empty()) {
    html_->setSource(QUrl::fromLocalFile(Q(documento_.html)));
    vista_->setCurrentIndex(kHtml);
    return;
  }
  for (const std::filesystem::path& pagina : paginas_) {
    auto* hoja = new QLabel(this);
    hoja->setObjectName("pagina");
    hoja->setPixmap(QPixmap(Q(pagina)));
    hoja->setAlignment(Qt::AlignCenter);
    hojas_->addWidget(hoja);
  }
  vista_->setCurrentIndex(kPaginas);
}

void TImpresor::Administracion(bool preguntarNombre) {
  PedidoAdministracion pedido;
  pedido.proyecto = contexto_.Sesion().Fichero();
  pedido.nombreElegido = preguntarNombre;
  pedido.codificacion = contexto_.Sesion().Codificacion();
  if (preguntarNombre) {
    const QString ruta = QFileDialog::getSaveFileName(this, tr("Fichero para la administración"),
                                                      Q(pedido.proyecto), "Proyectos (*.xml)");
    if (ruta.isEmpty()) return;
    pedido.proyecto = S(ruta);
  }
  // El programa ajeno, si está, lo hace a su modo; se arranca al acabar, que pide una pausa.
  const bool ajeno = HayExterno(contexto_.Ficheros().Espacio(), programaExterno::kConvertidor);
  if (ajeno)
    pedido.convertidor = [](const std::filesystem::path&, const std::filesystem::path&) {
      return true;
    };
  escritura_ = {};
  Empezar(
      [this, pedido](GestorEdifActivo& gestor, Entorno& entorno) {
        escritura_ = EscribirFicheroAdministracion(gestor, pedido, entorno);
      },
      [this] { AcabarAdministracion(); });
}

void TImpresor::AcabarAdministracion() {
  if (escritura_.fin != FinAdministracion::Escrito) {
    estado_->setText(tr("No se ha escrito el fichero"));
    return;
  }
  // El otro hilo ha guardado una copia de este proyecto, que mientras no se ha podido editar.
  contexto_.DarPorGuardado(escritura_.proyecto);
  medidor_->setValue(TareaImpresion::kAvanceFinal);
  estado_->setText(tr("Fichero escrito"));
  escrito_->setText(Q(escritura_.informe));
  const EspacioTrabajo& espacio = contexto_.Ficheros().Espacio();
  if (HayExterno(espacio, programaExterno::kConvertidor))
    LanzarFicheroAdministracion(espacio, escritura_.proyecto, contexto_.Sesion().Avisos());
}

void TImpresor::Abrir(const std::filesystem::path& ruta) {
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(Q(ruta))))
    estado_->setText(tr("El escritorio no tiene con qué abrirlo"));
}

// Cerrar mientras se escribe es cancelar y esperar a que pare.
void TImpresor::reject() {
  if (tarea_) {
    tarea_->Cancelar();
    estado_->setText(tr("Cancelando…"));
    return;
  }
  QDialog::reject();
}

void Imprimir(ContextoGui& contexto, const PedidoImpresion& pedido,
              const std::function<void()>& guardar, QWidget* padre) {
  SesionProyecto& sesion = contexto.Sesion();
  const auto avisos = AvisosPrevios(contexto.Caso());
  for (const Mensaje& aviso : avisos) sesion.Avisos().Avisar(aviso.titulo, aviso.texto);
  if (!avisos.empty()) {
    // La página del primer aviso: el de las pruebas previas si lo hay.
    const auto previos = MensajesPrevios(contexto.Caso());
    contexto.IrA(previos.empty() ? TodasLasComprobaciones(contexto.Caso()).back() : previos.back());
    return;
  }
  if (HayQueGuardarAntes(sesion)) {
    if (!sesion.Avisos().Preguntar("Imprimir",
                                   "Los documentos se escriben junto al proyecto, que todavía no "
                                   "está guardado. ¿Quiere guardarlo?"))
      return;
    guardar();
    if (HayQueGuardarAntes(sesion)) return;
  }
  TImpresor impresor(contexto, pedido.desdeVerificacion, padre);
  if (pedido.administracion)
    QTimer::singleShot(0, &impresor, [&impresor] { impresor.Administracion(false); });
  impresor.exec();
}

}  // namespace novex::gui
