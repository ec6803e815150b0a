#pragma once

#include <filesystem>
#include <string>

namespace novex::pruebas {

/// Guarda un proyecto con la zona y la superficie útil dadas en su caso base, y tantas mejoras
/// iguales a él. Solo tiene un suelo adiabático, su consigna y el sistema de agua caliente: lo
/// justo para poderse calcular; sin agua caliente, las mejoras no se pueden.
void GuardarProyectoPrueba(const std::filesystem::path& ruta, const std::string& zona,
                           float superficie, int mejoras, bool mejorasSinACS = false);

}  // namespace novex::pruebas
