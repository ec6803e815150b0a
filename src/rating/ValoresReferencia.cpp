#include "rating/ValoresReferencia.h"

#include <array>

#include "rating/Escala.h"
#include "rating/FactoresConversion.h"
#include "systems/ClasesSistema.h"
#include "systems/DemandaACS.h"

namespace novex {
namespace {

constexpr std::array<std::string_view, 5> kZonasRadiantes = {"I", "II", "III", "IV", "V"};

float Cociente(float a, float b) {
  return b == 0.0F ? 0.0F : a / b;
}

// Servicios que algún sistema da; en una vivienda cuentan los tres. La calefacción de los sistemas
// de los tres servicios no está en la lista.
std::array<bool, kServiciosDemanda> ServiciosContados(const Edificio& edificio) {
  if (edificio.GetDatosGenerales().EsResidencial()) return {true, true, true};
  std::array<bool, kServiciosDemanda> contado{};
  for (std::size_t s = 0; s < edificio.NumeroSistemas(); ++s) {
    const TipoSistema t = TipoSistemaDe(edificio.GetSistema(s).Tipo_sistema);
    contado[kACS] = contado[kACS] || DaACS(t);
    contado[kCalefaccion] = contado[kCalefaccion] || (DaCalefaccion(t) && t != TipoSistema::Todo);
    contado[kRefrigeracion] = contado[kRefrigeracion] || DaRefrigeracion(t);
  }
  return contado;
}

}  // namespace

float ContribucionSolarMinima(float litrosDia, std::string_view zonaRadiante) {
  constexpr std::array<float, 5> kHasta5000 = {0.3F, 0.3F, 0.4F, 0.5F, 0.6F};
  constexpr std::array<float, 5> kHasta10000 = {0.3F, 0.4F, 0.5F, 0.6F, 0.7F};
  constexpr std::array<float, 5> kMas = {0.3F, 0.5F, 0.6F, 0.7F, 0.7F};
  if (litrosDia <= 50.0F) return 0.0F;
  for (std::size_t i = 0; i < kZonasRadiantes.size(); ++i) {
    if (kZonasRadiantes[i] != zonaRadiante) continue;
    if (litrosDia <= 5000.0F) return kHasta5000[i];
    return litrosDia <= 10000.0F ? kHasta10000[i] : kMas[i];
  }
  return 0.0F;
}

void PonerValoresReferencia(const Edificio& edificio, const DemandaReferencia& demanda,
                            ResultadosCaso& resultados, Mensajes& mensajes) {
  const Conversor conversor(resultados.factores, edificio.GetLocalizacion().Provincia);
  const float solar = ContribucionSolarMinima(VolumenReferencia(edificio),
                                              edificio.GetLocalizacion().zona_radiante);
  const std::array<float, kServiciosDemanda> demandas = {
      demanda.acs * (1.0F - solar), demanda.calefaccion, demanda.refrigeracion};
  EscalaCaso& escala = resultados.escala;
  std::array<float, kServiciosDemanda> emisiones{}, primaria{};
  for (std::size_t s = 0; s < kServiciosDemanda; ++s) {
    const float final = Cociente(demandas[s], resultados.defecto.rendimiento[s]);
    emisiones[s] = conversor.Emisiones(resultados.defecto.combustible[s], final);
    primaria[s] = conversor.PrimariaNoRenovable(resultados.defecto.combustible[s], final);
  }
  const float emisionesIlu =
      conversor.Emisiones(VectorEnergetico::Electricidad, demanda.iluminacion);
  const float primariaIlu =
      conversor.PrimariaNoRenovable(VectorEnergetico::Electricidad, demanda.iluminacion);

  const auto contado = ServiciosContados(edificio);
  escala.totalReferenciaEmisiones = emisionesIlu;
  escala.totalReferenciaPrimaria = primariaIlu;
  for (std::size_t s = 0; s < kServiciosDemanda; ++s) {
    if (!contado[s]) continue;
    escala.totalReferenciaEmisiones += emisiones[s];
    escala.totalReferenciaPrimaria += primaria[s];
  }
  escala.DemandaACS = demanda.acs;
  escala.DemandaACS_solar_minima = demandas[kACS];
  escala.iluminacionReferencia = demanda.iluminacion;
  const auto poner = [&escala](Indicador i, float v) {
    escala.referencia[static_cast<std::size_t>(i)] = v;
  };
  // Las emisiones totales suman los cuatro servicios aunque alguno no se dé.
  poner(Indicador::EmisionesTotales,
        emisiones[kACS] + emisiones[kCalefaccion] + emisiones[kRefrigeracion] + emisionesIlu);
  poner(Indicador::DemandaCalefaccion, demanda.calefaccion);
  poner(Indicador::DemandaRefrigeracion, demanda.refrigeracion);
  poner(Indicador::EmisionesCalefaccion, emisiones[kCalefaccion]);
  poner(Indicador::EmisionesRefrigeracion, emisiones[kRefrigeracion]);
  poner(Indicador::EmisionesACS, emisiones[kACS]);
  poner(Indicador::EPriNoRCalefaccion, primaria[kCalefaccion]);
  poner(Indicador::EPriNoRRefrigeracion, primaria[kRefrigeracion]);
  poner(Indicador::EPriNoRACS, primaria[kACS]);
  poner(Indicador::EPriNoRTotales, escala.totalReferenciaPrimaria);
  poner(Indicador::EmisionesIlu, emisionesIlu);
  poner(Indicador::EPriNoRIlu, primariaIlu);
  CargarEscala(XMLNode{}, edificio, escala, mensajes);
}

}  // namespace novex
