#include "entry/HojaDeCalculo.h"

#include <algorithm>

#include "base/Texto.h"

namespace novex {

CasillasHoja CasillasDeTexto(std::string_view texto) {
  CasillasHoja filas;
  while (!texto.empty()) {
    const std::size_t fin = std::min(texto.find('\n'), texto.size());
    std::string_view linea = texto.substr(0, fin);
    texto.remove_prefix(std::min(fin + 1, texto.size()));
    std::vector<std::string>& fila = filas.emplace_back();
    while (true) {
      const std::size_t tab = linea.find('\t');
      fila.emplace_back(SinBlancos(linea.substr(0, tab)));
      if (tab == std::string_view::npos) break;
      linea.remove_prefix(tab + 1);
    }
  }
  return filas;
}

std::string TextoDeCasillas(const CasillasHoja& casillas) {
  std::string texto;
  for (const auto& fila : casillas) {
    for (std::size_t i = 0; i < fila.size(); ++i) texto += (i > 0 ? "\t" : "") + fila[i];
    texto += '\n';
  }
  return texto;
}

std::string SinMillares(std::string_view numero) {
  const auto puntos = std::count(numero.begin(), numero.end(), '.');
  const auto comas = std::count(numero.begin(), numero.end(), ',');
  std::string_view sobra;
  if (puntos > 0 && comas > 0)
    sobra = numero.find_last_of('.') > numero.find_last_of(',') ? "," : ".";
  else if (puntos > 1)
    sobra = ".";
  else if (comas > 1)
    sobra = ",";
  std::string limpio;
  for (const char c : numero)
    if (sobra.find(c) == std::string_view::npos) limpio += c;
  return limpio;
}

}  // namespace novex
