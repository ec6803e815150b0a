#pragma once

#include <array>
#include <vector>

#include "demand/EstadisticasClima.h"
#include "demand/SecuenciaDias.h"

namespace novex {

/// Radiación de un año en el plano horizontal. La hora 1 del año está en la posición 0.
struct RadiacionAno {
  std::vector<double> directa;  ///< W/m2
  std::vector<double> difusa;   ///< W/m2
  /// Claridad de cada día partida por la media de su mes: 1 es un día medio.
  SerieDiaria claridadRelativa{};
};

/// Reparte por días y horas la radiación de cada mes. La irradiación global del día sale de un
/// índice de claridad con la media y la desviación del mes; la difusa, de una fracción que baja con
/// la claridad (como las correlaciones de Collares-Pereira y Rabl) ajustada a la suma del mes; las
/// horas, por ajuste proporcional iterativo entre la suma de cada día y el curso medio de cada
/// hora. \param zona estadísticas y latitud \param claridad normales tipificadas por día
/// (`SecuenciaClaridad`)
RadiacionAno GenerarRadiacion(const EstadisticasZona& zona, const SerieDiaria& claridad);

}  // namespace novex
