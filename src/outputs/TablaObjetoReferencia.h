#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/Tabla.h"
#include "outputs/CasoCalculado.h"

namespace novex {

/// En qué se dan los valores de la tabla, en el orden de su selector.
enum class UnidadesReferencia : std::size_t { Totales, PorM2 };
inline constexpr std::array<std::string_view, 2> kTextoUnidadesReferencia = {"Valores totales",
                                                                             "Valores /m2 "};

/// Lo que se dice donde no la hay.
inline constexpr std::string_view kSinObjetoReferencia =
    "El caso no se compara con un edificio de referencia";

/// Título de la tabla.
inline constexpr std::string_view kTituloObjetoReferencia = "Detalle edificio objeto / referencia";

/// Tabla del edificio objeto y el de referencia: valores, índice y letra de cada indicador, con las
/// notas debajo. El índice queda en blanco con una referencia de 0.
/// \param caso ya calificado y con los valores de su edificio de referencia
/// \returns vacío donde no hay edificio de referencia: en vivienda y en una simulación libre
std::optional<Tabla> TablaObjetoReferencia(const CasoCalculado& caso, UnidadesReferencia unidades);

}  // namespace novex
