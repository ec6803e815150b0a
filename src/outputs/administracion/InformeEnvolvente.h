#pragma once

#include "compliance/VerificacionHE.h"
#include "files/xmlParser.h"
#include "outputs/CasoCalculado.h"

namespace novex {

/// Añade al informe la envolvente térmica: una fila por opaco con área, por tipo y orientación, con
/// la transmitancia con que se verifica y sus capas; una por grupo de huecos y orientación, y una
/// por clase de puente térmico con longitud. Un edificio sin opacos o sin huecos lleva en su lugar
/// una fila de área 0, que el esquema pide al menos una. \param informe el elemento raíz
void AnadirEnvolvente(XMLNode& informe, const CasoCalculado& caso);

}  // namespace novex
