#include "entry/Glicol.h"

#include <array>

#include "base/NumeroTexto.h"

namespace novex {
namespace {

// Proporción de glicol de cada posición, %. La 0 es agua.
constexpr std::array<int, kPosicionesGlicol> kGlicol = {0, 10, 20, 30, 40, 40};
constexpr double kCpAgua = 4184;       // J/kgK
constexpr double kDensidadAgua = 984;  // kg/m3

}  // namespace

std::optional<FluidoSolar> FluidoDePosicion(int posicion) {
  if (posicion < 0 || posicion >= kPosicionesGlicol) return std::nullopt;
  FluidoSolar f;
  f.glicol = kGlicol[static_cast<std::size_t>(posicion)];
  if (posicion == 0) {
    f.cp = kCpAgua;
    f.densidad = kDensidadAgua;
    f.texto = "Si";
  } else {
    const double g = f.glicol;
    f.cp = -0.1212 * g * g - 3.2532 * g + 4177.1;
    f.densidad = (-0.000002 * g * g + 0.0006 * g + 0.9839) * 1000;
    f.congelacion = -0.0093 * g * g - 0.1414 * g - 0.2857;
    f.texto = std::to_string(f.glicol) + " %";
  }
  f.textoCp = Fijo(f.cp, 0);
  f.textoDensidad = Fijo(f.densidad, 0);
  return f;
}

}  // namespace novex
