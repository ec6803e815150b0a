#include "outputs/documentos/ConsumosServicio.h"

#include <algorithm>
#include <array>

#include "outputs/documentos/EquiposServicio.h"
#include "outputs/documentos/VariablesCalificacion.h"
#include "rating/FactoresConversion.h"

namespace novex {
namespace {

using V = VectorEnergetico;
using Consumos = std::vector<ConsumoServicio>;

constexpr const char* kInstalacionSolar = "Inst.solar termica";
constexpr const char* kEquipoVentilacion = "EQUIPO EXCLUSIVO VENTILACION";
constexpr std::array kOrden = {kCalefaccion, kACS, kRefrigeracion};

// Suma a la fila del mismo vector, servicio y generador, o la empieza. \param desde primera fila
// del bloque
void Sumar(const ConsumoServicio& consumo, std::size_t desde, Consumos& consumos) {
  const auto igual =
      std::find_if(consumos.begin() + static_cast<std::ptrdiff_t>(desde), consumos.end(),
                   [&](const ConsumoServicio& c) {
                     return c.servicio == consumo.servicio && c.generador == consumo.generador &&
                            TextoCertificado(c.vector) == TextoCertificado(consumo.vector);
                   });
  if (igual != consumos.end())
    igual->energia += consumo.energia;
  else
    consumos.push_back(consumo);
}

// Los de un generador de un bloque; el primero lleva lo que es del bloque entero.
void DeGenerador(const GeneradorServicio& g, const SumasBloque& sumas, Consumos& consumos) {
  const std::size_t desde = consumos.size();
  const std::string etiqueta = g.Etiqueta();
  if (g.vector) consumos.push_back({g.servicio, *g.vector, etiqueta, g.consumido});
  if (g.generador != 1) return;
  if (const float kWh = sumas.auxiliares[g.servicio]; kWh > 0.0F)
    Sumar({g.servicio, V::Electricidad, etiqueta, kWh}, desde, consumos);
  if (const float kWh = sumas.ambiente[g.servicio]; kWh != 0.0F)
    consumos.push_back({g.servicio, V::MedioAmbiente, etiqueta, kWh});
}

}  // namespace

std::vector<ConsumoServicio> ConsumosDeCaso(const CasoCalculado& caso) {
  const calculo& r = *caso.resultado;
  Consumos sistemas, sustitucion;
  std::vector<GeneradorServicio> generadores;
  for (const Servicio s : kOrden)
    for (GeneradorServicio& g : GeneradoresDeServicio(caso, s)) generadores.push_back(std::move(g));
  std::stable_sort(generadores.begin(), generadores.end(),
                   [](const auto& a, const auto& b) { return a.sistema < b.sistema; });
  for (const GeneradorServicio& g : generadores) {
    if (g.sustitucion) {
      sustitucion.push_back({g.servicio, *g.vector, g.unidad, g.consumido});
      continue;
    }
    if (g.bloque < r.sumasBloques.size()) DeGenerador(g, r.sumasBloques[g.bloque], sistemas);
  }
  const float solar = r.resultados.servicio[kACS].finalPorVector[Indice(V::Energiasolartermica)][0];
  if (solar != 0.0F) sistemas.push_back({kACS, V::MedioAmbiente, kInstalacionSolar, solar});
  sistemas.insert(sistemas.end(), sustitucion.begin(), sustitucion.end());
  if (const float kWh = r.meses.ventilacion[0]; kWh > 0.0F)
    sistemas.push_back({kVentilacion, V::Electricidad, kEquipoVentilacion, kWh});
  return sistemas;
}

void ListaConsumos(const CasoCalculado& caso, NOVEX_TO_MODELOCERTIFICADO& modelo) {
  for (const ConsumoServicio& c : ConsumosDeCaso(caso))
    modelo.consumos.push_back({std::string(TextoCertificado(c.vector)), TextoHtml(c.generador),
                               std::string(SiglaServicio(c.servicio)), CifraDocumento(c.energia)});
}

}  // namespace novex
