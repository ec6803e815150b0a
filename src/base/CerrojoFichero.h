#pragma once

#include <filesystem>

namespace novex {

/// Un turno entre procesos sobre un fichero de cerrojo: se espera al construirlo y se cede al
/// destruirlo, también si el proceso se cae. Donde no se puede tomar no hay turno, y se sigue.
class CerrojoFichero {
 public:
  /// \param ruta fichero de cerrojo; se crea si no está
  explicit CerrojoFichero(const std::filesystem::path& ruta);
  CerrojoFichero(const CerrojoFichero&) = delete;
  CerrojoFichero& operator=(const CerrojoFichero&) = delete;
  ~CerrojoFichero();

 private:
  int descriptor_ = -1;
};

}  // namespace novex
