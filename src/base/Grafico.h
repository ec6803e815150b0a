#pragma once

#include <string>
#include <vector>

namespace novex {

/// Una línea o una fila de barras de un gráfico.
struct SerieGrafico {
  std::string nombre;
  std::vector<double> valores;  ///< uno por posición del eje horizontal
};

/// Un gráfico como valores: lo dibujan por igual una pantalla y un documento.
struct Grafico {
  enum class Forma { Barras, Lineas, Puntos };
  std::string titulo;
  Forma forma = Forma::Barras;
  std::vector<std::string> posiciones;  ///< rótulos del eje horizontal; vacía si son números
  std::vector<double> x;                ///< valores del eje horizontal, si son números
  std::string ejeX, ejeY;               ///< rótulos con su unidad
  std::vector<SerieGrafico> series;
};

}  // namespace novex
