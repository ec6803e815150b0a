#include "shell/gui/PaginaSitio.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "demand/FicheroMet.h"
#include "entry/Sitio.h"
#include "shell/gui/BuscadorMunicipio.h"
#include "shell/gui/Filas.h"
#include "shell/gui/FranjaMeses.h"
#include "shell/gui/RosaObstaculos.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr const char* kSi = "SI";
constexpr std::array<const char*, 12> kMeses = {"enero",      "febrero", "marzo",     "abril",
                                                "mayo",       "junio",   "julio",     "agosto",
                                                "septiembre", "octubre", "noviembre", "diciembre"};

// Los meses de verano en una frase; el primero y el último valen los dos.
QString FraseVerano(const Localizacion& lugar) {
  int primero = 0, ultimo = 0;
  for (int m = 1; m <= 12; ++m)
    if (lugar.EsVerano(m)) {
      if (primero == 0) primero = m;
      ultimo = m;
    }
  if (primero == 0) return QObject::tr("Ningún mes se toma como verano");
  return QObject::tr("Verano de %1 a %2, los dos incluidos")
      .arg(Q(kMeses[static_cast<std::size_t>(primero - 1)]),
           Q(kMeses[static_cast<std::size_t>(ultimo - 1)]));
}

}  // namespace

PaginaSitio::PaginaSitio(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(20, 8, 20, 16);
  auto* cajas = new DosColumnas(this);
  cajas->AnadirIzquierda(CajaLugar());
  cajas->AnadirIzquierda(CajaVerano());
  cajas->AnadirDerecha(CajaZona());
  cajas->AnadirDerecha(CajaEntorno());
  columna->addWidget(cajas);
  columna->addStretch(1);
}

const CatalogoMunicipios& PaginaSitio::Municipios() {
  if (!municipios_)
    municipios_.emplace(
        contexto_.Ficheros().Xml("ZONACLIMATICATEMPYRAD.xml", "ZONACLIMATICATEMPYRAD"));
  return *municipios_;
}

const XMLNode& PaginaSitio::Capitales() {
  return contexto_.Ficheros().Xml("Capitales.xml", "CAPITALES");
}

QWidget* PaginaSitio::CajaLugar() {
  const auto [caja, filas] = NuevaCaja(tr("Emplazamiento"), this);
  filasLugar_ = filas;
  buscador_ = new BuscadorMunicipio(
      filas, [this]() -> const CatalogoMunicipios& { return Municipios(); }, this);
  connect(buscador_, &BuscadorMunicipio::Elegido, this,
          [this](const QString& provincia, const QString& municipio) {
            contexto_.Editar(tr("Municipio"), [&](Edificio& e) {
              PonerMunicipio(e, Municipios(), Capitales(), S(provincia), S(municipio), false,
                             contexto_.Sesion().Avisos());
            });
          });
  enlaces_.Propio("Provincia", buscador_->EditorProvincia(), tr("Acota la lista de municipios"));
  enlaces_.Propio("Municipio", buscador_->EditorMunicipio(),
                  tr("Da la altitud, la latitud y la zona climática (DB-HE, anejo B)"));
  OpcionesCampo altitud =
      Opciones(tr("Altitud"), tr("Sobre el nivel del mar; cambia la zona climática"));
  altitud.poner = [this](Edificio& e, std::string_view texto, Mensajes& mensajes) {
    PonerAltitud(e, Capitales(), texto, mensajes);
  };
  enlaces_.Linea(filas, "asnm", altitud);
  notaAltitud_ = NotaCorta(caja);
  filas->addRow(QString(), notaAltitud_);
  enlaces_.Linea(filas, "latitud", Opciones(tr("Latitud"), tr("Norte positiva")));
  return caja;
}

QWidget* PaginaSitio::CajaZona() {
  const auto [caja, filas] = NuevaCaja(tr("Clima"), this);
  filasClima_ = filas;
  zona_ = new QLabel(caja);
  zona_->setProperty("papel", "titulo");
  zona_->setObjectName("Zona");
  zona_->setToolTip(tr("CTE DB-HE, anejo B"));
  filas->addRow(tr("Zona climática"), zona_);
  OpcionesCampo fijar = Opciones(tr("Modificar Zona climática"),
                                 tr("La zona se elige en la lista y nada la vuelve a calcular"));
  fijar.poner = [this](Edificio& e, std::string_view texto, Mensajes&) {
    if (texto == kSi)
      FijarZona(e, e.GetLocalizacion().ZonaClimatica);
    else
      SoltarZona(e, Municipios(), Capitales());
  };
  enlaces_.Casilla(filas, "Cambio_zona_temperatura", fijar, kSi, "NO");
  OpcionesCampo zona = Opciones(tr("Zona elegida"), tr("CTE DB-HE, anejo B"));
  zona.poner = [](Edificio& e, std::string_view texto, Mensajes&) { FijarZona(e, texto); };
  enlaces_.Lista(filas, "ZonaClimatica", Textos(kZonasMet), zona);
  notaZona_ = NotaCorta(caja);
  filas->addRow(QString(), notaZona_);
  radiacion_ = new QLabel(caja);
  radiacion_->setToolTip(tr("Zona de radiación solar del municipio, de I a V (CTE DB-HE4)"));
  filas->addRow(tr("Zona de radiación"), radiacion_);
  FilaJuegoClima(filas);
  notaClima_ = NuevaNota(caja);
  filas->addRow(QString(), notaClima_);
  faltaClima_ = NuevaNota(caja, "aviso");
  filas->addRow(QString(), faltaClima_);
  return caja;
}

