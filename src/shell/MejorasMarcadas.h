#pragma once

#include <optional>
#include <string_view>

#include "calculation/Entorno.h"
#include "model/GestorEdifActivo.h"
#include "outputs/documentos/VariablesMejora.h"

namespace novex {

/// Mide las medidas marcadas en el estudio de un caso, para los documentos. Con más de las que
/// caben avisa y no mide ninguna. \param hilos al menos 1 \returns vacío si no se ha podido
/// preparar el estudio (el aviso ya se ha dado) \throws ErrorCalculo
std::optional<MejorasMedidas> MedirMarcadas(GestorEdifActivo& gestor, std::string_view nombreCaso,
                                            unsigned hilos, Entorno& entorno);

}  // namespace novex
