#pragma once

#include <array>

#include "demand/ResultadosCaso.h"
#include "demand/Series.h"
#include "model/Edificio.h"

namespace novex {

inline constexpr std::size_t kTerminosZona = 24;

/// Factores de respuesta de las superficies interiores de la zona.
struct RespuestaZona {
  std::array<float, kTerminosZona> F1{};  ///< envolvente, W/K
  std::array<float, kTerminosZona> F2{};  ///< tabiques, W/K
  std::array<float, kTerminosZona> F3{};  ///< forjados interiores, W/K
  float K = 0;  ///< U·A de lo que intercambia con el exterior por una temperatura de respuesta, W/K

  /// Suma de los tres factores en un retardo, W/K.
  float Total(std::size_t k) const { return F1[k] + F2[k] + F3[k]; }
};

/// Factores de respuesta del recinto 0, con la U efectiva de cada posición.
RespuestaZona PrepararRespuestaZona(const Edificio& edificio,
                                    const std::array<float, kRanuras>& Uefectiva);

}  // namespace novex
