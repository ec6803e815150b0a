#pragma once

#include <array>
#include <string>
#include <string_view>

namespace novex {

/// Familias de horarios, en el orden del registro.
enum Familia : std::size_t { C1, C2, CIlu, CEq, CTCh, CTRh, CNR, CCAC };
inline constexpr std::size_t kFamilias = 8;
inline constexpr std::array<std::string_view, kFamilias> kNombreFamilia = {
    "C1", "C2", "CIlu", "CEq", "CTCh", "CTRh", "CNR", "CCAC"};

/// Clases de día. El código de calendario de cada una es su posición más 1; 0 es un día sin uso.
inline constexpr std::size_t kClasesDia = 9;
inline constexpr std::array<std::string_view, kClasesDia> kNombreClaseDia = {
    "Laborable", "Sabado", "Domingo", "E1", "E2", "E3", "E4", "E5", "E6"};

/// 24 valores horarios en las posiciones 1 a 24.
using PerfilDiario = std::array<float, 25>;

/// Los horarios de un caso.
struct Perfiles {
  std::array<std::array<PerfilDiario, kClasesDia>, kFamilias> tabla{};  ///< [familia][clase][hora]
  std::array<int, 366> calendario{};        ///< clase de cada día del año, desde 0
  std::array<std::string, 13> AccionMes{};  ///< 1 a 12
  bool operator==(const Perfiles&) const = default;
};

}  // namespace novex
