#include "entry/DimensionadoSistema.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "entry/ListasSistemas.h"
#include "rating/LimitesHueco.h"

namespace novex {
namespace {

// Valores de `PerfilUso`.
constexpr int kEdificiosEnBloque = 1;
constexpr int kViviendaEnBloque = 2;

// Punta de calefacción por letra, de A a E, W/m2.
constexpr std::array<double, 5> kCalefaccionLetra = {35, 45, 50, 55, 60};
constexpr double kCalefaccionAlfa = 10;
// Punta de refrigeración por número, de 1 a 4, W/m2.
constexpr std::array<double, 4> kRefrigeracionNumero = {40, 40, 50, 60};
constexpr double kFactorSensible = 0.7;

constexpr double kCpAgua = 4.18;  // kJ/kg°C
constexpr double kSegundosHora = 3600;
constexpr double kWPorKW = 0.001;         // kW/W
constexpr double kSaltoACS = 45;          // °C que sube el agua de consumo
constexpr double kFraccionConsumo = 0.5;  // del consumo del día, en la hora punta
constexpr double kAirePorPotencia = 250;  // m3/h por kW

constexpr double kInversoRetorno = 0.1196172;  // 1/(cp × 2 °C), kg/kJ
constexpr double kAmbienteRetorno = 20;        // °C
constexpr double kRetornoMinimo = 250;         // l/h

constexpr double kPerdidaDeposito = 1.01;       // W/m2°C
constexpr double kInversoVolumen = 0.07961783;  // 1/(4π): volumen de un cilindro de altura 4r
constexpr double kDosPi = 6.28;
constexpr double kLongitudMinima = 15;  // m

double D(float x) {
  return static_cast<double>(x);
}
double Cociente(double a, double b) {
  return b == 0 ? 0 : a / b;
}

}  // namespace

double PuntaCalefaccionZona(std::string_view zona) {
  if (zona.starts_with("alfa")) return kCalefaccionAlfa;
  return kCalefaccionLetra[static_cast<std::size_t>(LetraInvierno(zona) - 'A')];
}

double PuntaRefrigeracionZona(std::string_view zona) {
  const std::size_t donde = zona.find_first_of("1234");
  if (donde == std::string_view::npos) return kRefrigeracionNumero.front();
  return kRefrigeracionNumero[static_cast<std::size_t>(zona[donde] - '1')];
}

double SuperficieDimensionado(const Edificio& edificio) {
  return std::max(0.0, D(edificio.GetRecinto(0).Suelo_habitable_m2));
}

UnidadesSistema UnidadesDe(const Edificio& edificio, std::string_view tipologia) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  UnidadesSistema u;
  if (g.PerfilUso == kEdificiosEnBloque && tipologia == kIndividual)
    u.individuales = std::max(0, edificio.GetVentilacion().NumeroViviendas());
  if (g.PerfilUso == kViviendaEnBloque && tipologia == kCentralizada)
    u.delBloque = std::max(0.0, D(g.NVBloqueF));
  return u;
}

CargasPunta CargasPuntaDe(const Edificio& edificio, std::string_view tipologia) {
  const UnidadesSistema u = UnidadesDe(edificio, tipologia);
  const std::string& zona = edificio.GetLocalizacion().ZonaClimatica;
  const double area = SuperficieDimensionado(edificio);
  const double litros = std::max(0.0, D(edificio.GetDatosGenerales().ConsumoAgua_litros_dia));
  // Uno de los dos números de viviendas es siempre 1.
  const auto porEquipo = [&u](double kW) { return Cociente(kW * u.delBloque, u.individuales); };
  CargasPunta cargas;
  cargas.calefaccion = porEquipo(area * kWPorKW * PuntaCalefaccionZona(zona));
  cargas.refrigeracion = porEquipo(area * kWPorKW * PuntaRefrigeracionZona(zona));
  cargas.acs = porEquipo(litros * kFraccionConsumo * kCpAgua * kSaltoACS / kSegundosHora);
  return cargas;
}

double PotenciaDimensionado(TipoSistema tipo, const CargasPunta& cargas) {
  const double frio = DaRefrigeracion(tipo) ? cargas.refrigeracion / kFactorSensible : 0;
  double calor = DaCalefaccion(tipo) ? cargas.calefaccion : 0;
  if (DaACS(tipo)) calor += cargas.acs;
  return std::max(frio, calor);
}

double CaudalDeAgua(double potencia, double salto) {
  return Cociente(potencia * kSegundosHora, kCpAgua * salto);
}

double CaudalDeAire(double potencia) {
  return kAirePorPotencia * potencia;
}

double CaudalDeRetorno(double longitud, double perdida, double impulsion) {
  const double perdidas = longitud * perdida * kWPorKW * (impulsion - kAmbienteRetorno);  // kW
  return std::max(kRetornoMinimo, kSegundosHora * perdidas * kInversoRetorno);
}

double VolumenDeposito(const Edificio& edificio, std::string_view tipologia) {
  const UnidadesSistema u = UnidadesDe(edificio, tipologia);
  const double litros = std::max(0.0, D(edificio.GetDatosGenerales().ConsumoAgua_litros_dia));
  if (tipologia == kCentralizada) return Cociente(litros * u.delBloque, 2 * u.individuales);
  return Cociente(litros, u.individuales);
}

double AreaSerpentin(double volumen) {
  if (!(volumen > 0)) return 0;
  const double v = 0.01 * volumen;
  // La parábola, ajustada a depósitos de catálogo, cae por debajo de 0 a partir de unos 7000 l.
  return std::max(0.0, -0.0051 * v * v + 0.3569 * v + 0.2701);
}

double UADeposito(double volumen) {
  if (!(volumen > 0)) return 0;
  const double radio = std::cbrt(0.001 * volumen * kInversoVolumen);  // m
  const double altura = 4 * radio;
  return kPerdidaDeposito * (kDosPi * radio * radio + kDosPi * altura * radio);
}

double LongitudTuberias(const Edificio& edificio, std::string_view tipologia) {
  const UnidadesSistema u = UnidadesDe(edificio, tipologia);
  const double area = SuperficieDimensionado(edificio) * u.delBloque;
  return std::max(kLongitudMinima, Cociente(3 * std::sqrt(area), u.individuales));
}

}  // namespace novex
