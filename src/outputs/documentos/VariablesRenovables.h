#pragma once

#include "outputs/CasoCalculado.h"
#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Añade las partes renovables de la calefacción y del agua caliente, en % de su energía final y de
/// la demanda de agua caliente; la energía fotovoltaica que se aprovecha, kWh al año; y las
/// emisiones debidas a la electricidad y a lo demás, kg/m2 y kg al año. \param caso ya plegado
void VariablesRenovables(const CasoCalculado& caso, std::vector<VBLE>& variables);

/// Añade la potencia fotovoltaica, kW, y si la hay las filas de lo que se compensa en cada
/// servicio.
void VariablesFotovoltaica(const CasoCalculado& caso, NOVEX_TO_MODELOCERTIFICADO& modelo);

}  // namespace novex
