#pragma once

#include <string>

#include "demand/ResultadosCaso.h"
#include "model/Edificio.h"

namespace novex {

/// Límites de demanda y de energía primaria de un caso, kWh/m2 y año (CTE DB-HE0). Las zonas que la
/// tabla no trae toman los de su letra de invierno con la corrección extrapeninsular.
/// \param cargaInterna media del año, W/m2
LimitesCaso LimitesHE0(const Edificio& edificio, float cargaInterna);

}  // namespace novex
