#pragma once

#include "model/DatosGenerales.h"
#include "systems/DepositoEstratificado.h"

namespace novex {

/// Temperaturas de salida de un intercambiador, °C.
struct SalidaIntercambiador {
  double primario, secundario;
};

/// Intercambiador de efectividad `e`. Sin caudal en alguno de los lados, lo que entra sale.
/// \param m1,m2 kg/s \param T1,T2 entradas, °C
SalidaIntercambiador Intercambiar(double m1, double T1, double e, double m2, double T2);

/// Captadores solares del edificio con su circuito.
struct CaptadoresSolares {
  explicit CaptadoresSolares(const DatosGenerales& g);

  double area;         ///< m2
  double caudal;       ///< kg/s
  double a0, a1, a2;   ///< curva de rendimiento
  double saltoMinimo;  ///< °C
  double perdidaTubo;  ///< de cada mitad del recorrido, W/°C

  /// Potencia que los captadores dan al agua que entra a `entrada`, W; 0 si la bomba se para.
  /// \param G irradiancia en su plano, W/m2 \param Ta exterior, °C
  double Potencia(double entrada, double G, double Ta) const;
};

/// Lo que el circuito de captadores hace en un minuto.
struct MinutoCaptadores {
  double potencia = 0;     ///< de los captadores, W
  double perdida = 0;      ///< de las tuberías, W
  double neto = 0;         ///< W
  double temperatura = 0;  ///< del agua que vuelve de los captadores, °C
};

/// El recorrido del agua por tuberías y captadores. \param T temperatura con que sale, °C
MinutoCaptadores RecorrerCaptadores(const CaptadoresSolares& c, double T, double G, double Ta);

}  // namespace novex
