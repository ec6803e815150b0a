#pragma once

#include <string>
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
};

}  // namespace novex
