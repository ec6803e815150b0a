#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace novex {

/// Un elemento de un fichero tal como se leyó, para devolverlo sin pérdida al guardar.
struct NodoConservado {
  std::string nombre;
  std::vector<std::pair<std::string, std::string>> atributos;
  std::string texto;
  std::vector<NodoConservado> hijos;
  bool operator==(const NodoConservado&) const = default;

  /// El valor de un atributo, vacío si no lo tiene.
  std::string_view Atributo(std::string_view clave) const {
    for (const auto& [n, valor] : atributos)
      if (n == clave) return valor;
    return {};
  }
  /// Cambia el valor de un atributo, o lo añade al final si no lo tiene.
  void PonerAtributo(std::string_view clave, std::string valor) {
    for (auto& [n, v] : atributos)
      if (n == clave) {
        v = std::move(valor);
        return;
      }
    atributos.emplace_back(clave, std::move(valor));
  }
};

}  // namespace novex
