#pragma once

#include <string>
#include <string_view>

#include "base/Tabla.h"

namespace novex {

inline constexpr std::size_t kTodasLasColumnas = static_cast<std::size_t>(-1);

/// Anchura de un texto UTF-8 en una consola, en columnas.
std::size_t AnchuraTexto(std::string_view texto);

/// Una tabla como texto con las columnas alineadas: los números a la derecha, el resto a la
/// izquierda. Una columna es de números si lo es alguna de sus celdas. Sin blancos al final de las
/// líneas.
std::string TextoTabla(const Tabla& tabla);

/// Una tabla como texto separado: una línea con los títulos y otra por fila, y tras cada celda un
/// ";". El título y las notas de la tabla no se escriben. \param columnas las que se escriben como
/// mucho
std::string TextoSeparado(const Tabla& tabla, std::size_t columnas = kTodasLasColumnas);

}  // namespace novex
