#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "compliance/Condensacion.h"
#include "model/Construccion.h"

namespace novex {

/// Textos de cumplimiento de la comprobación de condensaciones.
namespace condensacion {
inline constexpr std::string_view kCumple = "Cumple";
inline constexpr std::string_view kNoCumple = "No Cumple";
inline constexpr std::string_view kNoAplicable = "No aplicable";
}  // namespace condensacion

/// Comprobación de la superficie de un puente térmico.
struct CondensacionPuente {
  Puente puente = puente_forjados;
  std::string tipo;    ///< clave de la clase de puente
  std::string nombre;  ///< el que se enseña
  double fRsi = 0;     ///< factor de temperatura del puente
  double fRsiMin = 0;
  bool aplica = true;  ///< no, el de pilares de un edificio sin ellos
  bool cumple = true;  ///< el que no se aplica cumple

  /// "Cumple", "No Cumple" o "No aplicable".
  std::string_view Cumplimiento() const {
    if (!aplica) return condensacion::kNoAplicable;
    return cumple ? condensacion::kCumple : condensacion::kNoCumple;
  }
};

/// Comprueba los siete puentes térmicos, en el orden de las filas de `PuentesTermicos.xml`. A un
/// puente le basta con igualar el mínimo.
std::vector<CondensacionPuente> CondensacionPuentes(const Construccion& construccion,
                                                    const CondicionesCondensacion& condiciones);

}  // namespace novex
