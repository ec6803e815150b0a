#pragma once

#include <string_view>

#include "base/Mensajes.h"
#include "files/xmlParser.h"
#include "model/Edificio.h"

namespace novex {

/// Clave de los valores de uso por defecto de una posición de `PerfilUso`: "Residencial" por debajo
/// de 3, "8hB" a "24hA" de 3 a 14, y "12hM" para el perfil de usuario y lo que pase de él.
std::string_view ClaveUsoPorDefecto(int perfilUso);

/// Carga en un caso los valores de uso por defecto de una clave: `Tipo`, las cargas máximas de
/// ocupación, iluminación y equipos (W/m2), los horarios, el calendario y las acciones por mes en
/// `DatosGenerales`, y los meses de verano en `Localizacion` (CTE DB-HE, anejo D). Si al documento
/// le falta algo de la clave o trae un valor que no vale, avisa de cuál y deja el caso como está.
/// \param raiz elemento `PERFILES_USO`
/// \returns si se han cargado
bool AplicarUsoPorDefecto(const XMLNode& raiz, std::string_view clave, Edificio& edificio,
                          Mensajes& mensajes);

}  // namespace novex
