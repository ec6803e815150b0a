#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Grafico.h"
#include "outputs/ArbolVariables.h"
#include "outputs/PeriodoSerie.h"

namespace novex {

/// Una serie con el texto con que se muestra.
struct SerieMostrada {
  std::string texto;  ///< el de su nodo: "Temp.seca TSE(ºC)"
  Serie serie;        ///< 8760 valores en la unidad del texto
};

/// Lo que da un código: su serie o, si no es de ninguna variable del caso, los más parecidos.
struct SerieBuscada {
  std::optional<SerieMostrada> serie;
  std::vector<std::string> parecidos;  ///< hasta cinco, el más cercano primero; vacía con serie
};

/// El aviso de que un código no es de ninguna variable del caso.
std::string NoHayVariable(std::string_view codigo, const std::vector<std::string>& parecidos);

/// Serie de una variable por su código, comparado exactamente, por el camino de la variable.
/// \param caso ya calculado
SerieBuscada SerieDeVariable(const Edificio& edificio, const calculo& caso,
                             std::string_view codigo);

/// Gráfico de líneas de un periodo de una serie, con las horas del año en el eje horizontal y de
/// título el rótulo del periodo y su texto. Un periodo que no existe da su aviso.
ConAviso<Grafico> GraficoPeriodo(const SerieMostrada& serie, const PeriodoSerie& periodo);

/// Una serie como superficie de horas por días.
struct SuperficieSerie {
  std::string titulo, unidad;
  std::vector<int> dias;                    ///< del año, 1 a 365
  std::vector<std::vector<float>> valores;  ///< por día, las 24 horas
};

/// La superficie de un periodo; de un solo día, el aviso de que no se puede.
ConAviso<SuperficieSerie> SuperficiePeriodo(const SerieMostrada& serie,
                                            const PeriodoSerie& periodo);

}  // namespace novex
