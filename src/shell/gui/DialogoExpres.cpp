#include "shell/gui/DialogoExpres.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include "base/NumeroTexto.h"
#include "entry/DescripcionExpres.h"
#include "model/CatalogoCampos.h"
#include "reference/ValoresDefectoU.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kEsperaMs = 150;
constexpr int kAnchoCifra = 62;
constexpr int kPlantasMaximas = 200;
constexpr int kUnifamiliar = 0;
constexpr std::array<const char*, kSectores> kRotulosSector = {"N", "O", "SO", "S", "SE", "E"};
constexpr std::array<std::string_view, 2> kRepartos = {"Individdual", "Colectiva"};

QString Ayuda(const QString& clave) {
  const CampoCatalogo* campo = BuscarCampo(S(clave));
  if (campo == nullptr || clave == "Cualquiera") return {};
  return QObject::tr("De %1 a %2 %3")
      .arg(Q(General(campo->minimo)), Q(General(campo->maximo)), Q(campo->unidad));
}

bool HayAlgo(const QLineEdit* linea) {
  return !linea->text().trimmed().isEmpty();
}

// Lo que no ha tecleado el usuario se puede proponer otra vez.
std::string SoloTecleado(const QLineEdit* linea) {
  return linea->isModified() ? S(linea->text().trimmed()) : std::string();
}

template <class Enum>
Enum Eleccion(const QComboBox* lista) {
  return static_cast<Enum>(std::max(0, lista->currentIndex()));
}

// Un apartado: su título y, debajo, lo que lleve dentro.
QWidget* Apartado(const QString& titulo, QWidget* dentro, QWidget* padre) {
  auto* caja = new QWidget(padre);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 18, 0);
  columna->setSpacing(4);
  auto* etiqueta = new QLabel(titulo, caja);
  etiqueta->setProperty("papel", "seccion");
  columna->addWidget(etiqueta);
  dentro->setParent(caja);
  dentro->layout()->setContentsMargins(0, 0, 0, 0);
  columna->addWidget(dentro);
  columna->addStretch(1);
  return caja;
}

UnidadesPorSector Textos(const std::array<QLineEdit*, kSectores>& lineas) {
  UnidadesPorSector textos;
  for (std::size_t s = 0; s < kSectores; ++s) textos[s] = S(lineas[s]->text().trimmed());
  return textos;
}

}  // namespace

DialogoExpres::DialogoExpres(ContextoGui& contexto, QWidget* padre)
    : QDialog(padre), contexto_(contexto), perfil_(contexto.Caso().GetDatosGenerales().PerfilUso) {
  setWindowTitle(tr("Definición exprés"));
  RegistroMensajes callados;
  catalogo_ = std::make_unique<CatalogoEquipos>(
      contexto_.Ficheros().Xml("Equipos.xml", "EquiposNovex"), callados);
  auto* columna = new QVBoxLayout(this);
  auto* titulo = new QLabel(tr("Asistente mágico"), this);
  titulo->setProperty("papel", "titulo");
  columna->addWidget(titulo);
  auto* arriba = new QHBoxLayout;
  arriba->addWidget(CajaEdificio());
  arriba->addWidget(CajaHorizontales());
  arriba->addWidget(CajaInstalacion());
  columna->addLayout(arriba);
  columna->addWidget(CajaFachadas());
  columna->addWidget(CajaResultado(), 1);
  auto* botones = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  botones->button(QDialogButtonBox::Ok)->setText(tr("Aceptar"));
  botones->button(QDialogButtonBox::Ok)->setObjectName("aceptar");
  botones->button(QDialogButtonBox::Cancel)->setText(tr("Cancelar"));
  connect(botones, &QDialogButtonBox::accepted, this, &DialogoExpres::accept);
  connect(botones, &QDialogButtonBox::rejected, this, &DialogoExpres::reject);
  columna->addWidget(botones);
  espera_.setSingleShot(true);
  espera_.setInterval(kEsperaMs);
  connect(&espera_, &QTimer::timeout, this, &DialogoExpres::Previsualizar);
  LlenarInstalaciones();
  Previsualizar();
  resize(1000, 640);
}

DialogoExpres::~DialogoExpres() = default;

