#pragma once

#include "base/Tabla.h"
#include "rating/FactoresConversion.h"

namespace novex {

/// Coeficientes de paso de la energía final a emisiones (kg de CO2 por kWh) y a energía primaria
/// renovable, no renovable y total (kWh por kWh), una fila por tipo de energía; la electricidad,
/// una por sistema eléctrico. \param factores filas leídas; las que faltan están a 0
Tabla TablaCoeficientesPaso(const TablaFactores& factores);

}  // namespace novex
