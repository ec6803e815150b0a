#include "files/texto/LineasTexto.h"

#include <algorithm>

#include "base/FicheroSeguro.h"
#include "base/Texto.h"
#include "files/CodificacionXml.h"

namespace novex {

LineasTexto::LineasTexto(const std::filesystem::path& ruta) : texto_(LeerFichero(ruta)) {
  if (texto_.starts_with(kBomUtf8)) posicion_ = kBomUtf8.size();
}

std::optional<std::string> LineasTexto::Siguiente() {
  if (posicion_ >= texto_.size()) return std::nullopt;
  anterior_ = posicion_;
  const std::size_t fin = std::min(texto_.find_first_of("\r\n", posicion_), texto_.size());
  std::string linea = AUtf8(std::string_view(texto_).substr(posicion_, fin - posicion_));
  posicion_ = fin;
  if (posicion_ < texto_.size() && texto_[posicion_] == '\r') ++posicion_;
  if (posicion_ < texto_.size() && texto_[posicion_] == '\n' &&
      (posicion_ == fin || texto_[posicion_ - 1] == '\r'))
    ++posicion_;
  ++numero_;
  // Un carácter de control no es de ningún dato, y un XML no lo admite.
  std::erase_if(linea, [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte < 0x20 && c != '\t') || byte == 0x7F;
  });
  return linea;
}

void LineasTexto::Devolver() {
  posicion_ = anterior_;
  --numero_;
}

}  // namespace novex
