#pragma once

#include "systems/GeneradorPreparado.h"
#include "systems/RespuestaHora.h"

namespace novex {

/// Caldera en una hora con sus dos cargas: el agua caliente primero. Suma a `r` lo entregado y lo
/// que consume, y le quita lo que deja sin dar. \param generador 1 o 2 \param agua temperatura del
/// agua que ve su curva, °C
void HoraCaldera(const GeneradorPreparado& g, int generador, float agua, float acs,
                 float calefaccion, RespuestaHora& r);

/// Bomba de calor aire-agua en una hora. \returns temperatura del agua que ha elegido, °C
float HoraBombaCalor(const GeneradorPreparado& g, const HoraSistemas& hora, float acs,
                     float calefaccion, RespuestaHora& r);

/// Agua caliente y calefacción de un bloque con la clase que sea, con sus bombas y ventiladores.
/// Las cargas entran en `r.noDado`. \param acs carga de agua caliente que toma el generador, kW
/// \param calefaccion carga, kW
void HoraCalor(const GeneradorPreparado& g, const HoraSistemas& hora, float acs, float calefaccion,
               RespuestaHora& r);

}  // namespace novex
