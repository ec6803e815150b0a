#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace novex {

using CasillasHoja = std::vector<std::vector<std::string>>;

/// Las casillas de un texto copiado de una hoja de cálculo: filas por línea, columnas por
/// tabulador, sin blancos alrededor. La última línea puede acabar o no en salto.
CasillasHoja CasillasDeTexto(std::string_view texto);

/// Las casillas como texto que pega una hoja de cálculo.
std::string TextoDeCasillas(const CasillasHoja& casillas);

/// Un número con separador de millares, como lo da una hoja de cálculo, sin él: si lleva puntos y
/// comas, el último que sale es el decimal; si lleva varios iguales, todos son de millares.
std::string SinMillares(std::string_view numero);

}  // namespace novex
