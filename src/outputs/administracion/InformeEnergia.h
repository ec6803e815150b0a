#pragma once

#include "files/xmlParser.h"
#include "outputs/CasoCalculado.h"

namespace novex {

/// Añaden al informe las energías del año. \param informe el elemento raíz \param caso ya
/// calificado

/// Lo que cubren las renovables: de la energía final de calefacción y agua caliente y de la demanda
/// de esta, en %, la solar térmica, la biomasa y el calor tomado del ambiente; y la electricidad
/// fotovoltaica que se aprovecha, kWh. Sin renovables no añade nada.
void AnadirRenovables(XMLNode& informe, const CasoCalculado& caso);
/// Demandas del edificio, kWh/m2; en terciario las de la referencia, y las exigidas a una vivienda
/// cuando el informe lleva la verificación.
void AnadirDemanda(XMLNode& informe, const CasoCalculado& caso);
/// Factores de paso, energía final comprada por vector y primaria no renovable por servicio,
/// kWh/m2.
void AnadirConsumo(XMLNode& informe, const CasoCalculado& caso);
/// Emisiones por servicio y de la electricidad y lo demás, kg/m2 y kg.
void AnadirEmisiones(XMLNode& informe, const CasoCalculado& caso);

}  // namespace novex
