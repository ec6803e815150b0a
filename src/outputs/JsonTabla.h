#pragma once

#include <string>

#include "base/Tabla.h"

namespace novex {

/// Una tabla como lista JSON de objetos, uno por fila y con las cabeceras por claves; las cifras
/// van como números sin redondear.
std::string JsonTabla(const Tabla& tabla);

/// El número decimal de cinco cifras más cercano, sin cero negativo: con el que se escriben en JSON
/// los resultados.
double CincoCifras(float valor);

}  // namespace novex
