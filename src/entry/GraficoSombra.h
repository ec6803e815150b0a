#pragma once

#include <array>
#include <string>

#include "model/Edificio.h"

namespace novex {

/// Meses de la gráfica de sombra, en el orden de sus series.
inline constexpr std::array<int, 7> kMesesGraficoSombra = {12, 1, 2, 3, 4, 5, 6};

/// Sombra de un mes por horas.
struct SerieSombra {
  int mes = 0;                         ///< 1 a 12
  std::array<float, 25> porcentaje{};  ///< % por hora solar, de 1 a 24
};
using GraficoSombra = std::array<SerieSombra, kMesesGraficoSombra.size()>;

/// Parte de la fachada de un sector que tapan los obstáculos lejanos en cada hora del día
/// representativo de cada mes, %. Tapa el obstáculo del rumbo en que está el sol, de los que
/// cuentan para esa fachada. Es 0 de noche, con el sol detrás, sin altura de edificio y al norte.
/// \param latitud grados \param alturaEdificio m
GraficoSombra CalcularGraficoSombra(Sector fachada, const ObstaculosRemotos& obstaculos,
                                    float latitud, float alturaEdificio);

/// La gráfica de un sector de un caso, con su sitio y su altura.
GraficoSombra CalcularGraficoSombra(Sector fachada, const Edificio& edificio);

/// Lo que se lee bajo la gráfica: qué es o, si no hay sombra, por qué.
std::string NotaGraficoSombra(const GraficoSombra& grafico, const Edificio& edificio);

}  // namespace novex
