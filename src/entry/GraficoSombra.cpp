#include "entry/GraficoSombra.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "demand/PosicionSolar.h"
#include "demand/Solar.h"
#include "demand/Sombras.h"
#include "reference/LongitudesPuentes.h"

namespace novex {
namespace {

// Día del año de cada mes de la gráfica.
constexpr std::array<int, kMesesGraficoSombra.size()> kDias = {356, 21, 51, 81, 110, 141, 172};

// Un rumbo llega hasta medio camino de los que tiene al lado, grados.
constexpr float kMedioRumbo = 22.5F;

// Rumbo de la fachada en que está el sol.
std::optional<Sector> RumboDelSol(Sector fachada, float azimut) {
  const DireccionesObstaculo d = DireccionesDeColumna(fachada);
  for (std::size_t i = 0; i < d.cuantas; ++i)
    if (std::fabs(azimut - kAzimutSector[d.sector[i]]) <= kMedioRumbo) return d.sector[i];
  return std::nullopt;
}

float PorcentajeHora(Sector fachada, const ObstaculosRemotos& obstaculos,
                     const PosicionSolar& posicion, float alturaEdificio) {
  const auto azimut = static_cast<float>(posicion.acimut);
  const auto cenit = static_cast<float>(posicion.cenit);
  if (!MirarSol(azimut, cenit, kAzimutSector[fachada]).delante) return 0;
  const auto rumbo = RumboDelSol(fachada, azimut);
  if (!rumbo) return 0;
  const ObstaculoCercano o = ObstaculoRemoto(*rumbo, obstaculos);
  const float tangente = std::tan((90.0F - cenit) * kGradosARadianes);
  return 100.0F * std::clamp((o.altura - tangente * o.distancia) / alturaEdificio, 0.0F, 1.0F);
}

}  // namespace

GraficoSombra CalcularGraficoSombra(Sector fachada, const ObstaculosRemotos& obstaculos,
                                    float latitud, float alturaEdificio) {
  GraficoSombra grafico;
  for (std::size_t i = 0; i < grafico.size(); ++i) {
    grafico[i].mes = kMesesGraficoSombra[i];
    if (alturaEdificio <= 0.0F) continue;
    for (int hora = 1; hora <= 24; ++hora)
      grafico[i].porcentaje[static_cast<std::size_t>(hora)] = PorcentajeHora(
          fachada, obstaculos, CalcularPosicionSolar(static_cast<double>(latitud), kDias[i], hora),
          alturaEdificio);
  }
  return grafico;
}

GraficoSombra CalcularGraficoSombra(Sector fachada, const Edificio& edificio) {
  return CalcularGraficoSombra(fachada, edificio.GetObstaculosRemotos(),
                               edificio.GetLocalizacion().latitud,
                               AlturaDeEdificio(edificio).Total());
}

std::string NotaGraficoSombra(const GraficoSombra& grafico, const Edificio& edificio) {
  const bool haySombra = std::any_of(grafico.begin(), grafico.end(), [](const SerieSombra& serie) {
    return std::any_of(serie.porcentaje.begin(), serie.porcentaje.end(),
                       [](float porcentaje) { return porcentaje > 0.0F; });
  });
  if (haySombra)
    return "Parte de la fachada que tapan los obstáculos lejanos en el día representativo de cada "
           "mes.";
  if (AlturaDeEdificio(edificio).Total() <= 0.0F)
    return "Sin volumen ni suelo habitable no se conoce la altura del edificio.";
  return "Ningún obstáculo lejano da sombra a esta fachada.";
}

}  // namespace novex
