#pragma once

#include <array>
#include <string_view>

namespace novex {

/// Cabeceras de los doce meses en las tablas y en los ejes de los gráficos.
inline constexpr std::array<std::string_view, 12> kMesesCortos = {
    "ENE", "FEB", "MAR", "ABR", "MAY", "JUN", "JUL", "AGO", "SEP", "OCT", "NOV", "DIC"};

}  // namespace novex
