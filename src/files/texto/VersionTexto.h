#pragma once

#include <optional>
#include <string_view>

namespace novex {

/// Generaciones del fichero de texto. La primera no lleva punto al final de las etiquetas; la
/// segunda tiene los datos del proyectista donde las otras los del certificador.
enum class GeneracionTexto : unsigned { Primera = 1, Segunda = 2, Tercera = 4 };

/// Versión que queda en un caso cuyo fichero no la dice.
inline constexpr std::string_view kVersionSinDecir = "NOVEX_v2.1";
/// Versión que queda en un caso leído de un fichero de texto.
inline constexpr std::string_view kVersionTrasTexto = "NOVEX v6.1";

/// Generación de una versión, comparada exactamente; sin valor si no es ninguna de las conocidas.
std::optional<GeneracionTexto> GeneracionDe(std::string_view version);
/// La generación con que se lee una versión que puede no ser conocida: por su forma si no lo es.
GeneracionTexto GeneracionSupuesta(std::string_view version);
/// ¿Da la versión el lugar por las posiciones de sus listas, y no por sus nombres?
bool LugarPorIndices(std::string_view version);
/// ¿Guarda la versión las mejoras en un segundo fichero, el acabado en "_M.txt"?
bool ConFicheroDeMejoras(std::string_view version);

}  // namespace novex
