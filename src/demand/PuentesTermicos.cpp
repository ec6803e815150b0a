#include "demand/PuentesTermicos.h"

#include <numeric>

namespace novex {
namespace {

constexpr float kPilarContinuo = 0.04F;
constexpr float kEsquinaContinua = 0.16F;
constexpr float kContinuo = 0.19F;
constexpr float kTerrenoContinuo = 0.12F;

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

float ConductanciaPuentes(const Construccion& c, int forzado, std::string_view zona) {
  const auto& psi = c.U_L_Puentes;
  const float pilares = LongitudPilares(c);
  float H = forzado == 0 || forzado == 4 ? psi[puente_pilares] * pilares : kPilarContinuo * pilares;
  H += (forzado == 1 ? kEsquinaContinua : psi[puente_esquina_saliente]) *
       c.Longitud_esquinas_sal_menos_ent;
  if (forzado == 1)
    H += ForjadoContinuo(zona) * c.Perimetro_forjados + kContinuo * c.Perimetro_cubiertas +
         kContinuo * c.Perimetro_suelo_ext + kTerrenoContinuo * c.Perimetro_suelo_terreno;
  else
    H += psi[puente_forjados] * c.Perimetro_forjados +
         psi[puente_suelo_terreno] * c.Perimetro_suelo_terreno / 3.0F +
         psi[puente_suelo_exterior] * c.Perimetro_suelo_ext +
         psi[puente_cubiertas] * c.Perimetro_cubiertas;
  H += (forzado == 0 || forzado == 3 ? psi[puente_ventanas] : kContinuo) * c.Perimetro_huecos;
  return H;
}

}  // namespace novex