QLineEdit* DialogoExpres::Linea(const QString& nombre, const QString& valor, const QString& clave) {
  auto* linea = new QLineEdit(valor, this);
  linea->setObjectName(nombre);
  linea->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  linea->setMinimumWidth(kAnchoCifra - 14);
  linea->setMaximumWidth(kAnchoCifra + 18);
  linea->setPlaceholderText("0");
  linea->setToolTip(Ayuda(clave));
  connect(linea, &QLineEdit::textChanged, this, &DialogoExpres::Pedir);
  return linea;
}

QComboBox* DialogoExpres::Lista(const QString& nombre, std::span<const std::string_view> textos) {
  auto* lista = new QComboBox(this);
  lista->setObjectName(nombre);
  for (const std::string_view texto : textos) lista->addItem(Q(texto));
  connect(lista, &QComboBox::currentIndexChanged, this, &DialogoExpres::Pedir);
  // Lo que elige el usuario no se propone.
  connect(lista, &QComboBox::activated, lista, [lista] { lista->setProperty("elegida", true); });
  return lista;
}

QWidget* DialogoExpres::CajaEdificio() {
  auto* caja = new QWidget(this);
  auto* formulario = new QFormLayout(caja);
  superficie_ = Linea("superficie", "100", "Area");
  formulario->addRow(tr("Suelo habitable (m2)"), superficie_);
  volumen_ = Linea("volumen", "300", "Volumen");
  formulario->addRow(tr("Volumen total (m3)"), volumen_);
  periodo_ = Lista("periodo", kPeriodosConstruccion);
  periodo_->setCurrentText("Despues_2019");
  formulario->addRow(tr("Periodo construcción"), periodo_);
  if (!EsResidencial()) {
    aire_ = Lista("aire", kCalidadesAire);
    aire_->setCurrentText("IDA2");
    aire_->setToolTip(tr("Calidad del aire interior (RITE, IT 1.1.4.2.2)"));
    formulario->addRow(tr("Calidad del aire"), aire_);
    return Apartado(tr("Edificio"), caja, this);
  }
  if (perfil_ != kUnifamiliar) {
    viviendas_ = Linea("viviendas", "10", "Entero1");
    formulario->addRow(tr("Número viviendas del bloque"), viviendas_);
  }
  dormitorios_ = Linea("dormitorios", "3", "DormitoriosDobles");
  formulario->addRow(tr("nº dormitorios/vivienda "), dormitorios_);
  banos_ = Linea("banos", "1", "CuartoBano");
  formulario->addRow(tr("nº cuartos baño/vivienda "), banos_);
  ventilacion_ = Linea("ventilacion", "0,63", "Renov");
  formulario->addRow(tr("Ventilación (renov/h)"), ventilacion_);
  return Apartado(tr("Edificio"), caja, this);
}

QWidget* DialogoExpres::CajaHorizontales() {
  auto* caja = new QWidget(this);
  auto* formulario = new QFormLayout(caja);
  const auto conTipo = [&](const QString& rotulo, QLineEdit* area, QComboBox* tipo) {
    auto* fila = new QHBoxLayout;
    fila->addWidget(area);
    fila->addWidget(new QLabel("m²", caja));
    fila->addWidget(tipo, 1);
    formulario->addRow(rotulo, fila);
  };
  cubierta_ = Linea("cubierta", "100", "Area");
  tipoCubierta_ = Lista("tipoCubierta", kCubiertasExpres);
  conTipo(tr("Cubierta"), cubierta_, tipoCubierta_);
  suelo_ = Linea("suelo", "100", "Area");
  tipoSuelo_ = Lista("tipoSuelo", kSuelosExpres);
  conTipo(tr("Suelo"), suelo_, tipoSuelo_);
  auto* otros = new QLabel(tr("Otros muros (m²)"), caja);
  otros->setProperty("papel", "seccion");
  formulario->addRow(otros);
  medianeras_ = Linea("medianeras", {}, "Area");
  formulario->addRow(tr("Medianeras"), medianeras_);
  local_ = Linea("localNoAcondicionado", {}, "Area");
  formulario->addRow(tr("A local no acond."), local_);
  return Apartado(tr("Opacos horizontales"), caja, this);
}

