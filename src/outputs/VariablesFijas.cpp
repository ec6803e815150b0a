#include "outputs/VariablesFijas.h"

#include "demand/Solar.h"
#include "outputs/LectoresVariables.h"
#include "systems/ArregloACS.h"
#include "systems/Fotovoltaica.h"

namespace novex {
namespace {

using enum ClaseSerie;
using C = ContextoVariables;
using V = ViaSerie;

// Lector de una serie guardada, con la unidad cambiada por un cociente de enteros.
template <auto Bloque, auto Campo, int Multiplica = 1, int Divide = 1>
std::vector<float> De(const C& c) {
  constexpr float kFactor = static_cast<float>(Multiplica) / static_cast<float>(Divide);
  return lectores::Escalada(c.caso.*Bloque.*Campo, kFactor);
}
template <auto Campo, int... Factor>
constexpr auto kClima = De<&calculo::clima, Campo, Factor...>;
template <auto Campo, int... Factor>
constexpr auto kCarga = De<&calculo::carga, Campo, Factor...>;
template <auto Campo, int... Factor>
constexpr auto kZona = De<&calculo::zona, Campo, Factor...>;

// Carga de los horarios, de W/m2 a kWh.
template <auto Campo>
std::vector<float> CargaTotal(const C& c) {
  return lectores::Escalada(c.caso.carga.*Campo, c.Superficie() * 0.001F);
}
template <Sector S>
std::vector<float> Fachada(const C& c) {
  return lectores::RadiacionVertical(c, kAzimutSector[S]);
}
template <Servicio S>
std::vector<float> CalorDefecto(const C& c) {
  return lectores::Escalada(c.caso.zona.defecto[S], 0.001F);
}
template <Servicio S>
std::vector<float> ConsumoDefecto(const C& c) {
  return lectores::ConsumoDefecto(c, S);
}
template <std::size_t Nodo>
std::vector<float> DepositoSolar(const C& c) {
  return lectores::Escalada(c.caso.sistemas.depositoSolar[Nodo], 1.0F);
}
std::vector<float> ProduccionFotovoltaica(const C& c) {
  return lectores::Escalada(c.caso.sistemas.produccionFotovoltaica, 1.0F);
}

bool HayAguaCaliente(const C& c) {
  return c.Atributo("CWT") != nullptr;
}
bool HayRecuperador(const C& c) {
  return c.ajustes.recuperador != TipoRecuperador::Otro &&
         c.ajustes.recuperador != TipoRecuperador::No;
}
bool HayBypass(const C& c) {
  return c.ajustes.recuperador == TipoRecuperador::SensibleCon ||
         c.ajustes.recuperador == TipoRecuperador::EntalpicoCon;
}
// Donde el cálculo pone la serie: con una unidad de aire, nunca con toma independiente.
bool HayEnfriamiento(const C& c) {
  return c.ajustes.PruebaEnfriamientoGratuito();
}
bool HayHumectador(const C& c) {
  return c.ajustes.hayHumectador;
}
bool HayCaptadores(const C& c) {
  return c.Atributo("PTCS") != nullptr;
}
// Unos captadores pueden calentar sin él el depósito de consumo.
bool HayDepositoSolar(const C& c) {
  if (!HayCaptadores(c)) return false;
  for (std::size_t n = 0; n < c.edificio.NumeroSistemas(); ++n) {
    const SistemaResidencial& s = c.edificio.GetSistema(n);
    for (const Instalaciones& bloque : s.instalaciones)
      if (ResolverArreglo(TipoSistemaDe(s.Tipo_sistema), bloque).depositoSolar) return true;
  }
  return false;
}
bool HayPaneles(const C& c) {
  return HayFotovoltaica(c.Generales(), c.caso.resultados.forzados.ExtraPotPicoFV);
}

constexpr const char* kVarios = "Varios";
constexpr const char* kLocal = "Local";
constexpr const char* kExterior = "Exterior";
constexpr const char* kUso = "Operacionales y funcionales";
constexpr const char* kGrupoACS = "ACS";
constexpr const char* kCalor = "Calefacción";
constexpr const char* kFrio = "Refrigeración";
constexpr const char* kAire = "Ventilación";
constexpr const char* kPaneles = "Fotovoltáica";

constexpr VariableFija kVariables[] = {
    {kVarios, "Demanda calef+refrig.", "DT", "kWh", Energia, V::Calculada, "",
     lectores::DemandaTotal, nullptr},
    {kVarios, "Dif.Temp.Consigna", "DIFT", "ºC", Consigna, V::Recinto, "DIFT",
     kZona<&SeriesZona::DIFT>, nullptr},

    {kLocal, "Temp.seca local", "TSL", "ºC", Temperatura, V::Recinto, "TSL",
     kZona<&SeriesZona::TSL>, nullptr},
    {kLocal, "Temp.húmeda local", "THL", "ºC", Temperatura, V::Calculada, "",
     lectores::BulboHumedoLocal, nullptr},
    {kLocal, "Hum.relativa local", "FIL", "%", Humedad, V::Calculada, "",
     lectores::HumedadRelativaLocal, nullptr},
    {kLocal, "Hum.específica local", "WL", "gr/kg", Humedad, V::Recinto, "WL",
     kZona<&SeriesZona::WL, 1000>, nullptr},

    {kExterior, "Temp.seca", "TSE", "ºC", Temperatura, V::Balance, "TSE", kClima<&SeriesClima::TSE>,
     nullptr},
    {kExterior, "Temp.húmeda", "THE", "ºC", Temperatura, V::Balance, "THE",
     kClima<&SeriesClima::THE>, nullptr},
    {kExterior, "Temp.cielo", "TCIE", "ºC", Temperatura, V::Balance, "TCIE",
     kClima<&SeriesClima::TCIE>, nullptr},
    {kExterior, "Hum.relativa", "FIE", "%", Humedad, V::Balance, "FIE", kClima<&SeriesClima::FIE>,
     nullptr},
    {kExterior, "Hum.específica", "WE", "gr/kg", Humedad, V::Balance, "WE",
     kClima<&SeriesClima::WE, 1000>, nullptr},
    {kExterior, "Temp.agua red", "TWR", "ºC", Temperatura, V::Calculada, "", lectores::AguaRed,
     nullptr},
    {kExterior, "Rad.directa", "RDIR", "kWh/m2", Radiacion, V::Balance, "IDIRECTA",
     kClima<&SeriesClima::IDIRECTA, 1, 1000>, nullptr},
    {kExterior, "Rad.difusa", "RDIF", "kWh/m2", Radiacion, V::Balance, "IDIFUSA",
     kClima<&SeriesClima::IDIFUSA, 1, 1000>, nullptr},
    {kExterior, "Rad.total Horizontal", "RTHz", "kWh/m2", Radiacion, V::Balance, "RADH",
     kClima<&SeriesClima::RADH, 1, 1000>, nullptr},
    {kExterior, "Rad.total Norte", "RTN", "kWh/m2", Radiacion, V::Calculada, "", Fachada<norte>,
     nullptr},
    {kExterior, "Rad.total Este", "RTE", "kWh/m2", Radiacion, V::Calculada, "", Fachada<este>,
     nullptr},
    {kExterior, "Rad.total SurEste", "RTSE", "kWh/m2", Radiacion, V::Calculada, "",
     Fachada<sur_este>, nullptr},
    {kExterior, "Rad.total Sur", "RTS", "kWh/m2", Radiacion, V::Calculada, "", Fachada<sur>,
     nullptr},
    {kExterior, "Rad.total SurOeste", "RTSW", "kWh/m2", Radiacion, V::Calculada, "",
     Fachada<sur_oeste>, nullptr},
    {kExterior, "Rad.total Oeste", "RTW", "kWh/m2", Radiacion, V::Calculada, "", Fachada<oeste>,
     nullptr},

    {kUso, "Termostato Calefacción", "TCR", "ºC", Consigna, V::Balance, "TCR",
     kCarga<&SeriesCarga::TCR>, nullptr},
    {kUso, "Termostato Refrigeración", "TRR", "ºC", Consigna, V::Balance, "TRR",
     kCarga<&SeriesCarga::TRR>, nullptr},
    {kUso, "Calor sensible ocupantes", "DOCUP", "kWh", Energia, V::Balance, "QOCUPShT",
     CargaTotal<&SeriesCarga::QOCUPShT>, nullptr},
    {kUso, "Calor iuminación", "DILU", "kWh", Energia, V::Balance, "QILUhT",
     CargaTotal<&SeriesCarga::QILUhT>, nullptr},
    {kUso, "Calor equipos", "DEQU", "kWh", Energia, V::Balance, "QEQhT",
     CargaTotal<&SeriesCarga::QEQhT>, nullptr},
    {kUso, "Caudal ventilación", "QV", "m3/h", Otra, V::Balance, "NRR", lectores::CaudalVentilacion,
     nullptr},
    {kUso, "Caudal agua a 60ºC", "CW60", "l/h", Otra, V::Sistemas, "CW60", lectores::CaudalAgua60,
     nullptr},

    {kGrupoACS, "Demanda", "DACS", "kWh", Energia, V::Recinto, "DACS", kZona<&SeriesZona::DACS>,
     nullptr},
    {kGrupoACS, "Caudal agua caliente", "CWT", "l/h", Otra, V::Sistemas, "CWT", nullptr,
     HayAguaCaliente},
    {kGrupoACS, "Temp. agua caliente", "TWC", "ºC", Temperatura, V::Sistemas, "TWC", nullptr,
     HayAguaCaliente},
    {kGrupoACS, "Calor aportado defecto", "DACSD", "kWh", Energia, V::Recinto, "DACSD",
     CalorDefecto<kACS>, nullptr},
    {kGrupoACS, "Consumo defecto", "CACSD", "kWh", Energia, V::Calculada, "", ConsumoDefecto<kACS>,
     nullptr},

    {kCalor, "Demanda sensible", "DCAL", "kWh", Energia, V::Recinto, "DCAL",
     kZona<&SeriesZona::DCAL>, nullptr},
    {kCalor, "Calor aportado defecto", "DCALD", "kWh", Energia, V::Recinto, "DCALD",
     CalorDefecto<kCalefaccion>, nullptr},
    {kCalor, "Consumo defecto", "CCALD", "kWh", Energia, V::Calculada, "",
     ConsumoDefecto<kCalefaccion>, nullptr},

    {kFrio, "Demanda sensible", "DREF", "kWh", Energia, V::Recinto, "DREF",
     kZona<&SeriesZona::DREF>, nullptr},
    {kFrio, "Frio sensible aportado defecto", "DREFD", "kWh", Energia, V::Recinto, "DREFD",
     CalorDefecto<kRefrigeracion>, nullptr},
    {kFrio, "Consumo defecto", "CREFD", "kWh", Energia, V::Calculada, "",
     ConsumoDefecto<kRefrigeracion>, nullptr},

    {kAire, "Consumo ventilación", "CV", "Wh", Energia, V::Recinto, "CV", kZona<&SeriesZona::CV>,
     nullptr},
    {kAire, "Demanda Sensible Ventilación", "DVENT", "kWh", Energia, V::Recinto, "DVENT",
     kZona<&SeriesZona::DVENT>, nullptr},
    {kAire, "Caudal aire exterior", "CAE", "m3/h", Otra, V::Recinto, "QV", kZona<&SeriesZona::QV>,
     nullptr},
    {kAire, "Caudal aire uta", "CUTA", "m3/h", Otra, V::Recinto, "CUTA", kZona<&SeriesZona::CUTA>,
     nullptr},
    {kAire, "Calor intercambiado recuperador", "QIR", "kWh", Energia, V::Recinto, "QIR",
     kZona<&SeriesZona::QIR, 1, 1000>, HayRecuperador},
    {kAire, "Temp. salida recuperador", "TSR", "ºC", Temperatura, V::Recinto, "TSR",
     kZona<&SeriesZona::TSR>, HayRecuperador},
    {kAire, "Horas ByPass", "HBP", "-", Horas, V::Recinto, "HBP", kZona<&SeriesZona::HBP>,
     HayBypass},
    {kAire, "Horas FreeCooling", "HFC", "-", Horas, V::Recinto, "HFC", kZona<&SeriesZona::HFC>,
     HayEnfriamiento},
    {kAire, "Calor extra humectador", "QEH", "kWh", Energia, V::Recinto, "QEH",
     kZona<&SeriesZona::humectacion, 1, 1000>, HayHumectador},

    {kGrupoSolar, "Rad.total captadores", "RTC", "kWh", Energia, V::Calculada, "",
     lectores::RadiacionCaptadores, HayCaptadores},
    {kGrupoSolar, "Aporte solar captadores", "EASC", "kWh", Energia, V::Sistemas, "EASC", nullptr,
     HayCaptadores},
    {kGrupoSolar, "Pérdidas depósito solar", "PDS", "kWh", Energia, V::Sistemas, "PDS", nullptr,
     HayDepositoSolar},
    {kGrupoSolar, "Temp.depósito solar", "TDS1", "ºC", Temperatura, V::Recinto, "TDS1",
     DepositoSolar<0>, HayDepositoSolar},
    {kGrupoSolar, "Temp.depósito solar", "TDS2", "ºC", Temperatura, V::Recinto, "TDS2",
     DepositoSolar<1>, HayDepositoSolar},
    {kGrupoSolar, "Temp.depósito solar", "TDS3", "ºC", Temperatura, V::Recinto, "TDS3",
     DepositoSolar<2>, HayDepositoSolar},
    {kGrupoSolar, "Temp.depósito solar", "TDS4", "ºC", Temperatura, V::Recinto, "TDS4",
     DepositoSolar<3>, HayDepositoSolar},
    {kGrupoSolar, "Temp.depósito solar", "TDS5", "ºC", Temperatura, V::Recinto, "TDS5",
     DepositoSolar<4>, HayDepositoSolar},
    {kGrupoSolar, "Pérdidas tuberias captadores", "PTCS", "kWh", Energia, V::Sistemas, "PTCS",
     nullptr, HayCaptadores},
    {kGrupoSolar, "Consumo bomba depósito solar", "BDEPS", "Wh", Energia, V::Sistemas, "WDEPS",
     nullptr, HayDepositoSolar},
    {kGrupoSolar, "Consumo bomba captadores solares", "BCS", "Wh", Energia, V::Sistemas, "WCS",
     nullptr, HayCaptadores},
    {kGrupoSolar, "Consumo bomba recirculación solar", "BRECS", "Wh", Energia, V::Sistemas, "WRECS",
     nullptr, HayDepositoSolar},

    {kPaneles, "Rad.total paneles", "RTP", "kWh", Energia, V::Calculada, "",
     lectores::RadiacionPaneles, HayPaneles},
    {kPaneles, "Aporte solar fotovoltáico", "ASF", "kWh", Energia, V::Recinto, "ASF",
     ProduccionFotovoltaica, HayPaneles},
};

}  // namespace

const SerieHoraria* ContextoVariables::Atributo(std::string_view nombre) const {
  for (const AtributoSistema& a : caso.atributos)
    if (a.nombre == nombre) return &a.serie;
  return nullptr;
}

std::span<const VariableFija> VariablesFijas() {
  return kVariables;
}

}  // namespace novex
