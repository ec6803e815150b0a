#pragma once

#include <string>
#include <vector>

#include "compliance/VerificacionHE.h"
#include "outputs/CasoCalculado.h"
#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Añade lo que los documentos dicen del DB-HE: energía primaria, horas fuera de consigna, K,
/// control solar, n50, demandas, contribuciones renovables y recuperador, con su límite y su texto.
/// \param caso ya calificado \param verificacion la del mismo caso
void VariablesVeredictos(const CasoCalculado& caso, const VerificacionHE& verificacion,
                         std::vector<VBLE>& variables);

/// Lo que se dice del recuperador de calor de un edificio.
std::string TextoRecuperador(const DatosGenerales& generales);

}  // namespace novex
