#include "base/Psicrometria.h"

#include <gtest/gtest.h>

namespace novex::psicrometria {
namespace {

constexpr float kP = 101325;

// Tablas de ASHRAE Fundamentals, cap. 1 (presiones en Pa); sobre hielo a -20 °C.
TEST(PresionSaturacion, TablasDeASHRAESinSaltoEntreHieloYAgua) {
  EXPECT_NEAR(PresionSaturacion(-20), 103.26, 0.05);
  EXPECT_NEAR(PresionSaturacion(-40), 12.85, 0.02);
  EXPECT_NEAR(PresionSaturacion(0.01F), 611.66, 0.2);
  EXPECT_NEAR(PresionSaturacion(20), 2338.8, 1);
  EXPECT_NEAR(PresionSaturacion(40), 7383.5, 3);
  EXPECT_NEAR(PresionSaturacion(100), 101325, 120);
  EXPECT_NEAR(PresionSaturacion(-0.0607F), PresionSaturacion(-0.0606F), 0.5);
  for (float t = -60; t < 90; t += 0.25F)
    EXPECT_LT(PresionSaturacion(t), PresionSaturacion(t + 0.25F)) << t;
  EXPECT_EQ(PresionSaturacion(-273.15F), 0);
}

// Ejemplo 1 de ASHRAE Fundamentals, cap. 1: 40 °C con bulbo húmedo de 20 °C a 101325 Pa.
TEST(AireHumedo, EjemploDeASHRAE) {
  const float w = HumedadDeBulboHumedo(40, 20, kP);
  EXPECT_NEAR(w, 0.0065, 0.00015);
  EXPECT_NEAR(Entalpia(40, w), 56.7, 0.1);
  EXPECT_NEAR(HumedadRelativa(40, w, kP), 14, 0.1);
  EXPECT_NEAR(PuntoRocio(w, kP), 7.43, 0.02);
  EXPECT_NEAR(VolumenEspecifico(40, w, kP), 0.896, 0.0005);
  EXPECT_NEAR(BulboHumedo(40, w, kP), 20, 0.002);
  // 20 °C y 50 %, con las mismas correlaciones en doble precisión.
  const float interior = HumedadDeRelativa(20, 50, kP);
  EXPECT_NEAR(interior, 0.0072617, 1e-6);
  EXPECT_NEAR(Entalpia(20, interior), 38.552, 0.005);
  EXPECT_NEAR(PuntoRocio(interior, kP), 9.272, 0.002);
  EXPECT_NEAR(BulboHumedo(20, interior, kP), 13.784, 0.003);
  EXPECT_NEAR(VolumenEspecifico(20, interior, kP), 0.84016, 0.0001);
}

TEST(AireHumedo, CadaFuncionConSuInversa) {
  for (const float presion : {101325.0F, 85000.0F})
    for (const float t : {-5.0F, 5.0F, 26.0F, 38.0F})
      for (const float hr : {15.0F, 60.0F, 100.0F}) {
        const float w = HumedadDeRelativa(t, hr, presion);
        SCOPED_TRACE(testing::Message() << t << " °C, " << hr << " %, " << presion << " Pa");
        EXPECT_NEAR(HumedadRelativa(t, w, presion), hr, 0.01);
        EXPECT_NEAR(HumedadDePresion(PresionVapor(w, presion), presion), w, 1e-7);
        EXPECT_NEAR(HumedadDeEntalpia(t, Entalpia(t, w)), w, 2e-7);
        EXPECT_NEAR(HumedadSaturacion(PuntoRocio(w, presion), presion), w, w * 2e-4);
        const float humedo = BulboHumedo(t, w, presion);
        EXPECT_NEAR(HumedadDeBulboHumedo(t, humedo, presion), w, 2e-6);
        EXPECT_LE(humedo, t + 0.001F);
        EXPECT_GE(humedo, PuntoRocio(w, presion) - 0.001F);
      }
}

TEST(AireHumedo, CasosExtremos) {
  EXPECT_EQ(PuntoRocio(0, kP), -60);
  EXPECT_EQ(PuntoRocio(6e-6F, kP), -60);     // 0,98 Pa de vapor
  EXPECT_GT(PuntoRocio(8e-5F, kP), -45.0F);  // 13 Pa
  EXPECT_EQ(HumedadRelativa(0, 0, kP), 0);
  EXPECT_EQ(HumedadRelativa(-273.15F, 0.001F, kP), 50);
  EXPECT_EQ(HumedadRelativa(10, 0.02F, kP), 100);  // más agua de la que cabe
  // Por debajo del rocío (14,0 °C con 0,01 kg/kg) no hay bulbo húmedo: el punto medio.
  EXPECT_NEAR(BulboHumedo(10, 0.01F, kP), (10 + PuntoRocio(0.01F, kP)) / 2, 1e-4);
  EXPECT_NEAR(PuntoRocio(0.01F, kP), 14.04, 0.03);
}

TEST(TemperaturaDeEntalpia, SaturadaYConHumedadRelativa) {
  // Aire saturado a 10 °C: 29,285 kJ/kg.
  EXPECT_NEAR(TemperaturaDeEntalpia(100, 29.285F, kP), 10, 0.003);
  EXPECT_NEAR(TemperaturaDeEntalpia(50, 38.552F, kP), 20, 0.01);
}

TEST(RazonSensibleBateria, EntreSieteDecimosYUno) {
  // 27 °C y 50 % con la batería a 12 °C, en doble precisión: 0,7134.
  EXPECT_NEAR(RazonSensibleBateria(27, 50, kP, 12), 0.7134, 0.0005);
  EXPECT_NEAR(RazonSensibleBateria(25, 45, kP, 10), 0.8279, 0.0005);
  EXPECT_EQ(RazonSensibleBateria(27, 50, kP, 16), 1);  // aire más seco que la batería
  EXPECT_EQ(RazonSensibleBateria(35, 5, kP, 10), 1);
  EXPECT_EQ(RazonSensibleBateria(30, 80, kP, 10), 0.7F);  // sin límite sería 0,364
  EXPECT_EQ(RazonSensibleBateria(8, 90, kP, 10), 1);      // la batería no enfría
}

// Aire a 27 °C con bulbo húmedo de 19 °C, cuyo rocío es de 14,715 °C.
TEST(RocioAparato, BajaHastaLaRazonSensible) {
  const float w = HumedadDeBulboHumedo(27, 19, kP);
  EXPECT_NEAR(RocioAparato(0.75F, 27, w, kP), 11.35, 0.015);
  EXPECT_NEAR(RocioAparato(0.7F, 27, w, kP), 9.72, 0.02);
  EXPECT_NEAR(RocioAparato(0.9F, 27, w, kP), 13.83, 0.015);
  // A 6 °C la razón aún es 0,6425: no se sigue bajando.
  EXPECT_EQ(RocioAparato(0.6F, 27, w, kP), 6);
}

constexpr AireEntrada kNominal = {27, 19};

TEST(MetodoBateria, EnLasCondicionesNominalesYEnOtras) {
  EXPECT_NEAR(MetodoBateria(5, 3.75F, kNominal, kNominal, 5, kP), 1, 0.002);
  EXPECT_NEAR(MetodoBateria(12, 9.6F, kNominal, kNominal, 12, kP), 1, 0.002);
  // Cálculo en doble precisión: sensible 0,7441 de 4,6 kW frente a 3,75 kW.
  EXPECT_NEAR(MetodoBateria(5, 3.75F, kNominal, {25, 18}, 4.6F, kP), 0.9127, 0.002);
  // Aire que la batería no deshumedece: todo es sensible, 4,5 / 3,75 y 3 / 4.
  EXPECT_FLOAT_EQ(MetodoBateria(5, 3.75F, kNominal, {27, 15}, 4.5F, kP), 1.2F);
  EXPECT_FLOAT_EQ(MetodoBateria(5, 4, kNominal, {24, 17}, 3, kP), 0.75F);
  EXPECT_EQ(MetodoBateria(5, 3.75F, kNominal, {25, 18}, 0, kP), 0);
}

}  // namespace
}  // namespace novex::psicrometria
