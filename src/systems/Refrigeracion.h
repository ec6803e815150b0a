#pragma once

#include "systems/GeneradorPreparado.h"
#include "systems/RespuestaHora.h"

namespace novex {

/// Refrigeración de un bloque en una hora, con sus bombas y ventiladores. La carga entra en
/// `r.noDado[kRefrigeracion]`.
/// \param carga sensible, kW
void HoraFrio(const GeneradorPreparado& g, const HoraSistemas& hora, float carga, RespuestaHora& r);

}  // namespace novex
