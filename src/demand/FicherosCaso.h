#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "demand/calculo.h"

namespace novex {

/// Nombre del fichero de balance de un caso: "Prueba.xml", "PruebaR1.xml",
/// "PruebaReferencia.xml"...
std::string NombreFicheroBalance(std::string_view nombreCaso);
/// Nombre del fichero de sistemas de un caso: "PruebaBis.xml", "PruebaBisR1.xml"...
std::string NombreFicheroSistemas(std::string_view nombreCaso);

/// Escribe el fichero de balance de un caso, con el clima y las cargas de las 8760 horas.
/// \throws ErrorFichero si no se puede escribir
void EscribirFicheroBalance(const std::filesystem::path& carpeta, std::string_view nombreCaso,
                            const calculo& caso);
/// Escribe el fichero de sistemas de un caso: por hora, las magnitudes de sus sistemas.
void EscribirFicheroSistemas(const std::filesystem::path& carpeta, std::string_view nombreCaso,
                             const calculo& caso);

}  // namespace novex
