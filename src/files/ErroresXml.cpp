#include "files/ErroresXml.h"

#include <algorithm>
#include <array>

namespace novex {
namespace {

constexpr std::array<std::string_view, 21> kTextos = {
    "No error",
    "Warning: Unmatched end tag",
    "Warning: No XML tag found",
    "Error: No XML data",
    "Error: Missing start tag name",
    "Error: Missing end tag name",
    "Error: Unmatched end tag",
    "Error: Unmatched clear tag end",
    "Error: Unexpected token found",
    "Error: No elements found",
    "Error: File not found",
    "Error: First Tag not found",
    "Error: Unknown character entity",
    "Error: Character code above 255 is forbidden in MultiByte char mode.",
    "Error: unable to convert between WideChar and MultiByte chars",
    "Error: unable to open file for writing",
    "Error: cannot write into file",
    "Warning: Base64-string length is not a multiple of 4",
    "Error: Base64-string contains an illegal character",
    "Warning: Base64-string is truncated",
    "Error: Base64 decode output buffer is too small"};

}  // namespace

std::string_view TextoErrorXml(int codigo) {
  const auto i = static_cast<std::size_t>(codigo);
  return codigo >= 0 && i < kTextos.size() ? kTextos[i] : "Unknown";
}

PosicionTexto PosicionDe(std::string_view texto, std::size_t desplazamiento) {
  const std::string_view antes = texto.substr(0, std::min(desplazamiento, texto.size()));
  const auto saltos = std::count(antes.begin(), antes.end(), '\n');
  const auto ultimo = antes.rfind('\n');
  const auto enLinea = ultimo == std::string_view::npos ? antes.size() : antes.size() - ultimo - 1;
  return {static_cast<int>(saltos) + 1, static_cast<int>(enLinea) + 1};
}

ErrorFichero ErrorLecturaXml(const std::string& ruta, int codigo, PosicionTexto donde,
                             std::string_view raiz, std::string_view detalle) {
  std::string mensaje = "XML Parsing error inside file '" + ruta + "'.\n";
  mensaje.append(detalle.empty() ? TextoErrorXml(codigo) : detalle);
  mensaje += "\nAt line " + std::to_string(donde.linea) + ", column " +
             std::to_string(donde.columna) + ".\n";
  if (codigo == codigoXml::kRaizDistinta)
    mensaje.append("First Tag should be '").append(raiz).append("'.\n");
  return {ruta, codigo, donde.linea, donde.columna, mensaje};
}

bool EsDeLecturaXml(const ErrorFichero& error) {
  return error.codigo != codigoXml::kSinError && error.codigo != codigoXml::kNoSeAbre &&
         error.codigo != codigoXml::kNoSeEscribe;
}

}  // namespace novex
