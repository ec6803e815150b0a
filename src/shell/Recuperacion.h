#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "base/Mensajes.h"
#include "model/GestorEdifActivo.h"

namespace novex {

/// Un trabajo que se quedó a medias.
struct TrabajoPerdido {
  std::filesystem::path copia;     ///< el proyecto como estaba
  std::filesystem::path original;  ///< de qué fichero era; sin carpeta si no se había guardado
  std::filesystem::file_time_type momento;
};

/// La copia de un proyecto sin guardar, por si el programa se cae. Cada programa abierto tiene la
/// suya, con su número de proceso.
class Recuperacion {
 public:
  /// \param carpeta donde van las copias; se crea al guardar la primera
  explicit Recuperacion(std::filesystem::path carpeta);

  /// Guarda el proyecto, entero o nada. \returns si se ha podido
  bool Guardar(const GestorEdifActivo& gestor, const std::filesystem::path& original) const;
  /// Quita la copia: no hay nada sin guardar.
  void Quitar() const;
  /// Copias de programas que ya no están, de la más nueva a la más vieja.
  std::vector<TrabajoPerdido> Perdidos() const;
  /// Quita una copia recuperada o que no se quiere.
  static void Quitar(const TrabajoPerdido& perdido);

  /// El fichero de este proceso.
  std::filesystem::path Fichero() const;

 private:
  std::filesystem::path carpeta_;
};

/// Carpeta de las copias en la del usuario (XDG_STATE_HOME).
std::filesystem::path CarpetaRecuperacion();

}  // namespace novex
