#pragma once

#include <cstddef>

namespace novex {

/// Parte del hueco con la persiana bajada a efectos de la U. \param d hora del día, 1 a 24
float FraccionPersianaU(int d, bool verano, int controlVerano, int controlInvierno);

/// Parte del hueco con la protección móvil echada. \param d hora del día
/// \param irradiancia total sobre la fachada, W/m2
float FraccionPersianaSol(int d, bool verano, int controlVerano, int controlInvierno,
                          float irradiancia);

/// Multiplicador de la protección solar fija de índice `indice` en una orientación; 1 sin ella.
float FactorSombraFija(int indice, std::size_t orientacion);

/// Reducción del sol por el pozo de un lucernario. \param fondo profundidad del pozo, m; 0 da 1
float FactorLucernario(float ancho, float alto, float fondo);

}  // namespace novex
