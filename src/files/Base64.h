#pragma once

#include <string>
#include <string_view>

namespace novex {

/// Pasa unos bytes a Base64 normal, con relleno y sin saltos de línea.
std::string CodificarBase64(std::string_view bytes);

/// Decodifica Base64 saltando los bytes que no son de su alfabeto; el relleno lo termina.
/// \param bytes recibe lo decodificado, también cuando falta algo al final
/// \returns 0, o el código 17 si el texto no es múltiplo de 4, o 19 si además acaba a medio byte
int DecodificarBase64(std::string_view texto, std::string& bytes);

}  // namespace novex
