#pragma once

#include <array>
#include <string>

#include "base/Tabla.h"
#include "demand/Series.h"

namespace novex {

/// Los doce valores de una fila, de enero a diciembre.
struct FilaMeses {
  std::array<double, 12> mes{};

  FilaMeses() = default;
  /// De una tabla con los meses en las posiciones 1 a 12, por un factor.
  explicit FilaMeses(const TablaMensual& tabla, double factor = 1);
  FilaMeses& operator+=(const FilaMeses& otra);
  FilaMeses& operator-=(const FilaMeses& otra);
  double Ano() const;
};

/// Compone una rejilla de meses: los doce, el año y el año por m2.
class RejillaMeses {
 public:
  /// \param rotulo título de la tabla \param esquina lo que va sobre los nombres de las filas
  /// \param area superficie útil, m2; con 0 la última columna queda en blanco
  RejillaMeses(std::string rotulo, std::string esquina, float area);
  void Fila(const char* nombre, const FilaMeses& valores);
  /// Una fila sin valores.
  void FilaEnBlanco(const char* nombre);
  void Nota(std::string nota) { tabla_.notas.push_back(std::move(nota)); }
  Tabla Terminar() { return std::move(tabla_); }

 private:
  double area_;
  Tabla tabla_;
};

}  // namespace novex
