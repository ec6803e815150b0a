#pragma once

#include <string_view>

namespace novex {

/// Comunidad o ciudad autónoma de una provincia, con los nombres de la lista de municipios; vacía
/// si la provincia no está en la lista.
std::string_view ComunidadAutonomaDe(std::string_view provincia);

}  // namespace novex
