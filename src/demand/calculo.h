#pragma once

#include <array>
#include <vector>

#include "demand/ResultadosCaso.h"
#include "demand/Series.h"
#include "demand/TablasMensuales.h"
#include "demand/Valores.h"

namespace novex {

/// El objeto de cálculo de un caso: sus series, sus tablas y sus resultados.
class calculo {
 public:
  ResultadosCaso resultados;
  SeriesClima clima;
  SeriesCarga carga;
  SeriesZona zona;
  SeriesSistemas sistemas;
  /// Magnitudes de cada sistema, en el orden del fichero; sus direcciones no cambian.
  std::deque<AtributoSistema> atributos;
  /// Un elemento por bloque de generador, contados por sistemas y dentro de cada uno por bloques.
  std::vector<SumasBloque> sumasBloques;
  TablasMensuales meses;
  valores_type valores;

  float alturaEdificio = 0;     ///< m
  TablaMensual TmediaMes{};     ///< temperatura exterior media de cada mes, °C; la 0 no se usa
  float correccionBalance = 1;  ///< corrección del balance solar
  float mayorRenovacion = 0;    ///< mayor renovación del año sin contar ventanas abiertas, 1/h

  /// ¿Está ya calculado el caso? Lo está con el total calificado y alguna demanda distintos de 0.
  bool Calculado() const;
  /// Pone a 0 las series de la zona, las tablas mensuales y los resultados del año.
  void VaciarResultados();
};

}  // namespace novex