QWidget* DialogoExpres::CajaInstalacion() {
  auto* caja = new QWidget(this);
  auto* formulario = new QFormLayout(caja);
  if (perfil_ != kUnifamiliar) {
    reparto_ = Lista("reparto", kRepartos);
    formulario->addRow(tr("Instalación"), reparto_);
    connect(reparto_, &QComboBox::currentIndexChanged, this, &DialogoExpres::LlenarInstalaciones);
  }
  instalacion_ = Lista("instalacion", {});
  instalacion_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  formulario->addRow(tr("Generador"), instalacion_);
  if (contexto_.Caso().GetDatosGenerales().Modo_Vision == "Simplificado") {
    fotovoltaica_ = Linea("fotovoltaica", {}, "Cualquiera");
    fotovoltaica_->setToolTip(tr("Potencia de pico, con 30º de inclinación"));
    formulario->addRow(tr("Fotovoltaica (kW pico)"), fotovoltaica_);
  }
  auto* nota = new QLabel(Q(kAvisosExpres[1]), caja);
  nota->setProperty("papel", "nota");
  nota->setWordWrap(true);
  formulario->addRow(nota);
  return Apartado(tr("Agua caliente"), caja, this);
}

DialogoExpres::Unidades DialogoExpres::FilaSectores(QGridLayout* rejilla, int fila,
                                                    const QString& nombre, const QString& clave) {
  Unidades lineas{};
  for (std::size_t s = 0; s < kSectores; ++s) {
    lineas[s] = Linea(nombre + kRotulosSector[s], {}, clave);
    lineas[s]->setAccessibleName(nombre + " " + kRotulosSector[s]);
    rejilla->addWidget(lineas[s], fila, static_cast<int>(s) + 1);
  }
  return lineas;
}

DialogoExpres::LineaHuecos DialogoExpres::FilaHuecos(QGridLayout* rejilla, int fila,
                                                     const QString& nombre) {
  LineaHuecos linea;
  linea.unidades = FilaSectores(rejilla, fila, nombre, "NVentanas");
  linea.ancho = Linea(nombre + "Ancho", {}, "Long");
  linea.alto = Linea(nombre + "Alto", {}, "Long");
  rejilla->addWidget(linea.ancho, fila, 7);
  rejilla->addWidget(linea.alto, fila, 8);
  return linea;
}

QWidget* DialogoExpres::CajaFachadas() {
  auto* caja = new QWidget(this);
  auto* rejilla = new QGridLayout(caja);
  rejilla->setHorizontalSpacing(4);
  rejilla->setVerticalSpacing(3);
  const auto cabecera = [&](const QString& texto, int columna) {
    auto* etiqueta = new QLabel(texto, caja);
    etiqueta->setProperty("papel", "nota");
    rejilla->addWidget(etiqueta, 0, columna, Qt::AlignCenter);
  };
  for (std::size_t s = 0; s < kSectores; ++s) cabecera(kRotulosSector[s], static_cast<int>(s) + 1);
  cabecera(tr("ancho (m)"), 7);
  cabecera(tr("alto (m)"), 8);
  cabecera(tr("vidrio"), 9);
  cabecera(tr("protección"), 10);
  const auto rotulo = [&](const QString& texto, int fila) {
    rejilla->addWidget(new QLabel(texto, caja), fila, 0);
  };
  int fila = 1;
  rotulo(tr("Opaco+huecos         (m2)"), fila);
  fachada_ = FilaSectores(rejilla, fila++, "fachada", "Area");
  for (std::size_t i = 0; i < kVidriosMaximos; ++i, ++fila) {
    rotulo(tr("Vidrios tipo %1").arg(i + 1), fila);
    const QString nombre = QString("vidrio%1").arg(i + 1);
    LineaHuecos& linea = vidrios_[i] = FilaHuecos(rejilla, fila, nombre);
    linea.clase = Lista(nombre + "Clase", kVidriosExpres);
    linea.clase->setCurrentText("Doble");
    linea.proteccion = Lista(nombre + "Proteccion", kProteccionesExpres);
    rejilla->addWidget(linea.clase, fila, 9);
    rejilla->addWidget(linea.proteccion, fila, 10);
  }
  rotulo(tr("Puerta"), fila);
  puerta_ = FilaHuecos(rejilla, fila, "puerta");
  puerta_.clase = Lista("puertaClase", kPuertasExpres);
  rejilla->addWidget(puerta_.clase, fila, 9, 1, 2);
  auto* ayuda = new QHBoxLayout;
  auto* proponer = new QPushButton(tr("Proponer lo que falta"), caja);
  proponer->setObjectName("proponer");
  proponer->setAutoDefault(false);
  proponer->setToolTip(
      tr("Da una forma de edificio según el uso y las plantas, con un quinto de la "
         "fachada de huecos. Lo tecleado no cambia."));
  connect(proponer, &QPushButton::clicked, this, &DialogoExpres::Proponer);
  plantas_ = new QSpinBox(caja);
  plantas_->setObjectName("plantas");
  plantas_->setRange(0, kPlantasMaximas);
  plantas_->setSpecialValueText(tr("según el uso"));
  ayuda->addWidget(proponer);
  ayuda->addSpacing(8);
  ayuda->addWidget(new QLabel(tr("con plantas:"), caja));
  ayuda->addWidget(plantas_);
  ayuda->addStretch(1);
  rejilla->addLayout(ayuda, fila + 1, 0, 1, 11);
  rejilla->setColumnStretch(11, 1);
  return Apartado(tr("Fachadas y huecos"), caja, this);
}

