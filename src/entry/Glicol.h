#pragma once

#include <optional>
#include <string>

namespace novex {

/// Fluido del circuito solar en una posición del selector de anticongelante. Solo informa: la
/// simulación toma siempre agua.
struct FluidoSolar {
  int glicol = 0;                     ///< proporción, %
  double cp = 0;                      ///< J/kgK
  double densidad = 0;                ///< kg/m3
  std::optional<double> congelacion;  ///< °C; sin ella en el agua sola
  std::string textoCp, textoDensidad;
  std::string texto;  ///< "Si" en el agua sola, la proporción en las demás
};

inline constexpr int kPosicionesGlicol = 6;

/// Propiedades del fluido de una posición, de 0 (agua) a 5. Las dos últimas son la misma
/// proporción. \returns nada si la posición no existe
std::optional<FluidoSolar> FluidoDePosicion(int posicion);

}  // namespace novex
