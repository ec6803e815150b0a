#include "compliance/RequisitoHE3.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace novex {
namespace {

using testing::ElementsAre;

DatosGenerales Oficina(float lux, float potencia, float VEII, float VEIIMax) {
  DatosGenerales g;
  g.PerfilUso = 3;
  g.Lux = lux;
  g.Iluminacion = potencia;
  g.VEII = VEII;
  g.VEIIMax = VEIIMax;
  return g;
}

TEST(HE3, EnResidencialNoSeComprueba) {
  DatosGenerales g = Oficina(500, 90, 9, 3);
  g.PerfilUso = 2;
  const RequisitoHE3 r = ComprobarHE3(g);
  EXPECT_TRUE(r.pasa);
  EXPECT_THAT(r.lineas,
              ElementsAre("No es de aplicación en edificios residenciales en las viviendas",
                          "No se compruebra en las zonas comunes del edificio"));
  ASSERT_EQ(r.veredictos.size(), 1U);
  EXPECT_FALSE(r.veredictos[0].aplica);
  EXPECT_TRUE(r.veredictos[0].pasa);
}

TEST(HE3, EnElLimiteCumple) {
  const RequisitoHE3 r = ComprobarHE3(Oficina(500, 10, 3, 3));
  EXPECT_TRUE(r.pasa);
  EXPECT_THAT(
      r.lineas,
      ElementsAre("Los lux de la instalación de iluminación son 500.00",
                  "Como la iluminación media en plano horizontal es menor o igual a 600 lux la "
                  "potencia máxima son 10,00 W/m2 ",
                  "La potencia en iluminación de la instalación es = 10.00 W/m2", "Cumple",
                  "El VEIIlím es 3.00", "El VEII de la instalación es = 3.00", "Cumple"));
}

TEST(HE3, CadaLimitePorSuLadoYConSuPotenciaMaxima) {
  struct Caso {
    float lux, potencia, VEII;
    const char *dePotencia, *deVEII;
    double maxima;
  };
  const Caso casos[] = {{599, 10.01F, 3, "No cumple", "Cumple", 10},
                        {599, 10, 3.01F, "Cumple", "No cumple", 10},
                        {600, 25, 3, "Cumple", "Cumple", 25}};
  for (const Caso& c : casos) {
    const RequisitoHE3 r = ComprobarHE3(Oficina(c.lux, c.potencia, c.VEII, 3));
    EXPECT_EQ(r.lineas[3], c.dePotencia);
    EXPECT_EQ(r.lineas[6], c.deVEII);
    EXPECT_EQ(r.pasa, r.lineas[3] == r.lineas[6]);
    EXPECT_EQ(r.veredictos[0].limite, c.maxima);
  }
}

}  // namespace
}  // namespace novex
