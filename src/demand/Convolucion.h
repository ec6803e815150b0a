#pragma once

#include <span>

#include "demand/Series.h"

namespace novex {

/// Suma de las horas anteriores con pesos, en un año que se repite: salida(h) = Σ pesos[k]
/// entrada(h-k). \param pesos hasta 64 términos, el 0 el de la propia hora \param salida puede ser
/// la misma serie que la entrada
void ConvolucionPeriodica(const SerieHoraria& entrada, std::span<const float> pesos,
                          SerieHoraria& salida);

/// La misma suma en doble precisión, para que un valor que cae justo entre dos decimales no se
/// redondee por el error de la simple.
void ConvolucionExacta(const SerieHoraria& entrada, std::span<const double> pesos,
                       SerieHoraria& salida);

/// Redondea los valores de una serie a decimales fijos, como lo hace su paso por el fichero de
/// caso.
void RedondearSerie(SerieHoraria& serie, int decimales);

}  // namespace novex
