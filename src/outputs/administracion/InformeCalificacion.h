#pragma once

#include "files/xmlParser.h"
#include "outputs/CasoCalculado.h"

namespace novex {

/// ¿Tiene el caso las dos letras globales que el informe ha de llevar? No, una simulación libre.
bool TieneLetrasGlobales(const CasoCalculado& caso);

/// Añade al informe las escalas, con sus seis umbrales, y las letras de la demanda, la energía
/// primaria no renovable y las emisiones. Lo que no se califica no lleva escala ni letra.
/// \param informe el elemento raíz \param caso ya calificado
void AnadirCalificacion(XMLNode& informe, const CasoCalculado& caso);

}  // namespace novex
