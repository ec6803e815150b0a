#pragma once

#include <span>
#include <string_view>

namespace novex {

/// Clave del catálogo de campos con que se comprueba el número de una etiqueta del proyecto; vacía
/// si no es un número o no tiene límites.
/// \param etiqueta sin su sector ni su tipo vale igual: las familias se conocen por su comienzo
std::string_view ClaveDeCampo(std::string_view etiqueta);

/// Textos que admite una etiqueta del proyecto; vacía si admite cualquiera.
std::span<const std::string_view> TextosDeCampo(std::string_view etiqueta);

}  // namespace novex
