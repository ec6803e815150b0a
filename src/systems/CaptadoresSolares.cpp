#include "systems/CaptadoresSolares.h"

#include <algorithm>
#include <cmath>

namespace novex {

SalidaIntercambiador Intercambiar(double m1, double T1, double e, double m2, double T2) {
  if (m1 <= 0.0 || m2 <= 0.0) return {T1, T2};
  const double C1 = m1 * kCpCircuito;
  const double C2 = m2 * kCpCircuito;
  const double Cmin = std::min(C1, C2);
  return {((C1 - e * Cmin) * T1 + e * Cmin * T2) / C1, ((C2 - e * Cmin) * T2 + e * Cmin * T1) / C2};
}

CaptadoresSolares::CaptadoresSolares(const DatosGenerales& g)
    : area(static_cast<double>(g.N_colec_term) * static_cast<double>(g.Sup_colec_term)),
      caudal(static_cast<double>(g.Caudal_Col_ST) / 3600.0),
      a0(static_cast<double>(g.AA_colec_term)),
      a1(static_cast<double>(g.BB_colec_term)),
      a2(static_cast<double>(g.CC_colec_term)),
      saltoMinimo(static_cast<double>(g.Control_Tmin_ST)),
      perdidaTubo(0.5 * static_cast<double>(g.Long_Tub_ST) *
                  static_cast<double>(g.PerdCalor_Tub_ST)) {}

double CaptadoresSolares::Potencia(double entrada, double G, double Ta) const {
  constexpr double kPrecision = 0.1;  // °C
  constexpr int kVueltas = 100;
  if (G == 0.0 || area == 0.0 || caudal == 0.0) return 0.0;
  const auto rendimiento = [&](double Tm) {
    const double d = Tm - Ta;
    return a0 - a1 * d / G - a2 * d * d / G;
  };
  double Tm = entrada;
  double n = rendimiento(Tm);
  if (n <= 0.0) return 0.0;
  double P = 0, salida = entrada;
  for (int i = 0; i < kVueltas; ++i) {
    P = n * G * area;
    salida = P / (caudal * kCpCircuito) + entrada;
    const double siguiente = 0.5 * (salida + entrada);
    n = rendimiento(siguiente);
    const bool asentado = std::fabs(siguiente - Tm) <= kPrecision;
    Tm = siguiente;
    if (asentado) break;
  }
  return salida > entrada + saltoMinimo ? P : 0.0;
}

MinutoCaptadores RecorrerCaptadores(const CaptadoresSolares& c, double T, double G, double Ta) {
  MinutoCaptadores m;
  const double mcp = c.caudal * kCpCircuito;
  if (mcp <= 0.0) return {0, 0, 0, T};
  const double ida = c.perdidaTubo * (T - Ta);
  const double entrada = T - ida / mcp;
  m.potencia = c.Potencia(entrada, G, Ta);
  const double salida = m.potencia / mcp + entrada;
  const double vuelta = c.perdidaTubo * (salida - Ta);
  m.temperatura = salida - vuelta / mcp;
  m.perdida = ida + vuelta;
  m.neto = m.potencia - m.perdida;
  return m;
}

}  // namespace novex
