#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Grafico.h"
#include "base/Tabla.h"
#include "outputs/CasoCalculado.h"

namespace novex {

/// Nombres con que se piden las tablas de resultados de un caso: los de sus páginas ("edificio",
/// "calificacion", "referencia", "casos", "variables"...), los de la comparación de casos
/// ("comparacion-emisiones"), los del detalle ("detalle-demanda-elementos") y los de las rejillas
/// mensuales ("final-acs").
std::vector<std::string> NombresTablas(const Edificio& edificio);

/// ¿Comparan las tablas de ese nombre los casos del proyecto? Hacen falta todos, y son una vez.
bool ComparaCasos(std::string_view nombre);

/// Las tablas de un nombre, comparado exactamente. \param caso ya calculado \param todos los casos
/// del proyecto, para las que los comparan \returns vacío si no hay tal nombre en el caso; ninguna
/// tabla si el caso no tiene lo que enseñan
std::optional<std::vector<Tabla>> TablasDeNombre(const CasoCalculado& caso,
                                                 const std::vector<CasoCalculado>& todos,
                                                 std::string_view nombre);

/// Un gráfico como tabla: una fila por posición del eje horizontal y una columna por serie.
Tabla TablaDeGrafico(const Grafico& grafico, std::string nota);

}  // namespace novex