QWidget* DialogoExpres::CajaResultado() {
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 4, 0, 0);
  const auto etiqueta = [&](const char* papel, const char* nombre) {
    auto* texto = new QLabel(caja);
    texto->setProperty("papel", papel);
    texto->setObjectName(nombre);
    texto->setWordWrap(true);
    columna->addWidget(texto);
    return texto;
  };
  etiqueta("seccion", "resulta")->setText(tr("Lo que resulta"));
  frase_ = etiqueta("resultado", "frase");
  avisos_ = etiqueta("aviso", "avisos");
  supuestos_ = etiqueta("nota", "supuestos");
  supuestos_->hide();
  QLabel* notas = etiqueta("nota", "notas");
  notas->setText(Q(kAvisosExpres[0]) + ".\n" + Q(kAvisosExpres[2]) + ".");
  columna->addStretch(1);
  return caja;
}

void DialogoExpres::LlenarInstalaciones() {
  const bool colectiva = reparto_ != nullptr && reparto_->currentIndex() == 1;
  const QString habia = instalacion_->currentText();
  instalacion_->clear();
  for (const std::string_view texto : InstalacionesExpres(perfil_, colectiva))
    instalacion_->addItem(Q(texto));
  instalacion_->setCurrentIndex(std::max(0, instalacion_->findText(habia)));
}

EntradaExpres DialogoExpres::Entrada() const {
  EntradaExpres e;
  const auto texto = [](const QLineEdit* linea) { return S(linea->text().trimmed()); };
  e.volumen = texto(volumen_);
  e.superficie = texto(superficie_);
  e.periodo = S(periodo_->currentText());
  // En los usos que no la preguntan es una sola.
  e.viviendas = viviendas_ != nullptr ? texto(viviendas_) : "1";
  if (dormitorios_ != nullptr) {
    e.dormitorios = texto(dormitorios_);
    e.banos = texto(banos_);
    e.ventilacion = texto(ventilacion_);
  }
  e.fachada = Textos(fachada_);
  e.medianeras = texto(medianeras_);
  e.aLocalNoAcondicionado = texto(local_);
  e.cubierta = texto(cubierta_);
  e.suelo = texto(suelo_);
  e.tipoCubierta = Eleccion<CubiertaExpres>(tipoCubierta_);
  e.tipoSuelo = Eleccion<SueloExpres>(tipoSuelo_);
  for (const LineaHuecos& linea : vidrios_) {
    const bool hay = HayAlgo(linea.ancho) || HayAlgo(linea.alto) ||
                     std::any_of(linea.unidades.begin(), linea.unidades.end(), HayAlgo);
    if (!hay) continue;
    e.vidrios.push_back({Textos(linea.unidades), texto(linea.ancho), texto(linea.alto),
                         Eleccion<VidrioExpres>(linea.clase),
                         Eleccion<ProteccionExpres>(linea.proteccion)});
  }
  e.puertas = Textos(puerta_.unidades);
  e.anchoPuerta = texto(puerta_.ancho);
  e.altoPuerta = texto(puerta_.alto);
  e.puerta = Eleccion<PuertaExpres>(puerta_.clase);
  if (fotovoltaica_ != nullptr) e.fotovoltaica = texto(fotovoltaica_);
  if (aire_ != nullptr) e.calidadAire = S(aire_->currentText());
  e.instalacion = S(instalacion_->currentText());
  e.colectiva = reparto_ != nullptr && reparto_->currentIndex() == 1;
  return e;
}

