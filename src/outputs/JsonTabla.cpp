#include "outputs/JsonTabla.h"

#include <array>
#include <charconv>
#include <cmath>
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

double CincoCifras(float valor) {
  if (!std::isfinite(valor)) return static_cast<double>(valor);
  std::array<char, 32> texto{};
  const auto fin = std::to_chars(texto.data(), texto.data() + texto.size(), valor,
                                 std::chars_format::scientific, 4);
  double redondeado = 0;
  std::from_chars(texto.data(), fin.ptr, redondeado);
  return redondeado == 0.0 ? 0.0 : redondeado;
}

}  // namespace novex
