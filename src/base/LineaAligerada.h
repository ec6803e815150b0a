#pragma once

#include <span>
#include <utility>
#include <vector>

namespace novex {

/// Los puntos con que una línea se dibuja igual que con todos: el menor y el mayor de cada columna
/// de la imagen, en su orden, y los vecinos de lo que se ve, para que la línea no se corte en el
/// borde. \param x posiciones, de menor a mayor \param y un valor por posición
/// \param desde,hasta lo que se ve del eje horizontal \param columnas de la imagen; menos de 1 es 1
/// \returns posición y valor; todos los que se ven si caben
std::vector<std::pair<double, double>> AligerarLinea(std::span<const double> x,
                                                     std::span<const double> y, double desde,
                                                     double hasta, int columnas);

/// Los puntos con que una nube se dibuja igual que con todos: de los que caen en la misma casilla
/// de la imagen, el primero. Salen todos los que se ven del eje horizontal.
/// \param columnas,filas casillas de la imagen; menos de 1 es 1
std::vector<std::pair<double, double>> AligerarNube(std::span<const double> x,
                                                    std::span<const double> y, double desde,
                                                    double hasta, int columnas, int filas);

}  // namespace novex
