#pragma once

#include <string>
#include <string_view>

#include "base/Tabla.h"

namespace novex {

/// Anchura de un texto UTF-8 en una consola, en columnas.
std::size_t AnchuraTexto(std::string_view texto);

/// Una tabla como texto con las columnas alineadas: los números a la derecha, el resto a la
/// izquierda. Una columna es de números si lo es alguna de sus celdas. Sin blancos al final de las
/// líneas.
std::string TextoTabla(const Tabla& tabla);

}  // namespace novex
