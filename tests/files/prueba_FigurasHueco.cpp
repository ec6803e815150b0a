#include "files/FigurasHueco.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

Huecos Grupo(int vidrio, int marco, int movil) {
  Huecos h;
  h.Ancho_m = 1.5F;
  h.Alto_m = 1.2F;
  h.Indice_tipo_cristal = vidrio;
  h.Indice_marco = marco;
  h.Indice_tipo_sombra_movil = movil;
  h.U_cristal_W_m2K = 1.6F;
  h.U_marco_W_m2K = 1.8F;
  h.FS_cristal_tanto_por_uno = 0.62F;
  h.Fraccion_marco_tanto_por_cien = 25;
  return h;
}

TEST(FigurasHueco, VentanaConMarcoYCaja) {
  Huecos h = Grupo(2, 6, 1);
  h.Existe_Caja_persiana = 0;
  h.Altura_Caja_de_persiana_m = 0.2F;
  h.U_Caja_de_persiana_W_m2K = 1.2F;
  const FigurasHueco f = CalcularFigurasHueco(h);
  // 0.62 × 0.75 + 0.04 × 1.8 × 0.25 × 0.7
  EXPECT_NEAR(f.FactorSolar, 0.4776F, 1e-5F);
  EXPECT_NEAR(f.FactorSolarSombraActivada, 0.4776F * 0.03F, 1e-5F);
  EXPECT_NEAR(f.FSHueco, 0.4776F, 1e-5F);
  EXPECT_NEAR(f.Ff, 0.25F, 1e-6F);
  EXPECT_FLOAT_EQ(f.C100, 50.0F);
  // (1.8 × 0.45 + 1.6 × 1.35 + 2 × √0.75 × 2.7 × 0.06 + 0.3 × 1.2)/2.1
  EXPECT_NEAR(f.UHueco, 1.71932F, 1e-4F);
}

TEST(FigurasHueco, SinMarcoTodoMarcoYSinArea) {
  Huecos h = Grupo(0, 0, 0);
  h.Fraccion_marco_tanto_por_cien = 0;
  EXPECT_FLOAT_EQ(CalcularFigurasHueco(h).FactorSolar, 0.62F);
  EXPECT_FLOAT_EQ(CalcularFigurasHueco(h).UHueco, 1.6F);
  h.Fraccion_marco_tanto_por_cien = 100;
  EXPECT_FLOAT_EQ(CalcularFigurasHueco(h).FSHueco, 0.0F);
  EXPECT_NEAR(CalcularFigurasHueco(h).FactorSolar, 0.0504F, 1e-6F);
  h = Grupo(2, 6, 0);
  h.Ancho_m = 0;
  h.Alto_m = 0;
  EXPECT_NEAR(CalcularFigurasHueco(h).UHueco, 0.25F * 1.8F + 0.75F * 1.6F, 1e-5F);
}

float FactorMovil(int vidrio, int movil, float u = 1.6F) {
  Huecos h = Grupo(vidrio, 0, movil);
  h.U_cristal_W_m2K = u;
  const FigurasHueco f = CalcularFigurasHueco(h);
  return f.FactorSolarSombraActivada / f.FactorSolar;
}

TEST(FigurasHueco, ElElementoMovilDependeDelVidrio) {
  EXPECT_NEAR(FactorMovil(0, 3), 0.15F, 1e-5F);
  EXPECT_NEAR(FactorMovil(1, 3), 0.11F, 1e-5F);
  EXPECT_NEAR(FactorMovil(4, 3), 0.08F, 1e-5F);
  // "Otros" según su U: 5.01, 5 y 3, 2.99 y 1.6, 1.59.
  EXPECT_NEAR(FactorMovil(5, 12, 5.01F), 0.65F, 1e-5F);
  EXPECT_NEAR(FactorMovil(5, 12, 5.0F), 0.61F, 1e-5F);
  EXPECT_NEAR(FactorMovil(5, 12, 3.0F), 0.61F, 1e-5F);
  EXPECT_NEAR(FactorMovil(5, 12, 2.99F), 0.58F, 1e-5F);
  EXPECT_NEAR(FactorMovil(5, 12, 1.6F), 0.58F, 1e-5F);
  EXPECT_NEAR(FactorMovil(5, 12, 1.59F), 0.40F, 1e-5F);
  EXPECT_NEAR(FactorMovil(5, 3, 1.0F), 0.06F, 1e-5F);
  EXPECT_NEAR(FactorMovil(5, 2, 1.0F), 0.05F, 1e-5F);
  EXPECT_NEAR(FactorMovil(1, 13), 0.05F, 1e-5F);
  EXPECT_NEAR(FactorMovil(1, 99), 1.0F, 1e-5F);
}

}  // namespace
}  // namespace novex
