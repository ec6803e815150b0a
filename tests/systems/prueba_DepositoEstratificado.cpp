#include "systems/DepositoEstratificado.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace novex {
namespace {

double Almacenada(const GeometriaDeposito& g, const Nodos& T) {
  return g.masaCp * std::accumulate(T.begin(), T.end(), 0.0);
}

bool EnOrden(const Nodos& T) {
  return std::is_sorted(T.rbegin(), T.rend(), [](double a, double b) { return a < b - 1e-5; });
}

Nodos Uniforme(double T) {
  return {T, T, T, T, T};
}

TEST(DepositoEstratificado, ElUnicoNodoQueNadaTocaNoCambia) {
  const GeometriaDeposito g(200, 0, 2);
  Nodos T = Uniforme(50);
  MinutoDeposito m;
  m.generador.areaSerpentin = 2;  // un serpentín sin caudal no hace nada
  m.generador.temperatura = 90;
  m.solar.caudalSerpentin = 0.1;  // ni uno sin área
  m.solar.temperatura = 80;
  for (int i = 0; i < 60; ++i) {
    const EnergiasDeposito e = AvanzarDeposito(g, m, T);
    EXPECT_EQ(e.salidaGenerador, 90);
    EXPECT_EQ(e.salidaSolar, 80);
    EXPECT_EQ(e.Suma(), 0);
  }
  for (const double t : T) EXPECT_NEAR(t, 50, 1e-9);
}

TEST(DepositoEstratificado, LaExtraccionDejaElOrdenYVaciaDesdeAbajo) {
  const GeometriaDeposito g(200, 2, 2);
  MinutoDeposito m;
  m.extraccion = 0.1;  // 60 kg en diez minutos, nodo y medio
  m.entradaAgua = 10;
  Nodos T = Uniforme(60);
  for (int i = 0; i < 10; ++i) {
    AvanzarDeposito(g, m, T);
    ASSERT_TRUE(EnOrden(T));
  }
  EXPECT_GT(T[0], 59);
  EXPECT_LT(T[4], 25);
  // Con extracción y potencia fijas el régimen es el de un calentador: 5000/(0,05·4184) = 23,90 K.
  const GeometriaDeposito aislado(200, 0, 2);
  m.extraccion = 0.05;
  m.auxiliar = 5000;
  m.nodoAuxiliar = 3;
  EnergiasDeposito e;
  for (int i = 0; i < 3000; ++i) e = AvanzarDeposito(aislado, m, T);
  EXPECT_NEAR(T[0], 10 + 23.90, 0.05);
  EXPECT_NEAR(e.extraccion, -5000 * 60, 1500);
}

// Un día con todo a la vez: lo que entra y sale es lo que queda dentro, al 0,1 %.
TEST(DepositoEstratificado, ElDiaCierra) {
  const GeometriaDeposito g(300, 3, 2.5);
  Nodos T{60, 55, 50, 40, 30};
  const double inicio = Almacenada(g, T);
  double suma = 0, entra = 0;
  for (int minuto = 0; minuto < 1440; ++minuto) {
    MinutoDeposito m;
    m.ambiente = 17;
    m.entradaAgua = 12;
    m.extraccion = minuto % 60 < 15 ? 0.06 : 0.0;
    m.recirculacion = minuto % 120 < 60 ? 0.03 : 0.0;
    m.retorno = T[0] - 5;
    m.nodoRetorno = 1;
    m.auxiliar = T[1] < 50 ? 2000 : 0;
    m.nodoAuxiliar = 1;
    m.generador.temperatura = 65;
    m.generador.caudalDirecto = T[1] < 55 ? 0.1 : 0.0;
    m.solar.temperatura = 58;
    m.solar.caudalSerpentin = minuto > 600 && minuto < 1000 ? 0.05 : 0.0;
    m.solar.areaSerpentin = 2;
    const EnergiasDeposito e = AvanzarDeposito(g, m, T);
    suma += e.Suma();
    entra += e.directaGenerador + e.serpentinSolar + e.auxiliar;
    for (const double t : T) ASSERT_TRUE(t > 5 && t < 70) << minuto;
  }
  EXPECT_GT(entra, 5e7);
  EXPECT_NEAR(suma, Almacenada(g, T) - inicio, 1e-3 * entra);
}

TEST(DepositoEstratificado, UnaEntradaImposibleNoLoCuelga) {
  const GeometriaDeposito g(200, 2, 2);
  MinutoDeposito m;
  m.entradaAgua = std::numeric_limits<double>::quiet_NaN();
  m.extraccion = 0.1;
  Nodos T = Uniforme(60);
  AvanzarDeposito(g, m, T);
  EXPECT_TRUE(std::isnan(T[4]));
}

}  // namespace
}  // namespace novex
