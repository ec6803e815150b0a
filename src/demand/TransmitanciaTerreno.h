#pragma once

namespace novex {

// Transmitancia equivalente de los elementos en contacto con el terreno (DA DB-HE/1, tablas 3, 4, 5
// y 9), W/m2K. Interpolan linealmente y fuera de la tabla toman su borde. Resistencias sin las
// superficiales, m2K/W. Sirven a la verificación y a los informes, no al balance horario.

/// Muro enterrado. \param profundidad m; 0 se toma como 1
float UMuroTerreno(float resistencia, float profundidad);
/// Suelo sobre cámara sanitaria. \param B dimensión característica, m
float UCamaraSanitaria(float B, float resistencia);
/// Solera a 0,5 m o menos. \param anchura de la banda aislada, m; 0 sin aislamiento
float USoleraSuperficial(float B, float anchura, float resistenciaBanda);
/// Solera a más de 0,5 m; la profundidad se toma por intervalos.
float USoleraProfunda(float B, float resistencia, float profundidad);
/// B' = 2A/P, m; 20 sin perímetro.
float DimensionCaracteristica(float area, float perimetro);

}  // namespace novex
