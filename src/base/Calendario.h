#pragma once

#include <array>

namespace novex {

inline constexpr int kHorasAno = 8760;
inline constexpr int kMeses = 12;

/// Días de cada mes de un año de 365 días; la posición 0 no se usa.
inline constexpr std::array<int, 13> kDiasMes = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

/// Última hora del año de cada mes; la posición 0 es 0.
inline constexpr std::array<int, 13> kUltimaHoraMes = [] {
  std::array<int, 13> horas{};
  for (std::size_t m = 1; m <= 12; ++m) horas[m] = horas[m - 1] + 24 * kDiasMes[m];
  return horas;
}();

/// Mes (1 a 12) de la hora del año `h` (1 a 8760). Fuera del rango da el mes del extremo.
constexpr int HoraDelMes(int h) {
  int m = 1;
  while (m < kMeses && h > kUltimaHoraMes[static_cast<std::size_t>(m)]) ++m;
  return m;
}

/// Hora del día (1 a 24) de la hora del año `h` (desde 1).
constexpr int HoraDelDia(int h) {
  return (h - 1) % 24 + 1;
}

/// Día del año (1 a 365) de la hora del año `h` (desde 1).
constexpr int DiaDelAno(int h) {
  return (h - 1) / 24 + 1;
}

}  // namespace novex
