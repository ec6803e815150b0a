#pragma once

#include "model/Huecos.h"

namespace novex {

/// U de un hueco entero con su caja de persiana, W/m2K (UNE-EN ISO 10077-1).
/// \param Ucristal,Umarco valores impuestos por una medida; 0 toma los del grupo
float UVentana(const Huecos& grupo, float Ucristal, float Umarco);

/// Factor solar del vidrio con su marco, de la forma (1 - F) g + F 0,028 Uf.
/// \param g factor solar del vidrio \param Umarco W/m2K \param fraccionMarco %
float FactorSolarHueco(float g, float Umarco, float fraccionMarco);

/// Parte del hueco con la persiana bajada a efectos de la U. \param d hora del día, 1 a 24
float FraccionPersianaU(int d, bool verano, int controlVerano, int controlInvierno);

/// Parte del hueco con la protección móvil echada. \param d hora del día
/// \param irradiancia total sobre la fachada, W/m2
float FraccionPersianaSol(int d, bool verano, int controlVerano, int controlInvierno,
                          float irradiancia);

/// Multiplicador de la protección solar fija de índice `indice` en una orientación; 1 sin ella.
float FactorSombraFija(int indice, std::size_t orientacion);

/// Factor solar con la protección móvil de índice `indice` echada; 1 con índice 0.
/// \param cristal índice del tipo de vidrio; fuera de 0 a 4 decide su U
float FactorProteccionMovil(int indice, int cristal, float Ucristal);

/// Reducción del sol por el pozo de un lucernario. \param fondo profundidad del pozo, m; 0 da 1
float FactorLucernario(float ancho, float alto, float fondo);

}  // namespace novex
