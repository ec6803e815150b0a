#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace novex {

/// Vectores energéticos de la energía final.
enum class VectorEnergetico : std::size_t {
  Electricidad,
  GasNatural,
  Gasoleo_C,
  GLP,
  Carbon,
  Biomasa_Pellet,
  Biomasa_Otros,
  Biocarburantes,
  MedioAmbiente,
  Energiasolartermica,
  Energiasolarfotovoltaica
};
inline constexpr std::size_t kVectores = 11;
/// Los que se compran y pueden estar en una fila de consumo: de la electricidad a la biomasa.
inline constexpr std::size_t kVectoresConsumo = 7;

inline constexpr std::array<std::string_view, kVectores> kNombreVector = {
    "Electricidad",
    "GasNatural",
    "Gasoleo_C",
    "GLP",
    "Carbon",
    "Biomasa_Pellet",
    "Biomasa_Otros",
    "Biocarburantes",
    "MedioAmbiente",
    "Energiasolartermica",
    "Energiasolarfotovoltaica"};

/// Vector de un nombre, comparado exactamente; vacío si no es ninguno.
constexpr std::optional<VectorEnergetico> VectorDeNombre(std::string_view nombre) {
  for (std::size_t i = 0; i < kVectores; ++i)
    if (kNombreVector[i] == nombre) return static_cast<VectorEnergetico>(i);
  return std::nullopt;
}

constexpr std::size_t Indice(VectorEnergetico v) {
  return static_cast<std::size_t>(v);
}

/// Servicios del edificio. Los tres primeros los dan sistemas con demanda.
enum Servicio : std::size_t { kACS, kCalefaccion, kRefrigeracion, kVentilacion, kIluminacion };
inline constexpr std::size_t kServicios = 5;
inline constexpr std::size_t kServiciosDemanda = 3;
inline constexpr std::array<std::string_view, kServicios> kNombreServicio = {
    "acs", "calefaccion", "refrigeracion", "ventilacion", "iluminacion"};

/// Unidades en que se cuenta una energía final convertida.
enum UnidadEnergia : std::size_t {
  kFinal,                ///< kWh
  kPrimariaTotal,        ///< kWh
  kPrimariaNoRenovable,  ///< kWh
  kPrimariaRenovable,    ///< kWh
  kEmisiones             ///< kg de CO2
};
inline constexpr std::size_t kUnidadesEnergia = 5;

}  // namespace novex