void PaginaSitio::FilaJuegoClima(QFormLayout* filas) {
  OpcionesCampo juego = Opciones(tr("Datos de clima"),
                                 tr("El año de clima con que se calcula. Los que no son el oficial "
                                    "dejan su marca en el código postal"));
  juego.leer = [](const Edificio& e) { return std::string(JuegoClima(e.GetDatosGenerales())); };
  juego.poner = [this](Edificio& e, std::string_view texto, Mensajes& mensajes) {
    if (!PonerJuegoClima(e, texto)) return;
    const Localizacion lugar = e.GetLocalizacion();
    PonerMunicipio(e, Municipios(), Capitales(), lugar.Provincia, lugar.Municipio, true, mensajes);
  };
  enlaces_.Lista(filas, "JuegoClima", Textos(kJuegosClima), juego);
}

QWidget* PaginaSitio::CajaVerano() {
  const auto [caja, filas] = NuevaCaja(tr("Meses considerados verano"), this);
  std::vector<std::string> valores, desde = {"antes de enero"}, hasta = {"ninguno"};
  for (int m = 0; m <= 13; ++m) valores.push_back(std::to_string(m));
  for (const char* mes : kMeses) {
    desde.emplace_back(mes);
    hasta.emplace_back(mes);
  }
  desde.emplace_back("ninguno");
  hasta.emplace_back("después de diciembre");
  const QString ayuda = tr("En ellos actúan las sombras móviles y las ventanas abiertas de noche");
  enlaces_.Lista(filas, "mesmin", valores, Opciones(tr("Primer mes"), ayuda), desde);
  enlaces_.Lista(filas, "mesmax", valores, Opciones(tr("Último mes"), ayuda), hasta);
  meses_ = new FranjaMeses(caja);
  filas->addRow(QString(), meses_);
  notaVerano_ = NotaCorta(caja);
  filas->addRow(QString(), notaVerano_);
  return caja;
}

QWidget* PaginaSitio::CajaEntorno() {
  const auto [caja, filas] = NuevaCaja(tr("Obstáculos remotos"), this);
  rosa_ = new RosaObstaculos(caja);
  rosa_->setMinimumHeight(190);
  filas->addRow(rosa_);
  auto* donde = NotaCorta(caja);
  donde->setObjectName("irAEntorno");
  donde->setText(tr("Se ponen en <a href=\"#\">Edificio › CiudadEntorno</a>"));
  connect(donde, &QLabel::linkActivated, this,
          [this] { contexto_.IrA(novex::PaginaProyecto::CiudadEntorno); });
  filas->addRow(donde);
  return caja;
}

void PaginaSitio::RefrescarNotas() {
  const Localizacion& lugar = contexto_.Caso().GetLocalizacion();
  const Municipio* fila = Municipios().Exacto(lugar.Provincia, lugar.Municipio);
  if (fila == nullptr)
    notaAltitud_->setText(tr("El municipio no está en la lista: elija uno para tener sus datos"));
  else
    notaAltitud_->setText(tr("La del municipio es de %1 m").arg(fila->altitud));
  MostrarFila(filasLugar_, notaAltitud_, fila == nullptr || fila->altitud != lugar.asnm);
  const bool fijada = lugar.Cambio_zona_temperatura == kSi;
  zona_->setText(Q(lugar.ZonaClimatica));
  MostrarFila(filasClima_, enlaces_.Editor("ZonaClimatica"), fijada);
  notaZona_->setText(
      fijada && fila != nullptr
          ? tr("Fijada por usted. La del municipio es %1").arg(Q(fila->ZonaClimatica()))
          : tr("La da el municipio, o la altitud si no es la de él"));
  radiacion_->setText(lugar.zona_radiante.empty() ? QString("–") : Q(lugar.zona_radiante));
  const DatosGenerales& g = contexto_.Caso().GetDatosGenerales();
  const bool oficial = JuegoClima(g) == kJuegosClima.front();
  notaClima_->setText(
      tr("El código postal del edificio guarda la marca «%1»").arg(Q(g.CodigoPostal)));
  MostrarFila(filasClima_, notaClima_, !oficial);
  const auto ruta = contexto_.Ficheros().Espacio().Clima(lugar.ZonaClimatica, g.CodigoPostal);
  std::error_code fallo;
  faltaClima_->setText(
      tr("No está el año de clima %1: no se puede calcular").arg(Q(ruta.filename())));
  MostrarFila(filasClima_, faltaClima_, !std::filesystem::exists(ruta, fallo));
}

void PaginaSitio::Refrescar() {
  Pagina::Refrescar();
  const Edificio& e = contexto_.Caso();
  const Localizacion& lugar = e.GetLocalizacion();
  buscador_->Poner(Q(lugar.Provincia), Q(lugar.Municipio));
  RefrescarNotas();
  std::array<bool, 13> verano{};
  for (int m = 1; m <= 12; ++m) verano[static_cast<std::size_t>(m)] = lugar.EsVerano(m);
  meses_->Poner(verano);
  notaVerano_->setText(FraseVerano(lugar));
  rosa_->Poner(e.GetObstaculosRemotos(), static_cast<double>(lugar.latitud));
}

}  // namespace novex::gui
