#include "demand/PosicionSolar.h"

#include <algorithm>
#include <cmath>

namespace novex {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kGrado = kPi / 180.0;
// Con el sol a menos de 0,05° del horizonte la hora cuenta como noche: un cenit escrito con un
// decimal diría 90.
constexpr double kCosenoHorizonte = 0.000873;

// Spencer, J. W. (1971): declinación en radianes.
double Declinacion(int dia) {
  const double a = 2.0 * kPi * (dia - 1) / 365.0;
  const double s = SenoReproducible(a);
  const double c = CosenoReproducible(a);
  const double s2 = 2.0 * s * c;
  const double c2 = c * c - s * s;
  const double s3 = s2 * c + c2 * s;
  const double c3 = c2 * c - s2 * s;
  return 0.006918 - 0.399912 * c + 0.070257 * s - 0.006758 * c2 + 0.000907 * s2 - 0.002697 * c3 +
         0.00148 * s3;
}

}  // namespace

double SenoReproducible(double x) {
  if (x > kPi) x -= 2.0 * kPi;
  if (x < -kPi) x += 2.0 * kPi;
  if (x > kPi / 2) x = kPi - x;
  if (x < -kPi / 2) x = -kPi - x;
  const double cuadrado = x * x;
  double suma = 0.0;
  for (int n = 19; n >= 3; n -= 2) suma = (1.0 + suma) * (-cuadrado / (n * (n - 1)));
  return x * (1.0 + suma);
}

double CosenoReproducible(double x) {
  return SenoReproducible(x > 0 ? kPi / 2 - x : kPi / 2 + x);
}

PosicionSolar CalcularPosicionSolar(double latitud, int dia, int hora) {
  const double fi = latitud * kGrado;
  const double delta = Declinacion(dia);
  const double omega = (hora - 12.5) * 15.0 * kGrado;
  const double senoFi = SenoReproducible(fi);
  const double cosenoFi = CosenoReproducible(fi);
  const double senoDelta = SenoReproducible(delta);
  const double cosenoDelta = CosenoReproducible(delta);
  const double cosenoOmega = CosenoReproducible(omega);
  const double cosenoCenit =
      std::min(1.0, senoFi * senoDelta + cosenoFi * cosenoDelta * cosenoOmega);
  PosicionSolar sol;
  if (cosenoCenit <= kCosenoHorizonte) return sol;
  sol.cosenoCenit = cosenoCenit;
  sol.cenit = std::acos(cosenoCenit) / kGrado;
  sol.acimut = std::atan2(cosenoDelta * SenoReproducible(omega),
                          senoFi * cosenoDelta * cosenoOmega - cosenoFi * senoDelta) /
               kGrado;
  return sol;
}

}  // namespace novex
