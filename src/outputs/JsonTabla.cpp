#include "outputs/JsonTabla.h"

#include <nlohmann/json.hpp>

namespace novex {

std::string JsonTabla(const Tabla& tabla) {
  nlohmann::ordered_json lista = nlohmann::ordered_json::array();
  for (const auto& fila : tabla.filas) {
    nlohmann::ordered_json objeto;
    for (std::size_t i = 0; i < fila.size() && i < tabla.cabeceras.size(); ++i) {
      if (fila[i].numero)
        objeto[tabla.cabeceras[i]] = *fila[i].numero;
      else
        objeto[tabla.cabeceras[i]] = fila[i].texto;
    }
    lista.push_back(std::move(objeto));
  }
  return lista.dump(2) + "\n";
}

}  // namespace novex
