#pragma once

#include <string>
#include <vector>

#include "base/Grafico.h"
#include "base/Tabla.h"
#include "compliance/Veredicto.h"
#include "demand/ResultadosCaso.h"
#include "model/Edificio.h"

namespace novex {

/// Limitación del consumo energético (CTE DB-HE0).
struct RequisitoHE0 {
  double CepNren = 0, CepTot = 0;  ///< del edificio, kWh/m2 y año
  double horasFuera = 0, horasLimite = 0;
  bool cumpleHoras = true, cumpleTot = true, cumpleNren = true;
  std::string veredictoHoras, veredictoTot, veredictoNren;
  std::vector<std::string> textos;  ///< demandas y pie
  Tabla indicadores;                ///< demandas y energía primaria con su límite
  Grafico grafico;                  ///< los mismos en barras
  Tabla horas;                      ///< fuera de consigna y de ocupación
  std::vector<Veredicto> veredictos;
  bool Cumple() const { return cumpleHoras && cumpleTot && cumpleNren; }
};
/// \param resultados del caso calculado, con sus límites
RequisitoHE0 ComprobarHE0(const Edificio& edificio, const ResultadosCaso& resultados);

}  // namespace novex