void DialogoExpres::Proponer() {
  SupuestosExpres s;
  s.entrada = Entrada();
  EntradaExpres& e = s.entrada;
  s.plantas = plantas_->value();
  s.conTipoCubierta = tipoCubierta_->property("elegida").toBool();
  s.conTipoSuelo = tipoSuelo_->property("elegida").toBool();
  s.conInstalacion = true;
  e.volumen = SoloTecleado(volumen_);
  e.cubierta = SoloTecleado(cubierta_);
  e.suelo = SoloTecleado(suelo_);
  e.medianeras = SoloTecleado(medianeras_);
  if (viviendas_ != nullptr) e.viviendas = SoloTecleado(viviendas_);
  const auto tecleadas = [](const Unidades& lineas) {
    return std::any_of(lineas.begin(), lineas.end(),
                       [](const QLineEdit* l) { return l->isModified() && HayAlgo(l); });
  };
  for (std::size_t i = 0; i < kSectores; ++i) e.fachada[i] = SoloTecleado(fachada_[i]);
  s.conVidrios = std::any_of(vidrios_.begin(), vidrios_.end(),
                             [&](const LineaHuecos& linea) { return tecleadas(linea.unidades); });
  s.conPuerta = tecleadas(puerta_.unidades);
  if (!s.conPuerta) e.puertas = {};
  const std::vector<std::string> lineas = CompletarExpres(s, perfil_);
  Poner(e);
  QStringList supuestos;
  for (const std::string& linea : lineas) supuestos << Q(linea);
  supuestos_->setText(tr("Se ha supuesto: ") + supuestos.join(" · "));
  supuestos_->show();
}

void DialogoExpres::Poner(const EntradaExpres& e) {
  const auto poner = [](QLineEdit* linea, const std::string& texto) {
    // Lo tecleado se queda como está, con su marca.
    if (linea != nullptr && linea->text().trimmed() != Q(texto)) linea->setText(Q(texto));
  };
  poner(volumen_, e.volumen);
  poner(viviendas_, e.viviendas);
  poner(medianeras_, e.medianeras);
  poner(cubierta_, e.cubierta);
  poner(suelo_, e.suelo);
  tipoCubierta_->setCurrentIndex(static_cast<int>(e.tipoCubierta));
  tipoSuelo_->setCurrentIndex(static_cast<int>(e.tipoSuelo));
  for (std::size_t i = 0; i < kSectores; ++i) poner(fachada_[i], e.fachada[i]);
  for (std::size_t v = 0; v < e.vidrios.size() && v < kVidriosMaximos; ++v) {
    const GrupoExpres& grupo = e.vidrios[v];
    for (std::size_t i = 0; i < kSectores; ++i)
      poner(vidrios_[v].unidades[i], grupo.unidades[i] == "0" ? "" : grupo.unidades[i]);
    poner(vidrios_[v].ancho, grupo.ancho);
    poner(vidrios_[v].alto, grupo.alto);
    vidrios_[v].clase->setCurrentIndex(static_cast<int>(grupo.vidrio));
    vidrios_[v].proteccion->setCurrentIndex(static_cast<int>(grupo.proteccion));
  }
  for (std::size_t i = 0; i < kSectores; ++i) poner(puerta_.unidades[i], e.puertas[i]);
  poner(puerta_.ancho, e.anchoPuerta);
  poner(puerta_.alto, e.altoPuerta);
  puerta_.clase->setCurrentIndex(static_cast<int>(e.puerta));
}

void DialogoExpres::Definir(Edificio& edificio, Mensajes& mensajes) const {
  DefinirExpres(edificio, Entrada(),
                contexto_.Ficheros().Xml("ValoresDefectoU.xml", "ValoresDefectoU"), catalogo_.get(),
                mensajes);
}

void DialogoExpres::Previsualizar() {
  const auto copia = contexto_.Caso().Clonar();
  RegistroMensajes mensajes;
  Definir(*copia, mensajes);
  frase_->setText(Q(DescribirExpres(*copia)));
  QStringList lineas;
  for (const Mensaje& mensaje : mensajes.recibidos)
    if (!lineas.contains(Q(mensaje.texto))) lineas << Q(mensaje.texto);
  avisos_->setText(lineas.join("\n"));
  avisos_->setVisible(!lineas.isEmpty());
}

void DialogoExpres::accept() {
  RegistroMensajes mensajes;
  contexto_.Editar(tr("definición exprés"), [&](Edificio& e) { Definir(e, mensajes); });
  QDialog::accept();
  for (const Mensaje& mensaje : mensajes.recibidos)
    contexto_.Sesion().Avisos().Avisar(mensaje.titulo, mensaje.texto);
}

}  // namespace novex::gui
