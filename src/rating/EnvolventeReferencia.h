#pragma once

#include "model/Edificio.h"

namespace novex {

/// Convierte un caso terciario en su edificio de referencia: un muro, una cubierta y un suelo con
/// las transmitancias, los puentes térmicos y los huecos del código, sin protecciones móviles y con
/// la iluminación en su límite (RD 47/2007; CTE DB-HE1 2006).
void PonerEnvolventeReferencia(Edificio& edificio);

}  // namespace novex
