#pragma once

#include <string_view>

namespace novex {

inline constexpr std::string_view kNombrePrograma = "NOVEX";
inline constexpr std::string_view kVersionPrograma = "2026.09.30";
/// Versión que llevan los ficheros que se escriben.
inline constexpr std::string_view kVersionActual = "NOVEX 2026.09.30";
inline constexpr std::string_view kEtiquetaVersion = "Version";

/// Disposición de un fichero de proyecto.
enum class DisposicionProyecto { Actual, Antigua };

/// Disposición que corresponde a una versión, comparada exactamente.
DisposicionProyecto DisposicionDe(std::string_view version);

}  // namespace novex
