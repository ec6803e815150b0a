#pragma once

#include <string>
#include <vector>

namespace novex {

/// Qué clase de magnitud es una serie: decide su estadística y con cuáles comparte eje.
enum class ClaseSerie { Temperatura, Consigna, Radiacion, Humedad, Horas, Energia, Otra };

/// Una serie horaria de un año.
struct Serie {
  std::string codigo;
  std::string unidad;
  ClaseSerie clase = ClaseSerie::Otra;
  std::vector<float> valores;  ///< 8760; la hora 1 está en la posición 0
};

}  // namespace novex
