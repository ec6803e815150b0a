#pragma once

#include <string_view>

namespace novex {

/// Provincia de una posición de la lista de lugares de los ficheros de texto, desde 0; vacía si no
/// está en la lista.
std::string_view ProvinciaDeIndice(int provincia);

/// Municipio de una posición de la lista de su provincia, desde 0; el último de cada una es "Otra".
/// Vacío si no está en la lista.
std::string_view CiudadDeIndice(int provincia, int ciudad);

}  // namespace novex
