#pragma once

#include "demand/calculo.h"
#include "model/Edificio.h"

namespace novex {

/// Repasa que los datos del caso se puedan calcular: superficie y volumen mayores que 0 y números
/// finitos. \throws ErrorCalculo con el nombre del dato
void ComprobarDatosDeEntrada(const Edificio& edificio);

/// Repasa que las series y los resultados del caso sean finitos.
/// \throws ErrorCalculo con la etapa, la serie y la hora o el mes
void ComprobarResultados(const calculo& caso);

}  // namespace novex
