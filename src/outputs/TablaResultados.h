#pragma once

#include <vector>

#include "base/Tabla.h"
#include "outputs/CasoCalculado.h"

namespace novex {

/// Qué edificio es: lugar, uso, medidas.
Tabla TablaEdificio(const std::string& nombreCaso, const Edificio& edificio);

/// Demanda, energía final y primaria y emisiones del año por servicio, con sus letras.
Tabla TablaServicios(const CasoCalculado& caso);

/// Indicadores que se califican, con su letra y los umbrales de su escala.
Tabla TablaCalificacion(const CasoCalculado& caso);

/// Energía final del año por vector y servicio, kWh del edificio.
Tabla TablaVectores(const CasoCalculado& caso);

/// Lo que `calcular` muestra de un caso, en su orden.
std::vector<Tabla> TablasCaso(const CasoCalculado& caso);

}  // namespace novex
