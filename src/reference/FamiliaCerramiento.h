#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace novex {

/// Familia de un cerramiento: qué separa. Decide la rama de los catálogos y las películas de aire.
enum class FamiliaCerramiento {
  MurosExterior,
  MurosInterior,
  MurosTerreno,
  ForjadosExteriorInterior,
  ForjadosInteriorInterior,
  ForjadosInteriorExterior,
  ForjadosInteriorTerreno,
  Muebles  ///< tiene películas pero ninguna posición de la envolvente ni rama en el catálogo
};
/// Las familias que tienen rama en el catálogo son las primeras.
inline constexpr std::size_t kFamiliasCatalogo = 7;

/// Nombre de una familia, que es el de su rama en el catálogo de composiciones.
std::string_view NombreFamilia(FamiliaCerramiento familia);
/// Familia de un nombre, comparado exactamente; vacío si no es ninguna.
std::optional<FamiliaCerramiento> FamiliaDe(std::string_view nombre);
/// Familia de una posición de la envolvente. \throws std::out_of_range si no está entre 0 y 51
FamiliaCerramiento FamiliaDeRanura(std::size_t ranura);

/// Coeficiente que representa el contacto con el terreno, W/m2K.
inline constexpr float kTerreno = 9999.0F;

/// Coeficientes de convección y radiación de las dos caras de un cerramiento, W/m2K.
struct Peliculas {
  float he = 0;  ///< cara exterior
  float hi = 0;  ///< cara interior
};

/// Películas de una familia (UNE-EN ISO 6946, CTE DA DB-HE/1).
Peliculas PeliculasDe(FamiliaCerramiento familia);
/// Un coeficiente como se muestra: "Terreno" si lo es, y si no el número.
std::string TextoPelicula(float coeficiente);

/// ¿Es vertical el cerramiento? Lo son los muros; los forjados, las cubiertas y los suelos, no.
bool EsVertical(FamiliaCerramiento familia);
/// Lo que hay a cada lado de un cerramiento, en el orden de sus capas: en un muro de fuera adentro,
/// en uno horizontal de arriba abajo.
struct Caras {
  std::string_view primera, ultima;
  bool operator==(const Caras&) const = default;
};
/// Las caras de una posición de la envolvente. \throws std::out_of_range si no está entre 0 y 51
Caras CarasDeRanura(std::size_t ranura);
/// "M" en los muros, "F" en cubiertas y suelos.
std::string_view AplicacionDe(FamiliaCerramiento familia);

}  // namespace novex
