#pragma once

#include <array>

#include "base/Mensajes.h"
#include "files/xmlParser.h"

namespace novex {

inline constexpr std::size_t kTerminosRespuesta = 48;

/// Pesos horarios de un muro y de una cubierta, divididos por su suma.
struct CoeficientesRespuesta {
  std::array<float, kTerminosRespuesta> muro{};
  std::array<float, kTerminosRespuesta> techo{};
};

/// Lee los pesos `A0` a `A47` de los elementos "MuroLigero" y "TechoMedio". Un juego que falta o
/// que suma 0 queda a 0.
CoeficientesRespuesta LeerCoeficientesRespuesta(const XMLNode& raiz, Mensajes& mensajes);

}  // namespace novex
