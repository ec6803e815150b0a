#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "files/xmlParser.h"

namespace novex::pruebas {

/// El elemento de un camino "A/B/C" desde otro, o vacío.
inline XMLNode En(XMLNode nodo, std::string_view camino) {
  while (!camino.empty()) {
    const std::size_t barra = std::min(camino.find('/'), camino.size());
    nodo = nodo.childNamed(camino.substr(0, barra));
    camino.remove_prefix(std::min(barra + 1, camino.size()));
  }
  return nodo;
}

/// El texto de un elemento por su camino; "(falta)" si no está.
inline std::string Texto(const XMLNode& nodo, std::string_view camino) {
  const XMLNode hallado = En(nodo, camino);
  return hallado ? std::string(hallado.textAt(0).value_or("")) : "(falta)";
}

}  // namespace novex::pruebas
