#include "entry/ListasSistemas.h"

#include <algorithm>

#include "systems/ClasesSistema.h"

namespace novex {
namespace {

using T = TipoSistema;
using C = ClaseGenerador;
using L = LadoAgua;
using Texto = std::string_view;

// Clases por servicio: centralizadas e individuales.
constexpr Texto kACSCentral[] = {"1 Caldera", "1 BC aire-agua", "1 BC aire-agua + 1 Caldera"};
constexpr Texto kACSIndividual[] = {"1 Calentador",
                                    "1 Caldera",
                                    "1 BC aire-agua",
                                    "1 BC aire-agua + 1 Caldera",
                                    "1 BC aire-agua dedicada",
                                    "1 Termo electrico",
                                    "1 Interacumulador electrico"};
constexpr Texto kMixtoIndividual[] = {"1 Caldera", "1 BC aire-agua", "1 BC aire-agua + 1 Caldera",
                                      "1 Caldera Mixta"};
constexpr Texto kCalefaccionCentral[] = {"1 Caldera", "1 BC aire-agua",
                                         "1 BC aire-agua + 1 Caldera", "Rend. estacional (agua)",
                                         "Rend. estacional (refrigerante)"};
constexpr Texto kCalefaccionIndividual[] = {"1 Caldera",
                                            "1 BC aire-agua",
                                            "1 BC aire-agua + 1 Caldera",
                                            "Radiadores eléctricos",
                                            "Rooftop",
                                            "Rend. estacional (agua)",
                                            "Rend. estacional"};
constexpr Texto kRefrigeracionCentral[] = {"1 BC aire-agua", "Enfriadora agua cond.aire",
                                           "Rend. estacional (agua)",
                                           "Rend. estacional (refrigerante)"};
constexpr Texto kRefrigeracionIndividual[] = {"Equipo de Ventana",
                                              "Equipo Split",
                                              "Equipo Conductos",
                                              "Equipo MultiSplit",
                                              "Caudal refrigerante variable",
                                              "1 BC aire-agua",
                                              "Enfriadora agua cond.aire",
                                              "Rooftop",
                                              "Rend. estacional (agua)",
                                              "Rend. estacional (refrigerante)"};
constexpr Texto kCaleRefriCentral[] = {"1 BC aire-agua", "Rend. estacional (agua)",
                                       "Rend. estacional (refrigerante)"};
constexpr Texto kCaleRefriIndividual[] = {"Equipo de Ventana",
                                          "Equipo Split",
                                          "Equipo Conductos",
                                          "Equipo MultiSplit",
                                          "Caudal refrigerante variable",
                                          "1 BC aire-agua",
                                          "Rooftop",
                                          "Rend. estacional (agua)",
                                          "Rend. estacional (refrigerante)"};
constexpr Texto kTodo[] = {"1 BC aire-agua", "Rend. estacional conocido"};

constexpr Texto kEmisoresAgua[] = {"Fancoil",
                                   "Conductos",
                                   "Radiadores",
                                   "Suelo radiante",
                                   "Fancoil + Sist.Vent.",
                                   "Conductos + Sist.Vent.",
                                   "Radiadores + Sist.Vent.",
                                   "Suelo radiante + Sist.Vent.",
                                   "Sist.Vent."};
constexpr Texto kEmisoresRefrigerante[] = {"Unid.Interior", "Unid.Interior + Sist.Vent.",
                                           "Sist.Vent."};
constexpr Texto kEmisoresRooftop[] = {"Sist.Vent."};
constexpr Texto kEmisoresElectricos[] = {"Radiadores", "Radiadores + Sist.Vent."};

constexpr Texto kLadosACS[] = {
    "Intercamb+Depósito",    "Depósito",       "Interacumu+lado_generador",
    "Interacumu+lado_solar", "Intercambiador", "Directo"};
constexpr Texto kLadosMixto[] = {"Depósito", "Interacumulador"};
constexpr Texto kLadosZona[] = {"Con colector", "Directo"};
constexpr Texto kLadosCalentador[] = {"Directo", "Intercambiador"};

// Alimentaciones de cada campo.
constexpr Texto kDirectas[] = {kAguaRed, "Directo solar intercambiador",
                               "Directo solar interacumulador"};
constexpr Texto kSolares[] = {"Recirculado solar", "Recirculado solar intercambiadorS",
                              "Recirculado solar interacumuladorS"};
constexpr Texto kRecirculadas[] = {"Recirculado solar intercambiador",
                                   "Recirculado solar interacumulador"};
constexpr Texto kTodas[] = {kAguaRed, "Directo solar intercambiador",
                            "Directo solar interacumulador", "Recirculado solar intercambiador",
                            "Recirculado solar interacumulador"};

constexpr Texto kEstacionales[] = {"Rend. estacional (agua)", "Rend. estacional",
                                   "Rend. estacional (refrigerante)"};

// Generadores de agua caliente con un lado del agua que elegir.
bool TieneLadoAgua(C clase) {
  return clase == C::Caldera || clase == C::BombaCalor || clase == C::BombaCalorCaldera;
}

}  // namespace

bool EstaEn(ListaTextos lista, std::string_view texto) {
  return std::find(lista.begin(), lista.end(), texto) != lista.end();
}

ListaTextos ClasesOfrecidas(std::string_view tipoSistema, std::string_view tipologia) {
  const bool central = tipologia == kCentralizada;
  if (!central && tipologia != kIndividual) return {};
  const auto segun = [central](ListaTextos centrales, ListaTextos individuales) {
    return central ? centrales : individuales;
  };
  switch (TipoSistemaDe(tipoSistema)) {
    case T::ACS:
      return segun(kACSCentral, kACSIndividual);
    case T::ACSCalefaccion:
      return segun(kACSCentral, kMixtoIndividual);
    case T::Calefaccion:
      return segun(kCalefaccionCentral, kCalefaccionIndividual);
    case T::Refrigeracion:
      return segun(kRefrigeracionCentral, kRefrigeracionIndividual);
    case T::CaleRefri:
      return segun(kCaleRefriCentral, kCaleRefriIndividual);
    case T::Todo:
      return kTodo;
    case T::Ninguno:
      break;
  }
  return {};
}

ListaTextos EmisoresOfrecidos(std::string_view tipoSistema, std::string_view seleccion) {
  const T tipo = TipoSistemaDe(tipoSistema);
  if (!DaCalefaccion(tipo) && !DaRefrigeracion(tipo)) return {};
  const C clase = ClaseGeneradorDe(seleccion);
  if (clase == C::Ninguna) return {};
  if (clase == C::Rooftop) return kEmisoresRooftop;
  if (clase == C::Radiadores) return kEmisoresElectricos;
  if (EsAireAire(clase) || clase == C::EstacionalRefrigerante || clase == C::Estacional)
    return kEmisoresRefrigerante;
  return kEmisoresAgua;
}

ListaTextos DistribucionesOfrecidas(std::string_view tipoSistema, std::string_view seleccion) {
  const T tipo = TipoSistemaDe(tipoSistema);
  const C clase = ClaseGeneradorDe(seleccion);
  if (tipo == T::Ninguno) return {};
  if (DaACS(tipo)) {
    if (!TieneLadoAgua(clase)) return {};
    return tipo == T::ACS ? ListaTextos(kLadosACS) : ListaTextos(kLadosMixto);
  }
  const bool porAgua = TieneLadoAgua(clase) || clase == C::Enfriadora || clase == C::EstacionalAgua;
  return porAgua ? ListaTextos(kLadosZona) : ListaTextos();
}

ListaTextos Distribuciones2Ofrecidas(std::string_view tipoSistema, std::string_view seleccion) {
  const bool calentador =
      TipoSistemaDe(tipoSistema) == T::ACS && ClaseGeneradorDe(seleccion) == C::Calentador;
  return calentador ? ListaTextos(kLadosCalentador) : ListaTextos();
}

AlimentacionOfrecida AlimentacionDeBloque(std::string_view tipoSistema,
                                          const Instalaciones& bloque) {
  using I = Instalaciones;
  const T tipo = TipoSistemaDe(tipoSistema);
  if (!DaACS(tipo)) return {};
  const C clase = ClaseGeneradorDe(bloque.Seleccion);
  if (clase == C::Ninguna || EsEstacional(clase)) return {};
  if (tipo != T::ACS || clase == C::BombaDedicada) return {&I::Alimentacion, kDirectas};
  if (clase == C::Termo) return {&I::Alimentacion4, kTodas};
  if (clase == C::Interacumulador) return {&I::Alimentacion2, kSolares};
  switch (LadoAguaDe(clase == C::Calentador ? bloque.Distribucion2 : bloque.Distribucion)) {
    case L::Directo:
      return {&I::Alimentacion, kDirectas};
    case L::InteracumuSolar:
      return {&I::Alimentacion2, kSolares};
    case L::Intercambiador:
      return {&I::Alimentacion3, kRecirculadas};
    case L::Deposito:
    case L::IntercambDeposito:
    case L::InteracumuGenerador:
      return {&I::Alimentacion4, kTodas};
    default:
      return {};
  }
}

bool EsClaseEstacional(std::string_view seleccion) {
  return EstaEn(kEstacionales, seleccion);
}

std::string_view RotuloServicio(std::string_view tipoSistema) {
  for (const ServicioSistema& s : kServiciosSistema)
    if (s.tipoSistema == tipoSistema) return s.rotulo;
  return tipoSistema;
}

std::string_view EmisorBase(std::string_view emisor) {
  if (emisor.ends_with(kMasVentilacion)) emisor.remove_suffix(kMasVentilacion.size());
  return emisor;
}

}  // namespace novex
