#pragma once

#include <string>
#include <string_view>

namespace novex {

/// El nombre con que se enseña un caso: el primero no lleva el que tiene en los ficheros.
inline std::string NombreMostrado(std::string_view nombreCaso) {
  return nombreCaso == "Viejo" ? "Base" : std::string(nombreCaso);
}

}  // namespace novex
