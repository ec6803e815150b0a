#pragma once

#include <filesystem>
#include <string>

namespace novex {

/// Carpetas con las que trabaja el programa, todas dentro de una carpeta de programa.
struct EspacioTrabajo {
  std::filesystem::path programa;

  /// Catálogos, límites y ficheros de trabajo.
  std::filesystem::path Datos() const { return programa / "database"; }
  /// Proyectos del usuario.
  std::filesystem::path Proyectos() const { return programa / "proyectos"; }
  /// Imágenes de las pantallas y de los documentos.
  std::filesystem::path Imagenes() const { return programa / "bmp"; }
  /// Fichero de clima de una zona. `codigoPostal` lleva la marca del juego de datos: "-1992",
  /// "-2002",
  /// "-2012" y "-2022" dan su carpeta; cualquier otro texto, el juego oficial.
  std::filesystem::path Clima(const std::string& zona, const std::string& codigoPostal) const;
};

/// Nombre de la carpeta del juego de clima que corresponde a la marca de `codigoPostal`.
std::string CarpetaClima(const std::string& codigoPostal);

/// Carpeta de programa por defecto: la que está junto al ejecutable, en `programa/` o en su propia
/// carpeta; si no la hay, la instalada en `share/novex`. Vacía si no se encuentra ninguna.
std::filesystem::path BuscarCarpetaPrograma(const std::filesystem::path& ejecutable);

}  // namespace novex
