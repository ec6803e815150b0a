#pragma once

#include <span>
#include <string>
#include <string_view>

#include "base/Serie.h"
#include "demand/calculo.h"

namespace novex {

/// Una serie horaria de las que guarda un cálculo.
struct DescripcionSerie {
  std::string_view codigo;
  std::string_view unidad;
  ClaseSerie clase;
  int decimales;  ///< con los que se escribe
  const SerieHoraria& (*tomar)(const calculo&);
};

/// Las series horarias de un cálculo, en el orden en que se escriben.
std::span<const DescripcionSerie> SeriesHorarias();

/// Todas las series como texto separado por `;`: una cabecera `hora;` y los códigos, primero los
/// del caso y después los de cada sistema, y una línea por hora, de 1 a 8760.
std::string CsvSeries(const calculo& caso);

}  // namespace novex
