#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace novex {

/// Tamaño mayor que se acepta de un fichero de entrada, en bytes.
inline constexpr std::size_t kTamanoMaximoFichero = std::size_t{256} * 1024 * 1024;

/// Lee un fichero entero, en binario.
/// \throws ErrorFichero si no se puede abrir, si no es un fichero corriente o si pasa de
/// `kTamanoMaximoFichero`.
std::string LeerFichero(const std::filesystem::path& ruta);

/// Escribe un fichero entero de modo que nunca quede a medias: escribe al lado, vuelca al disco y
/// renombra. Si algo falla, el fichero anterior sigue como estaba.
/// \throws ErrorFichero si no se puede escribir.
void EscribirFichero(const std::filesystem::path& ruta, std::string_view contenido);

}  // namespace novex
