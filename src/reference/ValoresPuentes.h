#pragma once

#include <string_view>

#include "model/Construccion.h"

namespace novex {

/// Transmitancias lineales (W/mK) y factores de temperatura de los siete puentes térmicos según
/// `Def_Puentes_termicos`: con 0, 1 y 2 salen de las tablas de soluciones constructivas por letra
/// de la zona, y con 5 de la tabla de valores por defecto por zona. Las posiciones de pilares y de
/// ventanas que no existen, un modo sin tabla (4, "Dar valores") o una zona que no está en la tabla
/// dejan sus campos como están.
/// \param zona zona climática, como "D3" o "B3c"
/// \returns el registro con esos campos puestos y los demás iguales
Construccion PuentesPorTabla(const Construccion& construccion, std::string_view zona);

}  // namespace novex
