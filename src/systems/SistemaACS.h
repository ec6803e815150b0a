#pragma once

#include "systems/HoraACS.h"

namespace novex {

/// Agua caliente de un bloque en una hora: la simulación de su depósito o calentador y lo que de
/// ella toma el generador. Lo que pide el reparto solo sirve para el resto; el depósito ve el
/// consumo entero. Deja en `r` lo dado, lo consumido y lo que falta de agua caliente, y en
/// `calefaccion` nada: un sistema con calefacción la da a la vez. \param calefaccion carga de
/// calefacción del bloque, kW
ResultadoACS HoraAguaCaliente(const GeneradorPreparado& g, HoraACS& acs, const HoraSistemas& hora,
                              const calculo& caso, float calefaccion, RespuestaHora& r);

}  // namespace novex
