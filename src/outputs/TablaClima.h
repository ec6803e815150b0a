#pragma once

#include "base/Tabla.h"
#include "demand/FicheroMet.h"

namespace novex {

/// Cifras de cada mes y del año de un fichero de clima, con su lugar en el título.
Tabla TablaClima(const FicheroMet& fichero);

}  // namespace novex
