#include "demand/PuentesTermicos.h"

#include <numeric>

namespace novex {
namespace {

constexpr float kPilarContinuo = 0.04F;
constexpr float kEsquinaContinua = 0.16F;
constexpr float kContinuo = 0.19F;
constexpr float kTerrenoContinuo = 0.12F;
// De la transmitancia del suelo al terreno solo cuenta un tercio; la continua ya lo es.
constexpr float kPartesTerreno = 3.0F;

// Frente de forjado con aislamiento continuo, W/mK. alfa y A comparten valor.
float ForjadoContinuo(std::string_view zona) {
  switch (zona.empty() ? 'A' : zona[0]) {
    case 'B':
      return -0.04F;
    case 'C':
      return -0.03F;
    case 'D':
    case 'E':
      return -0.02F;
    default:
      return -0.05F;
  }
}

}  // namespace

float LongitudPilares(const Construccion& c) {
  const bool valoresDados = c.Def_Puentes_termicos == 4 || c.Def_Puentes_termicos == 5;
  if (valoresDados && c.Existencia_pilares == 1) return 0.0F;
  return std::accumulate(c.Long_pilares.begin(), c.Long_pilares.end(), 0.0F);
}

std::array<float, kPuentes> PuentesForzados(const std::array<float, kPuentes>& psi, int forzado,
                                            std::string_view zona) {
  std::array<float, kPuentes> salida = psi;
  if (forzado >= 1 && forzado <= 3) salida[puente_pilares] = kPilarContinuo;
  if (forzado == 1) {
    salida[puente_esquina_saliente] = kEsquinaContinua;
    salida[puente_forjados] = ForjadoContinuo(zona);
    salida[puente_cubiertas] = salida[puente_suelo_exterior] = kContinuo;
    salida[puente_suelo_terreno] = kTerrenoContinuo * kPartesTerreno;
  }
  if (forzado != 0 && forzado != 3) salida[puente_ventanas] = kContinuo;
  return salida;
}

float ConductanciaPuentes(const Construccion& c, int forzado, std::string_view zona) {
  const auto psi = PuentesForzados(c.U_L_Puentes, forzado, zona);
  return psi[puente_pilares] * LongitudPilares(c) +
         psi[puente_esquina_saliente] * c.Longitud_esquinas_sal_menos_ent +
         psi[puente_forjados] * c.Perimetro_forjados +
         psi[puente_suelo_terreno] * c.Perimetro_suelo_terreno / kPartesTerreno +
         psi[puente_suelo_exterior] * c.Perimetro_suelo_ext +
         psi[puente_cubiertas] * c.Perimetro_cubiertas + psi[puente_ventanas] * c.Perimetro_huecos;
}

}  // namespace novex
