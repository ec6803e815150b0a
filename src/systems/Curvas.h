#pragma once

#include <algorithm>
#include <array>

#include "model/Instalaciones.h"

namespace novex::curvas {

constexpr float Bicuadratica(const std::array<float, 6>& c, float x, float y) {
  return c[0] + c[1] * x + c[2] * x * x + c[3] * y + c[4] * y * y + c[5] * x * y;
}

constexpr float SieteTerminos(const std::array<float, 7>& c, float x, float y, float z) {
  return c[0] + c[1] * x + c[2] * x * x + c[3] * y + c[4] * y * y + c[5] * z + c[6] * z * z;
}

constexpr float Cubica(const std::array<float, 4>& c, float p) {
  return c[0] + p * (c[1] + p * (c[2] + p * c[3]));
}

/// Consumo con la carga parcial: 0 sin carga y como a plena carga por encima de 1.
constexpr float CargaParcial(const std::array<float, 4>& c, float p) {
  return p <= 0.0F ? 0.0F : Cubica(c, std::min(p, 1.0F));
}

/// Cociente de capacidad de calefacción. \param x temperatura del agua o consigna, °C
/// \param THE bulbo húmedo exterior, °C
constexpr float CapacidadCalor(const CurvasEquipo& c, float x, float THE) {
  return Bicuadratica(THE > c.TeCambio ? c.aaQ : c.abQ, x, THE);
}

/// Cociente de consumo de calefacción.
constexpr float ConsumoCalor(const CurvasEquipo& c, float x, float THE) {
  return Bicuadratica(THE > c.TeCambio ? c.baQ : c.bbQ, x, THE);
}

/// Rendimiento relativo de una caldera. Sin curvas vale 1.
inline float RendimientoCaldera(const CurvasEquipo& c, float p, float t) {
  const auto nula = [](const std::array<float, 4>& v) {
    return std::all_of(v.begin(), v.end(), [](float x) { return x == 0.0F; });
  };
  if (nula(c.cC) && nula(c.gC)) return 1.0F;
  return Cubica(c.cC, p) * Cubica(c.gC, t);
}

}  // namespace novex::curvas
