#pragma once

#include <vector>

#include "base/Tabla.h"
#include "outputs/CasoCalculado.h"
#include "outputs/HojaCalificacion.h"

namespace novex {

/// Qué edificio es: lugar, uso, medidas.
Tabla TablaEdificio(const std::string& nombreCaso, const Edificio& edificio);

/// Demanda, energía final y primaria y emisiones del año por servicio, con sus letras.
Tabla TablaServicios(const CasoCalculado& caso);

/// La hoja de calificación en emisiones y en energía primaria no renovable, cada una con la escala
/// de su total.
std::vector<Tabla> TablasCalificacion(const CasoCalculado& caso, EscalaHoja escala);

/// Energía final del año por vector y servicio, kWh del edificio.
Tabla TablaVectores(const CasoCalculado& caso);

/// Lo que `calcular` muestra de un caso, en su orden.
std::vector<Tabla> TablasCaso(const CasoCalculado& caso);

}  // namespace novex
