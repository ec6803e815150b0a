#include "demand/Solar.h"

#include <gtest/gtest.h>

#include <memory>

#include "base/Mensajes.h"
#include "demand/Clima.h"

namespace novex {
namespace {

// Los valores esperados salen de las mismas fórmulas con ocho cifras; el motor usa simple
// precisión.
constexpr float kWm2 = 0.05F;

TEST(IrradianciaVidrio, ReduceLaDirectaPorElAngulo) {
  // Incidencias de 44° y 75° en vertical y 50° en horizontal.
  EXPECT_NEAR(IrradianciaVidrio(90, 0, 20, 50, 700, 150), 618.9798F, kWm2);
  EXPECT_NEAR(IrradianciaVidrio(90, 90, 20, 50, 700, 150), 220.6037F, kWm2);
  EXPECT_NEAR(IrradianciaVidrio(0, 0, 20, 50, 700, 150), 566.0750F, kWm2);
  // Hasta 40° la directa entra entera.
  EXPECT_NEAR(IrradianciaVidrio(90, 0, 0, 52, 700, 0) - 0.089F * 700 * 0.6156615F, 551.6075F, kWm2);
}

// Un año en el que solo importan las primeras horas.
FicheroMet Met(const std::vector<std::pair<float, float>>& directaYCenit) {
  FicheroMet met;
  met.horas.resize(kHorasAno);
  for (std::size_t i = 0; i < directaYCenit.size(); ++i) {
    met.horas[i].directaHorizontal = directaYCenit[i].first;
    met.horas[i].cenit = directaYCenit[i].second;
  }
  return met;
}

TEST(LeerClima, LaDirectaNormalNoPasaDeLoPosible) {
  auto clima = std::make_unique<SeriesClima>();
  LeerClima(Met({{500, 89.5F}, {500, 60}, {500, 89.5F}, {500, 90}, {20, 95}, {400, 0}}), *clima);
  EXPECT_EQ(clima->IDIRECTA[1], 0.0F);  // sin hora anterior
  EXPECT_NEAR(clima->IDIRECTA[2], 1000.0F, 0.1F);
  EXPECT_NEAR(clima->IDIRECTA[3], 1000.0F, 0.1F);  // más de 1100: repite la anterior
  EXPECT_EQ(clima->IDIRECTA[4], 0.0F);
  EXPECT_EQ(clima->IDIRECTA[5], 0.0F);
  EXPECT_NEAR(clima->IDIRECTA[6], 400.0F, 0.1F);
}

// La mayor diferencia es por debajo de la media: la de febrero, con 2 frente a 7.
TEST(MediasMensuales, AmplitudDelAno) {
  SerieHoraria T;
  for (int h = 1; h <= kHorasAno; ++h) T[h] = HoraDelMes(h) == 2 ? 2.0F : 82.0F / 11;
  T[1416] -= 672.0F;  // última hora de febrero, que tiene 672
  DatosClimaticosSitio sitio;
  AnotarMediaAnual(MediasMensuales(T), sitio);
  EXPECT_NEAR(sitio.amplitud, 83.0 / 12 - 1, 1e-4);
}

TEST(AnotarDatosCapital, BajaElAguaDeRedConLaAltura) {
  std::string texto = "<CAPITALES><CAPITAL P=\"Madrid\" Cota=\"600\" TMEDENE=\"6\" HUMENE=\"70\"";
  for (const char* mes :
       {"ENE", "FEB", "MAR", "ABR", "MAY", "JUN", "JUL", "AGO", "SEP", "OCT", "NOV", "DIC"})
    texto += std::string(" TR") + mes + "=\"10\"";
  const XMLNode raiz = XMLNode::parseString(texto + "/></CAPITALES>", "CAPITALES", "Capitales.xml");
  RegistroMensajes mensajes;
  Localizacion lugar;
  lugar.Provincia = "Madrid";
  lugar.asnm = 800;
  DatosClimaticosSitio sitio;
  AnotarDatosCapital(raiz, lugar, sitio, mensajes);
  EXPECT_NEAR(sitio.aguaRed[3], 10 - 200 * 0.0066, 1e-4);
  EXPECT_NEAR(sitio.aguaRed[4], 10 - 200 * 0.0033, 1e-4);
  EXPECT_NEAR(sitio.aguaRed[9], 10 - 200 * 0.0033, 1e-4);
  EXPECT_NEAR(sitio.aguaRed[10], 10 - 200 * 0.0066, 1e-4);
  EXPECT_NEAR(sitio.aguaRed[0], (8.68 * 182 + 9.34 * 183) / 365, 1e-4);
  // Subir 200 m enfría 2 K; la presión de vapor se conserva hasta la saturación: 935,2 × 0,7 Pa.
  EXPECT_NEAR(sitio.Tproyecto, 4, 1e-5);
  EXPECT_NEAR(sitio.Pvproyecto, 654.7, 0.5);
  EXPECT_NEAR(sitio.HRproyecto, 100 * 654.7 / 813.5, 0.1);

  // Más bajo que la capital el estado de proyecto es el suyo, y el agua sale más caliente.
  lugar.asnm = 500;
  AnotarDatosCapital(raiz, lugar, sitio, mensajes);
  EXPECT_EQ(sitio.Tproyecto, 6.0F);
  EXPECT_EQ(sitio.HRproyecto, 70.0F);
  EXPECT_NEAR(sitio.aguaRed[1], 10.66, 1e-4);

  // Una provincia que no está no cambia nada.
  const DatosClimaticosSitio antes = sitio;
  lugar.Provincia = "madrid";
  AnotarDatosCapital(raiz, lugar, sitio, mensajes);
  EXPECT_TRUE(sitio == antes);
  EXPECT_TRUE(mensajes.recibidos.empty());
}

}  // namespace
}  // namespace novex
