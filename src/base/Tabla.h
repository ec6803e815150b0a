#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/NumeroTexto.h"

namespace novex {

/// Una celda: lo que se muestra y, si es un número, su valor sin redondear.
struct Celda {
  std::string texto;
  std::optional<double> numero;

  Celda() = default;
  Celda(std::string t) : texto(std::move(t)) {}
  Celda(const char* t) : texto(t) {}
  /// Una cifra con sus decimales.
  static Celda Numero(double valor, int decimales) {
    Celda celda(Fijo(valor, decimales));
    celda.numero = valor;
    return celda;
  }
};

/// Una tabla tal como la muestran por igual una pantalla, la consola y un documento.
struct Tabla {
  std::string titulo;
  std::vector<std::string> cabeceras;  ///< una por columna; vacía, sin fila de cabecera
  std::vector<std::vector<Celda>> filas;
  std::vector<std::string> notas;  ///< van debajo
};

}  // namespace novex
