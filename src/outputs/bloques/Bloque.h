#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/NumeroTexto.h"
#include "model/NodoConservado.h"

namespace novex::bloque {

/// Un elemento con texto.
inline NodoConservado Hoja(std::string nombre, std::string texto) {
  return {std::move(nombre), {}, std::move(texto), {}};
}

/// Un elemento con otros dentro.
inline NodoConservado Grupo(std::string nombre, std::vector<NodoConservado> hijos = {}) {
  return {std::move(nombre), {}, {}, std::move(hijos)};
}

/// Una cifra como la enseñan las páginas de resultados.
inline std::string Cifra(double valor) {
  return Fijo(valor, 2);
}
inline std::string Cifra(float valor) {
  return Cifra(static_cast<double>(valor));
}

/// Un elemento con una cifra.
inline NodoConservado HojaCifra(std::string nombre, double valor) {
  return Hoja(std::move(nombre), Cifra(valor));
}
inline NodoConservado HojaCifra(std::string nombre, float valor) {
  return Hoja(std::move(nombre), Cifra(valor));
}

}  // namespace novex::bloque
