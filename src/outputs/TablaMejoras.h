#pragma once

#include <string>
#include <vector>

#include "base/Tabla.h"
#include "improvements/EstudioMejoras.h"

namespace novex {

/// Las medidas de un estudio por orden de la energía primaria no renovable que ahorran; a igual
/// ahorro, por código.
std::vector<ResultadoMedida> PorAhorro(std::vector<ResultadoMedida> medidas);

/// Las medidas con su demanda, energía y emisiones frente a la base, y las letras que cambian.
Tabla TablaMejoras(const ResultadoMedida& base, const std::vector<ResultadoMedida>& medidas);

/// El estudio en JSON: la base y las medidas, cada una con su código, su texto, las veintiuna
/// cifras y las letras.
std::string JsonMejoras(const std::string& proyecto, const std::string& nombreCaso,
                        const ResultadoMedida& base, const std::vector<ResultadoMedida>& medidas);

}  // namespace novex
