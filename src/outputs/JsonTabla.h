#pragma once

#include <string>

#include "base/Tabla.h"

namespace novex {

/// Una tabla como lista JSON de objetos, uno por fila y con las cabeceras por claves; las cifras
/// van como números sin redondear.
std::string JsonTabla(const Tabla& tabla);

}  // namespace novex
