#pragma once

#include <vector>

#include "compliance/DocumentosHE.h"
#include "files/DatosDerivados.h"
#include "outputs/CasoCalculado.h"

namespace novex {

/// Lo que el fichero de un proyecto lleva de sus resultados, para guardarlo con `GuardarProyecto`.
/// Un caso que no está entre los calculados va como sin cálculo, y sin la base no hay bloques.
/// \param casos los calculados, con el nombre de su caso \param documentos ficheros de límites
DatosDerivados DerivadosDeResultados(const std::vector<CasoCalculado>& casos,
                                     const DocumentosHE& documentos);

}  // namespace novex
