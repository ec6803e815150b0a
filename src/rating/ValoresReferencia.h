#pragma once

#include <string_view>

#include "base/Mensajes.h"
#include "demand/calculo.h"
#include "model/Edificio.h"

namespace novex {

/// Lo que se toma del edificio de referencia, kWh/m2 y año.
struct DemandaReferencia {
  float calefaccion = 0, refrigeracion = 0, acs = 0, iluminacion = 0;
};

/// Contribución solar mínima al agua caliente (CTE DB-HE4 2006), de 0 a 1.
/// \param litrosDia volumen de referencia \param zonaRadiante "I" a "V"
float ContribucionSolarMinima(float litrosDia, std::string_view zonaRadiante);

/// Valores de referencia de un caso con la demanda del edificio de referencia servida por el equipo
/// por defecto, y con ellos los umbrales de los usos terciarios. Los factores y el equipo por
/// defecto han de estar ya en los resultados del caso.
void PonerValoresReferencia(const Edificio& edificio, const DemandaReferencia& demanda,
                            ResultadosCaso& resultados, Mensajes& mensajes);

}  // namespace novex
