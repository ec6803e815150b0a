#pragma once

#include <string>
#include <vector>

#include "outputs/CasoCalculado.h"

namespace novex {

/// Resultados de un proyecto en JSON (UTF-8, con sangría y salto de línea final).
/// Los valores del año y la demanda de los meses van por m2 de superficie útil; la energía final de
/// los meses por vector, en kWh del edificio y sin los vectores que no se usan. Cinco cifras
/// significativas; la demanda de calefacción, positiva.
/// \param proyecto nombre del fichero de proyecto
std::string JsonResultados(const std::string& proyecto, const std::vector<CasoCalculado>& casos);

}  // namespace novex
