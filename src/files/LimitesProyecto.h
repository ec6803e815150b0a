#pragma once

#include <cstddef>
#include <string_view>

/// Cuánto se acepta de cada lista de un fichero de proyecto: muy por encima de todo edificio, y lo
/// bastante poco para que un fichero estropeado no agote la memoria.
namespace novex::limiteProyecto {

inline constexpr int kHuecosColumna = 9999;
inline constexpr std::size_t kHuecos = 100'000;
inline constexpr std::size_t kGruposHuecos = 1000;
inline constexpr std::size_t kMateriales = 5000;
inline constexpr std::size_t kCapas = 1000;
inline constexpr std::size_t kSistemas = 1000;
/// Elementos de un sistema que el programa no conoce y devuelve al guardar, con los de dentro.
inline constexpr std::size_t kDesconocidos = 1000;
inline constexpr std::size_t kFilas = 1000;     ///< referencias catastrales, elementos inalterables
inline constexpr std::size_t kMedidas = 1000;   ///< del estudio de mejoras
inline constexpr std::size_t kLetras = 65'536;  ///< bytes de un texto; el resto no se lee
inline constexpr std::size_t kLetrasMaterial = 1000;  ///< bytes del nombre de un material

/// \throws ErrorFichero, aún sin camino, si `cuantos` pasa de `maximo`
void Comprobar(std::string_view que, std::size_t cuantos, std::size_t maximo);

}  // namespace novex::limiteProyecto
