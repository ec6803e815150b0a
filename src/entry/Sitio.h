#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/Mensajes.h"
#include "entry/CatalogoMunicipios.h"
#include "files/xmlParser.h"
#include "model/Edificio.h"

namespace novex {

/// Zona climática por la altitud en la provincia de una capital (CTE DB-HE, anejo B).
/// \param capital nombre como en la lista de capitales \param altitud m
/// \returns la zona; vacía si la capital no está en la tabla
std::string_view ZonaPorAltitud(std::string_view capital, int altitud);

/// ¿Es una de las zonas que el usuario puede elegir?
bool EsZonaClimatica(std::string_view zona);

/// Pone el edificio en un municipio: provincia, municipio, altitud, latitud y zona de radiación de
/// su fila, y la zona climática si no la ha fijado el usuario. Las transmitancias de los puentes
/// que salen de una tabla siguen a la zona.
/// \param conservarAltitud deja la altitud del edificio; la zona sale entonces de ella
/// \param capitales elemento `CAPITALES`
/// \returns false, sin cambiar nada, si el municipio no está
bool PonerMunicipio(Edificio& edificio, const CatalogoMunicipios& municipios,
                    const XMLNode& capitales, std::string_view provincia,
                    std::string_view municipio, bool conservarAltitud, Mensajes& mensajes);

/// Pone la altitud tecleada, comprobada con "Cota", y la zona que le corresponde en su provincia si
/// no la ha fijado el usuario.
void PonerAltitud(Edificio& edificio, const XMLNode& capitales, std::string_view texto,
                  Mensajes& mensajes);

/// Fija la zona climática elegida por el usuario, que ya nada vuelve a calcular.
/// \returns false, sin cambiar nada, si no es de la lista
bool FijarZona(Edificio& edificio, std::string_view zona);

/// Deja de fijar la zona: vuelve a ser la de su municipio, o la de su altitud si no es la de él.
void SoltarZona(Edificio& edificio, const CatalogoMunicipios& municipios, const XMLNode& capitales);

/// Juegos de clima que se pueden elegir; el primero es el que no lleva marca.
inline constexpr std::array<std::string_view, 5> kJuegosClima = {"Oficial", "1992", "2002", "2012",
                                                                 "2022"};
/// Juego de clima de un caso, uno de `kJuegosClima`: lo dice la marca de `CodigoPostal`.
std::string_view JuegoClima(const DatosGenerales& generales);

/// Elige el juego de clima. La marca ocupa el código postal, que se pierde; al volver al oficial se
/// quita la marca. \returns false, sin cambiar nada, si no es de la lista
bool PonerJuegoClima(Edificio& edificio, std::string_view juego);

}  // namespace novex
