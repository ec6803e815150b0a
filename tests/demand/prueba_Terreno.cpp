#include "demand/Terreno.h"

#include <gtest/gtest.h>

#include "demand/TransmitanciaTerreno.h"

namespace novex {
namespace {

SueloTerreno Suelo(const char* tipo, float profundidad = 0, float D = 0, float Ra = 0) {
  return {profundidad, tipo, D, Ra};
}

void Esperar(const CoeficientesTerreno& c, double Hg, double Hpi, double Hpe) {
  EXPECT_NEAR(c.Hg, Hg, 1e-4 * Hg);
  EXPECT_NEAR(c.Hpi, Hpi, 1e-4 * Hpi);
  EXPECT_NEAR(c.Hpe, Hpe, 1e-4 * Hpe);
}

// ISO 13370 a mano: U = 1 en 100 m2 con 40 m de perímetro da dt = 2,38 y B' = 5.
TEST(CoeficientesSolera, BandaPerimetral) {
  Esperar(CoeficientesSolera(1, 100, 40, Suelo("Periferico", 0, 1, 1.5F)), 37.49792, 46.86264,
          19.82864);
  // Una banda que aísla menos que la tierra que sustituye (0,1/2) no cuenta.
  Esperar(CoeficientesSolera(1, 100, 40, Suelo("Periferico", 0.5F, 0, 0.04F)), 44.85069, 46.86264,
          25.04358);
}

TEST(CoeficientesSolera, ProfundaDesdeMedioMetroYMuyAislada) {
  // Sin perímetro se toma el de un cuadrado, que aquí es el mismo.
  Esperar(CoeficientesSolera(1, 100, 0, Suelo("Continuo")), 44.85069, 46.86264, 25.04358);
  // Muy aislada y estrecha: dt = 8,38 pasa de B' = 3,08.
  Esperar(CoeficientesSolera(0.25F, 40, 26, Suelo("Continuo")), 8.174815, 7.930007, 6.167087);
  Esperar(CoeficientesSolera(1, 100, 40, Suelo("Continuo", 0.5F)), 44.85069, 46.86264, 25.04358);
  Esperar(CoeficientesSolera(1, 100, 40, Suelo("Continuo", 2)), 36.27796, 46.86264, 13.31653);
  // La banda sigue contando en la parte estacionaria, no en la periódica exterior.
  Esperar(CoeficientesSolera(1, 100, 40, Suelo("Periferico", 2, 1, 1.5F)), 31.48194, 46.86264,
          13.31653);
}

TEST(CoeficientesTerreno, SinUOSinAreaNoHayFlujo) {
  for (const CoeficientesTerreno& c :
       {CoeficientesSolera(0, 100, 40, Suelo("Continuo")),
        CoeficientesSolera(1, 0, 40, Suelo("Continuo")), CoeficientesMuroTerreno(0, 30, 2),
        CoeficientesMuroTerreno(1, 0, 2)}) {
    EXPECT_EQ(c.Hg, 0.0F);
    EXPECT_EQ(c.Hpi, 0.0F);
    EXPECT_EQ(c.Hpe, 0.0F);
  }
}

// U = 0,8 en 30 m2: dw = 2,72.
TEST(CoeficientesMuroTerreno, PorSuProfundidad) {
  Esperar(CoeficientesMuroTerreno(0.8F, 30, 2.5F), 12.55463, 13.08539, 7.485452);
  Esperar(CoeficientesMuroTerreno(0.8F, 30, 1), 16.33138, 13.08539, 9.282485);
  Esperar(CoeficientesMuroTerreno(0.8F, 30, 0), 16.33138, 13.08539, 9.282485);
}

TEST(DimensionCaracteristica, DobleDelAreaEntreElPerimetro) {
  EXPECT_FLOAT_EQ(DimensionCaracteristica(100, 40), 5);
  EXPECT_FLOAT_EQ(DimensionCaracteristica(100, 0), 20);
}

// Celdas de las tablas publicadas, y puntos medios entre ellas.
TEST(TransmitanciaTerreno, MuroEnterrado) {
  EXPECT_NEAR(UMuroTerreno(0, 0.5F), 3.05, 1e-5);
  EXPECT_NEAR(UMuroTerreno(2, 6), 0.24, 1e-5);
  EXPECT_NEAR(UMuroTerreno(1, 0), 0.65, 1e-5);  // sin profundidad, 1 m
  EXPECT_NEAR(UMuroTerreno(0.05F, 0.75F), (3.05 + 2.2 + 2.29 + 1.74) / 4, 1e-4);
  EXPECT_NEAR(UMuroTerreno(5, 20), 0.24, 1e-5);
  EXPECT_NEAR(UMuroTerreno(-1, 0.1F), 3.05, 1e-5);
}

TEST(TransmitanciaTerreno, CamaraSanitaria) {
  EXPECT_NEAR(UCamaraSanitaria(1, 0), 9.38, 1e-5);
  EXPECT_NEAR(UCamaraSanitaria(1.5F, 0.25F), (9.38 + 1.65 + 5.35 + 1.46) / 4, 1e-4);
  EXPECT_NEAR(UCamaraSanitaria(11, 2.5F), (0.32 + 0.31) / 2, 1e-4);
  EXPECT_NEAR(UCamaraSanitaria(40, 4), 0.23, 1e-5);
}

TEST(TransmitanciaTerreno, SoleraSuperficial) {
  EXPECT_NEAR(USoleraSuperficial(5, 0, 0), 0.85, 1e-5);
  EXPECT_NEAR(USoleraSuperficial(0.3F, 0, 2), 2.35, 1e-5);
  EXPECT_NEAR(USoleraSuperficial(5, 1, 1), 0.58, 1e-5);
  EXPECT_NEAR(USoleraSuperficial(20, 1.5F, 2.5F), 0.20, 1e-5);
  // Entre B' 5 y 6 y entre Ra 1 y 1,5, con 1 m de banda.
  EXPECT_NEAR(USoleraSuperficial(5.5F, 1, 1.25F), (0.58 + 0.54 + 0.52 + 0.48) / 4, 1e-4);
  // De no tener banda a la primera resistencia, y a la primera anchura.
  EXPECT_NEAR(USoleraSuperficial(5, 1, 0.25F), (0.85 + 0.65) / 2, 1e-4);
  EXPECT_NEAR(USoleraSuperficial(5, 0.25F, 1), (0.85 + 0.64) / 2, 1e-4);
  // Celda vacía en la tabla: toma la de su izquierda.
  EXPECT_NEAR(USoleraSuperficial(1, 1.5F, 0.5F), 0.57, 1e-5);
}

TEST(TransmitanciaTerreno, SoleraProfundaPorIntervalosDeProfundidad) {
  EXPECT_NEAR(USoleraProfunda(5, 0, 0.6F), 0.64, 1e-5);
  EXPECT_NEAR(USoleraProfunda(5, 0, 1), 0.64, 1e-5);
  EXPECT_NEAR(USoleraProfunda(5, 0, 1.01F), 0.54, 1e-5);
  EXPECT_NEAR(USoleraProfunda(5, 0, 3), 0.42, 1e-5);
  EXPECT_NEAR(USoleraProfunda(5, 0, 8), 0.35, 1e-5);
  EXPECT_NEAR(USoleraProfunda(11, 0.75F, 0.6F), (0.34 + 0.30 + 0.30 + 0.27) / 4, 1e-4);
  EXPECT_NEAR(USoleraProfunda(90, 9, 9), 0.14, 1e-5);
}

}  // namespace
}  // namespace novex
