#include "demand/FactoresHuecos.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

Huecos Ventana() {
  Huecos g;
  g.Ancho_m = 1.5F;
  g.Alto_m = 1.2F;
  g.Fraccion_marco_tanto_por_cien = 20;
  g.U_cristal_W_m2K = 3.3F;
  g.U_marco_W_m2K = 2.2F;
  g.Indice_tipo_cristal = 1;
  g.Indice_marco = 3;
  return g;
}

// Marco 0,36 m2, vidrio 1,44 m2 y 4,830 m de borde a 0,05 W/mK.
TEST(UVentana, VidrioMarcoYBorde) {
  EXPECT_NEAR(UVentana(Ventana(), 0, 0), 3.214164, 1e-5);
  EXPECT_NEAR(UVentana(Ventana(), 1.8F, 1.2F), (0.36 * 1.2 + 1.44 * 1.8 + 0.2414953) / 1.8, 1e-5);
}

TEST(UVentana, LaCajaDePersianaCuentaSiExiste) {
  Huecos g = Ventana();
  g.Altura_Caja_de_persiana_m = 0.25F;
  g.U_Caja_de_persiana_W_m2K = 1.8F;
  EXPECT_NEAR(UVentana(g, 0, 0), 3.214164, 1e-5);
  g.Existe_Caja_persiana = 0;
  EXPECT_NEAR(UVentana(g, 0, 0), 2.970343, 1e-5);
}

TEST(UVentana, CasosExtremos) {
  Huecos g = Ventana();
  g.Fraccion_marco_tanto_por_cien = 100;  // sin vidrio no hay borde
  EXPECT_NEAR(UVentana(g, 0, 0), 2.2, 1e-5);
  g = Ventana();
  g.Ancho_m = 0;
  EXPECT_NEAR(UVentana(g, 0, 0), 0.2 * 2.2 + 0.8 * 3.3, 1e-5);
  g = Ventana();
  g.Indice_tipo_cristal = 0;  // vidrio sencillo: sin puente en el borde
  EXPECT_NEAR(UVentana(g, 0, 0), 5.544 / 1.8, 1e-5);
  // Cada pareja de vidrio y marco tiene su transmitancia lineal.
  const auto psi = [&](int cristal, int marco) {
    g.Indice_tipo_cristal = cristal;
    g.Indice_marco = marco;
    return (UVentana(g, 0, 0) * 1.8F - 5.544F) / 4.829906F;
  };
  EXPECT_NEAR(psi(1, 0), 0.01, 1e-4);
  EXPECT_NEAR(psi(1, 2), 0.06, 1e-4);
  EXPECT_NEAR(psi(1, 7), 0.05, 1e-4);
  EXPECT_NEAR(psi(2, 0), 0.04, 1e-4);
  EXPECT_NEAR(psi(4, 1), 0.08, 1e-4);
  EXPECT_NEAR(psi(3, 5), 0.06, 1e-4);
  EXPECT_NEAR(psi(5, 0), 0.06, 1e-4);
}

TEST(FactorSolarHueco, SumaVidrioYMarco) {
  EXPECT_NEAR(FactorSolarHueco(0.75F, 2.2F, 20), 0.61232, 1e-5);
}

TEST(FraccionPersianaU, DeDiaPorElControlYDeNochePorLaEstacion) {
  EXPECT_FLOAT_EQ(FraccionPersianaU(9, true, 0, 0), 0.1F);
  EXPECT_FLOAT_EQ(FraccionPersianaU(19, true, 5, 0), 0.4F);
  EXPECT_FLOAT_EQ(FraccionPersianaU(12, true, 8, 0), 0.5F);
  EXPECT_EQ(FraccionPersianaU(8, true, 8, 0), 0.0F);
  EXPECT_EQ(FraccionPersianaU(20, true, 8, 0), 0.0F);
  EXPECT_FLOAT_EQ(FraccionPersianaU(9, false, 0, 4), 0.3F);
  EXPECT_FLOAT_EQ(FraccionPersianaU(19, false, 0, 1), 0.7F);
  EXPECT_EQ(FraccionPersianaU(8, false, 0, 1), 1.0F);
  EXPECT_EQ(FraccionPersianaU(24, false, 0, 1), 1.0F);
  EXPECT_EQ(FraccionPersianaU(12, true, 9, 0), 0.0F);
  EXPECT_EQ(FraccionPersianaU(12, false, 0, -1), 0.0F);
}

