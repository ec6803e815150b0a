#include "entry/TextosLibres.h"

#include <algorithm>

namespace novex {

std::vector<std::string> LineasDeTexto(std::string_view texto, std::size_t limite,
                                       Mensajes& mensajes) {
  std::vector<std::string> lineas;
  while (!texto.empty()) {
    const std::size_t fin = std::min(texto.find('\n'), texto.size());
    std::string_view linea = texto.substr(0, fin);
    if (linea.ends_with('\r')) linea.remove_suffix(1);
    lineas.emplace_back(linea);
    texto.remove_prefix(std::min(fin + 1, texto.size()));
  }
  if (lineas.size() > limite) {
    const std::string n = std::to_string(limite);
    mensajes.Avisar("ATENCION", "Se han definido mas de " + n +
                                    " líneas, se recorta el texto a las " + n + " primeras líneas");
    lineas.resize(limite);
  }
  return lineas;
}

bool GuardarNotaMedida(EstudioModificaciones& estudio, int codigo, std::string_view texto,
                       Mensajes& mensajes) {
  const auto it =
      std::find_if(estudio.medidas.begin(), estudio.medidas.end(),
                   [=](const MedidaEstudio& m) { return m.codigo == codigo && m.marca; });
  if (it == estudio.medidas.end()) return false;
  it->notas = LineasDeTexto(texto, kLineasNota, mensajes);
  return true;
}

std::vector<std::string> NotaMedida(const EstudioModificaciones& estudio, int codigo) {
  for (const MedidaEstudio& m : estudio.medidas)
    if (m.codigo == codigo) return m.notas;
  return {};
}

}  // namespace novex
