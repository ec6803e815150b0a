#pragma once

#include <string>

#include "base/Serie.h"
#include "outputs/PeriodoSerie.h"

namespace novex {

/// Lo que resume una serie en unas horas, en su unidad.
struct EstadisticaSerie {
  double maximo = 0, minimo = 0;
  int horaMaximo = 1, horaMinimo = 1;  ///< del año; con empate, la primera
  double suma = 0, media = 0;
  int horasSobreUno = 0, horasBajoMenosUno = 0;  ///< horas por encima de 1 y por debajo de -1
  int horasMarcadas = 0;                         ///< horas con valor mayor que 0
};

/// Resume las horas de una serie del año.
/// \throws std::out_of_range si la serie no llega a la última hora
EstadisticaSerie ResumirSerie(const Serie& serie, RangoHoras horas);

/// La línea que va sobre el gráfico de una serie, según su clase. Las energías, aunque la serie
/// esté en Wh, se dicen en kWh. \param superficie útil, m2: con 0 falta el valor por m2
/// \returns el texto, o el del aviso si el periodo no existe
/// \throws std::out_of_range si la serie no tiene las 8760 horas
std::string LineaEstadistica(const Serie& serie, const PeriodoSerie& periodo, double superficie);

}  // namespace novex
