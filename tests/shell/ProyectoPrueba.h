#pragma once

#include <filesystem>
#include <string>

namespace novex::pruebas {

/// Guarda un proyecto en blanco con la zona y la superficie dadas en su caso base, y tantas mejoras
/// iguales a él.
void GuardarProyectoPrueba(const std::filesystem::path& ruta, const std::string& zona,
                           float superficie, int mejoras);

}  // namespace novex::pruebas
