#pragma once

#include "model/Edificio.h"

namespace novex {

/// Carga interna media del año, W/m2: ocupación sensible, iluminación y equipos según los horarios
/// y el calendario (CTE DB-HE, anejo A).
float CargaInternaMedia(const Edificio& edificio);

}  // namespace novex
