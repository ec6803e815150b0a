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

/// \throws ErrorFichero, aún sin camino, si `cuantos` pasa de `maximo`
void Comprobar(std::string_view que, std::size_t cuantos, std::size_t maximo);

}  // namespace novex::limiteProyecto
