#pragma once

#include "compliance/VerificacionHE.h"
#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Añade las filas de transmitancias máximas ("UMAXxx", "ULIMxx", "CUMPLExx") y los factores de
/// temperatura de los puentes ("FRSI...", "FRSIMIN...", "CUMPLIMIENTO..."), y la tabla de
/// condensaciones, dos filas por cerramiento (CTE DB-HE1, DA DB-HE/2).
void VariablesEnvolventeHE(const VerificacionHE& verificacion, NOVEX_TO_MODELOCERTIFICADO& modelo);

}  // namespace novex
