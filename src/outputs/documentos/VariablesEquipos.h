#pragma once

#include "outputs/CasoCalculado.h"
#include "outputs/documentos/EquiposServicio.h"
#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Cómo escribe un documento los rendimientos: la verificación del DB-HE, como razón; el
/// certificado, en tanto por ciento.
enum class FormaRendimiento { Razon, TantoPorCiento };

/// El rendimiento del año de un generador: "Definido por usuario" si no lo tiene, y "Definido por
/// defecto" el del equipo por defecto.
std::string TextoRendimientoEstacional(const GeneradorServicio& generador, FormaRendimiento forma);

/// Llena las tres listas de equipos del modelo y añade las variables de la potencia de cada
/// servicio: `TOTALPOTACS`, `POTNOMACS` y las demás, en kW. \param caso ya plegado
void VariablesEquipos(const CasoCalculado& caso, FormaRendimiento forma,
                      NOVEX_TO_MODELOCERTIFICADO& modelo);

}  // namespace novex
