#pragma once

#include <vector>

#include "files/xmlParser.h"
#include "improvements/EstudioMejoras.h"

namespace novex {

/// Añade al informe las medidas de mejora, con su coste, sus notas, lo que resulta de cada una y lo
/// que ahorra frente a la base. Sin medidas no añade nada. \param informe el elemento raíz
void AnadirMejoras(XMLNode& informe, const Edificio& edificio, const MejorasMedidas& mejoras);

/// Añade las visitas al edificio con su fecha y lo que se anotó en ellas.
void AnadirVisitas(XMLNode& informe, const DatosGenerales& generales);

}  // namespace novex
