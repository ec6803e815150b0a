#include "systems/CaptadoresSolares.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

// Efectividad 0,7 sobre el lado de menor caudal: 0,7·40 = 28 K en él y 28·0,02/0,03 en el otro.
TEST(Intercambiador, AMano) {
  const SalidaIntercambiador s = Intercambiar(0.02, 80, 0.7, 0.03, 40);
  EXPECT_NEAR(s.primario, 52, 1e-9);
  EXPECT_NEAR(s.secundario, 40 + 28.0 * 2 / 3, 1e-9);
  EXPECT_NEAR(Intercambiar(0.03, 80, 0.7, 0.02, 40).secundario, 68, 1e-9);
  for (const auto& [m1, m2] : {std::pair{0.0, 0.03}, {0.02, 0.0}, {-1.0, 0.03}}) {
    const SalidaIntercambiador parado = Intercambiar(m1, 80, 0.7, m2, 40);
    EXPECT_EQ(parado.primario, 80);
    EXPECT_EQ(parado.secundario, 40);
  }
}

DatosGenerales Campo(int n, float caudal, float a0, float a1) {
  DatosGenerales g;
  g.N_colec_term = n;
  g.Sup_colec_term = 2;
  g.Caudal_Col_ST = caudal;
  g.AA_colec_term = a0;
  g.BB_colec_term = a1;
  g.CC_colec_term = 0;
  g.Control_Tmin_ST = 2;
  g.Long_Tub_ST = 0;
  return g;
}

// 2 m2 con 72 l/h (83,68 W/K), agua a 40 °C, 20 °C fuera y 800 W/m2. De P = 1600 (0,8 - 4 (Tm -
// 20)/800) y Tm = 40 + P/167,36 sale P = 1120/1,0478 = 1068,9 W.
TEST(CaptadoresSolares, CurvaAMano) {
  DatosGenerales g = Campo(1, 72, 0.8F, 4);
  const CaptadoresSolares c(g);
  EXPECT_NEAR(c.Potencia(40, 800, 20), 1068.9, 0.9);
  EXPECT_GT(c.Potencia(20, 800, 20), c.Potencia(40, 800, 20));
  EXPECT_EQ(c.Potencia(40, 0, 20), 0);
  // 0,8 - 4·70/350 = 0: no rinde ya a la entrada.
  EXPECT_EQ(c.Potencia(90, 350, 20), 0);
  // El término cuadrático: 0,8 - 0,1 - 0,01·400/800 - lo que sube la media.
  g.CC_colec_term = 0.01F;
  EXPECT_NEAR(CaptadoresSolares(g).Potencia(40, 800, 20), 1055.5, 6);
  for (DatosGenerales nulo : {Campo(0, 72, 0.8F, 4), Campo(1, 0, 0.8F, 4)})
    EXPECT_EQ(CaptadoresSolares(nulo).Potencia(40, 800, 20), 0);
}

// 8 m2 con 1800 l/h (2092 W/K) y rendimiento fijo de 0,5: con 1046 W/m2 el salto es de 2 °C justos,
// y la bomba se para.
TEST(CaptadoresSolares, ElSaltoMinimoJustoLaPara) {
  const CaptadoresSolares c(Campo(4, 1800, 0.5F, 0));
  EXPECT_EQ(c.Potencia(40, 1046, 20), 0);
  EXPECT_NEAR(c.Potencia(40, 1047, 20), 4188, 1e-6);
}

}  // namespace
}  // namespace novex
