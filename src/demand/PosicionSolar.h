#pragma once

namespace novex {

/// Posición del sol en una hora, en grados.
struct PosicionSolar {
  double acimut = 0;       ///< 0 al sur, negativo por la mañana; 0 con el sol bajo el horizonte
  double cenit = 90;       ///< distancia al cenit; 90 con el sol bajo el horizonte
  double cosenoCenit = 0;  ///< nunca negativo
};

/// Irradiancia solar fuera de la atmósfera sobre un plano normal, valor medio del año, W/m2.
inline constexpr double kConstanteSolar = 1367.0;

/// Posición del sol a mitad de una hora solar (la hora 12 va de 11 a 12 y se toma a las 11:30).
/// La declinación es la serie de Spencer (1971).
/// \param latitud en grados, norte positivo
/// \param dia día del año, 1 a 365
/// \param hora hora solar, 1 a 24
PosicionSolar CalcularPosicionSolar(double latitud, int dia, int hora);

/// Seno y coseno con solo sumas y productos: dan los mismos bits en toda máquina.
/// \param x ángulo en radianes, entre -2π y 2π
double SenoReproducible(double x);
double CosenoReproducible(double x);

}  // namespace novex