TEST(FraccionPersianaSol, PorElControlElUmbralYLaHora) {
  EXPECT_EQ(FraccionPersianaSol(12, true, 0, 0, 300), 0.0F);
  EXPECT_FLOAT_EQ(FraccionPersianaSol(12, true, 0, 0, 301), 0.5F);
  EXPECT_EQ(FraccionPersianaSol(12, true, 1, 0, 500), 0.0F);
  EXPECT_FLOAT_EQ(FraccionPersianaSol(9, true, 2, 0, 400), 0.7F);
  EXPECT_FLOAT_EQ(FraccionPersianaSol(19, true, 5, 0, 501), 0.9F);
  EXPECT_EQ(FraccionPersianaSol(20, true, 5, 0, 501), 0.0F);
  // Los controles 6 a 8 actúan a cualquier hora con sol.
  EXPECT_FLOAT_EQ(FraccionPersianaSol(7, true, 8, 0, 1), 0.9F);
  EXPECT_FLOAT_EQ(FraccionPersianaSol(12, true, 6, 0, 1), 0.5F);
  EXPECT_EQ(FraccionPersianaSol(12, true, 6, 0, 0), 0.0F);
  EXPECT_EQ(FraccionPersianaSol(12, true, 9, 0, 800), 0.0F);
  // En invierno, solo sin sol.
  EXPECT_EQ(FraccionPersianaSol(12, false, 8, 3, 1), 0.0F);
  EXPECT_FLOAT_EQ(FraccionPersianaSol(12, false, 8, 2, 0), 0.9F);
  EXPECT_FLOAT_EQ(FraccionPersianaSol(23, false, 8, 4, 0), 0.3F);
  EXPECT_EQ(FraccionPersianaSol(23, false, 8, 5, 0), 0.0F);
}

TEST(FactorSombraFija, PorIndiceYOrientacion) {
  EXPECT_FLOAT_EQ(FactorSombraFija(4, sur), 0.37F);
  EXPECT_FLOAT_EQ(FactorSombraFija(4, sur_este), 0.46F);
  EXPECT_FLOAT_EQ(FactorSombraFija(4, sur_oeste), 0.38F);
  EXPECT_FLOAT_EQ(FactorSombraFija(4, este), 0.39F);
  EXPECT_FLOAT_EQ(FactorSombraFija(4, oeste), 0.44F);
  EXPECT_FLOAT_EQ(FactorSombraFija(22, sur), 0.34F);
  for (const int indice : {-1, 0, 23}) EXPECT_EQ(FactorSombraFija(indice, sur), 1.0F);
  EXPECT_EQ(FactorSombraFija(4, norte), 1.0F);
  EXPECT_EQ(FactorSombraFija(4, kColumnaHorizontal), 1.0F);
}

TEST(FactorProteccionMovil, PorElTipoDeVidrioOPorSuU) {
  EXPECT_FLOAT_EQ(FactorProteccionMovil(4, 0, 1), 0.22F);
  EXPECT_FLOAT_EQ(FactorProteccionMovil(4, 1, 5.7F), 0.2F);
  EXPECT_FLOAT_EQ(FactorProteccionMovil(4, 4, 5.7F), 0.17F);
  EXPECT_FLOAT_EQ(FactorProteccionMovil(4, 5, 5.01F), 0.22F);
  EXPECT_FLOAT_EQ(FactorProteccionMovil(4, 5, 5), 0.2F);
  EXPECT_FLOAT_EQ(FactorProteccionMovil(4, 9, 3), 0.2F);
  EXPECT_FLOAT_EQ(FactorProteccionMovil(4, -1, 1.6F), 0.17F);
  EXPECT_FLOAT_EQ(FactorProteccionMovil(4, 9, 1.59F), 0.13F);
  EXPECT_FLOAT_EQ(FactorProteccionMovil(12, 0, 1), 0.65F);
  EXPECT_FLOAT_EQ(FactorProteccionMovil(13, 1, 1), 0.05F);
  for (const int indice : {0, 14, -3}) EXPECT_EQ(FactorProteccionMovil(indice, 0, 1), 1.0F);
}

TEST(FactorLucernario, PorBandasDelPozo) {
  EXPECT_FLOAT_EQ(FactorLucernario(2, 2, 1), 0.60F);
  EXPECT_FLOAT_EQ(FactorLucernario(2.01F, 2, 1), 0.66F);
  EXPECT_FLOAT_EQ(FactorLucernario(0.2F, 0.2F, 2), 0.42F);
  EXPECT_FLOAT_EQ(FactorLucernario(0.5F, 10, 1), 0.52F);
  EXPECT_FLOAT_EQ(FactorLucernario(10, 10, 1), 0.85F);
  EXPECT_EQ(FactorLucernario(2, 2, 0), 1.0F);
}

}  // namespace
}  // namespace novex
