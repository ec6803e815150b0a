#pragma once

#include "model/Huecos.h"

namespace novex {

/// U de un hueco entero con su caja de persiana, W/m2K (UNE-EN ISO 10077-1).
/// \param Ucristal,Umarco valores impuestos por una medida; 0 toma los del grupo
float UVentana(const Huecos& grupo, float Ucristal, float Umarco);

/// Factor solar del vidrio con su marco, de la forma (1 - F) g + F 0,028 Uf.
/// \param g factor solar del vidrio \param Umarco W/m2K \param fraccionMarco %
float FactorSolarHueco(float g, float Umarco, float fraccionMarco);

/// Factor solar con la protección móvil de índice `indice` echada; 1 con índice 0.
/// \param cristal índice del tipo de vidrio; fuera de 0 a 4 decide su U
float FactorProteccionMovil(int indice, int cristal, float Ucristal);

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
