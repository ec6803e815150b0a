#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/Tabla.h"
#include "outputs/CasoCalculado.h"

namespace novex {

/// La tabla de los casos de mejora: energía final, emisiones, primaria no renovable y demanda, por
/// m2 y año. Una fila por caso, la base como "base", y dos columnas por servicio y para el total:
/// el valor y, junto a él, la letra y el ahorro en % sobre la base, si la base es mayor que 0. La
/// refrigeración que no se cuenta es "( - )". En la demanda, la iluminación y la ventilación son su
/// energía y el total, la suma de lo que se cuenta.
/// \param casos ya calificados; sin casos las tablas no tienen filas
std::array<Tabla, 4> TablasAnalisisTecnico(const std::vector<CasoCalculado>& casos);

}  // namespace novex
