#pragma once

#include <array>
#include <string_view>

namespace novex {

/// Costes de una medida, por su posición en `Coste`; así se enseñan y así se guardan.
inline constexpr std::array<std::string_view, 7> kCostesMejora = {
    "<500", "500-1000", "1000-10000", "10000-25000", "25000-50000", "50000-100000", ">100000"};
/// Plazos de recuperación por su posición en `PlazoAmortizacion`, como se guardan.
inline constexpr std::array<std::string_view, 4> kPlazosFichero = {"<5", "5-10", "10-15", ">15"};

}  // namespace novex
