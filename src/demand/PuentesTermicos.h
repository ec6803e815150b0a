#pragma once

#include <array>
#include <string_view>

#include "model/Construccion.h"

namespace novex {

/// Transmitancias lineales de una construcción con el modo impuesto por una medida: las que dan la
/// misma conductancia dadas a mano. \param forzado 0 ninguno \param zona zona climática
std::array<float, kPuentes> PuentesForzados(const std::array<float, kPuentes>& psi, int forzado,
                                            std::string_view zona);

/// Conductancia de los puentes térmicos, W/K, con las transmitancias y longitudes de la
/// construcción. \param forzado modo impuesto por una medida, 0 ninguno \param zona zona climática;
/// fuera de los cinco grupos vale el de su letra de invierno
float ConductanciaPuentes(const Construccion& construccion, int forzado, std::string_view zona);

/// Longitud de los pilares que cuentan, m: ninguna en un edificio que dice no tenerlos con valores
/// dados o por defecto.
float LongitudPilares(const Construccion& construccion);

}  // namespace novex
