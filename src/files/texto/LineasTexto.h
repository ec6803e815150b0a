#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace novex {

/// Las líneas de un fichero de texto, una a una y en UTF-8. Cada línea puede estar en UTF-8 o en
/// Latin-1/Windows-1252, y acabar con LF, con CR LF o con CR.
class LineasTexto {
 public:
  LineasTexto() = default;
  /// \throws ErrorFichero si no se puede leer o es demasiado grande
  explicit LineasTexto(const std::filesystem::path& ruta);

  /// La línea siguiente, sin su final y sin caracteres de control; sin valor al acabar el fichero.
  std::optional<std::string> Siguiente();
  /// ¿Tiene el fichero un texto?
  bool Tiene(std::string_view texto) const { return texto_.find(texto) != std::string::npos; }
  /// Número de la última línea dada, desde 1; 0 antes de la primera.
  std::size_t Numero() const { return numero_; }
  /// Vuelve a dar la última línea dada. Solo se puede deshacer una.
  void Devolver();

 private:
  std::string texto_;
  std::size_t posicion_ = 0, anterior_ = 0, numero_ = 0;
};

/// ¿Contiene una línea un texto?
inline bool Contiene(std::string_view linea, std::string_view texto) {
  return linea.find(texto) != std::string_view::npos;
}

}  // namespace novex
