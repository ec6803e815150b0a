#include "demand/FactoresHuecos.h"

#include <gtest/gtest.h>

#include "model/Huecos.h"

namespace novex {
namespace {

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
