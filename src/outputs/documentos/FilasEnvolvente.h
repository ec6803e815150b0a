#pragma once

#include "outputs/CasoCalculado.h"
#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Añade al modelo los cerramientos del primer recinto que tienen área, uno por elemento y
/// orientación, y las composiciones que los forman con sus capas de fuera adentro, cada una una
/// vez. \param caso ya calculado: de él sale la U
void FilasCerramientos(const CasoCalculado& caso, NOVEX_TO_MODELOCERTIFICADO& modelo);

/// Añade un hueco por grupo y orientación con unidades.
void FilasHuecos(const Edificio& edificio, NOVEX_TO_MODELOCERTIFICADO& modelo);

/// Añade los ocho puentes térmicos, siempre los mismos: las dos esquinas de los cerramientos
/// comparten sus valores.
void FilasPuentes(const Construccion& construccion, NOVEX_TO_MODELOCERTIFICADO& modelo);

/// Lo que se dice de cómo se ha definido un cerramiento.
std::string ModoDefinicion(const composicion& cerramiento);

}  // namespace novex
