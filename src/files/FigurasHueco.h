#pragma once

#include "model/Huecos.h"

namespace novex {

/// Figuras de un hueco que el fichero de proyecto lleva para otros programas.
struct FigurasHueco {
  float C100 = 0;                       ///< permeabilidad a 100 Pa, m3/h m2
  float Ff = 0;                         ///< fracción de marco, tanto por uno
  float FactorSolar = 0;                ///< del hueco sin accesorios (CTE DA DB-HE/1)
  float FactorSolarSombraActivada = 0;  ///< con el elemento móvil puesto
  float UHueco = 0;                     ///< W/m2K, con el borde del vidrio y la caja de persiana
  float FSHueco = 0;                    ///< factor solar, 0 si todo es marco
};

/// Calcula las figuras de un grupo de huecos con sus propios valores.
FigurasHueco CalcularFigurasHueco(const Huecos& hueco);

}  // namespace novex
