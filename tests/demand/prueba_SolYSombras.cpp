#include <gtest/gtest.h>

#include <memory>

#include "base/Mensajes.h"
#include "demand/CieloClaro.h"
#include "demand/Clima.h"
#include "demand/Solar.h"
#include "demand/Sombras.h"

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

constexpr float kLatitud = 40;

// Alturas buscadas aparte, recorriendo el día hasta que el sol llega al azimut.
TEST(AlturaSolEnDireccion, EnLosCincoRumbos) {
  EXPECT_NEAR(AlturaSolEnDireccion(sur, kLatitud, 12).tangente, 0.499672, 1e-4);  // 26,55°
  EXPECT_NEAR(AlturaSolEnDireccion(sur_oeste, kLatitud, 12).tangente, 0.210084, 1e-4);
  EXPECT_NEAR(AlturaSolEnDireccion(sur_este, kLatitud, 12).tangente, 0.210084, 1e-4);
  EXPECT_NEAR(AlturaSolEnDireccion(sur_oeste, kLatitud, 11).tangente, 0.283538, 1e-4);
  EXPECT_NEAR(AlturaSolEnDireccion(sur_este, kLatitud, 6).tangente, 2.522762, 1e-3);
  EXPECT_NEAR(AlturaSolEnDireccion(oeste, kLatitud, 6).tangente, 0.788345, 1e-4);
  EXPECT_NEAR(AlturaSolEnDireccion(este, kLatitud, 5).tangente, 0.638160, 1e-4);
  EXPECT_NEAR(AlturaSolEnDireccion(oeste, kLatitud, 8).tangente, 0.325632, 1e-4);
  // En los equinoccios el sol sale justo por el este.
  EXPECT_TRUE(AlturaSolEnDireccion(este, kLatitud, 3).dentro);
  EXPECT_NEAR(AlturaSolEnDireccion(este, kLatitud, 9).tangente, 0, 1e-3);
  for (const int mes : {1, 2, 10, 11, 12}) {
    EXPECT_FALSE(AlturaSolEnDireccion(oeste, kLatitud, mes).dentro) << mes;
    EXPECT_FALSE(AlturaSolEnDireccion(este, kLatitud, mes).dentro) << mes;
  }
}

TEST(FraccionObstaculos, ElMasAltoQueLaFachadaNoLaTapaMasDeUnaVez) {
  ObstaculosRemotos o;
  o.Sur_Altura = 100;
  o.Sur_Distancia = 12;
  EXPECT_NEAR(FraccionObstaculos(sur, o, kLatitud, 12, 6), 1.0 / 3, 1e-5);
  EXPECT_EQ(FraccionObstaculos(oeste, o, kLatitud, 12, 6), 0.0F);
  // Al oeste, en invierno, solo cuenta el suroeste: 8 - 0,210084 × 20 = 3,798 m.
  ObstaculosRemotos p;
  p.Oeste_Altura = 50;
  p.Oeste_Distancia = 5;
  p.SurOeste_Altura = 8;
  p.SurOeste_Distancia = 20;
  EXPECT_NEAR(FraccionObstaculos(oeste, p, kLatitud, 12, 6), 0.633053, 1e-4);
}

TEST(SombraMuro, SumaLoQueEstaFueraDelPlano) {
  EXPECT_FLOAT_EQ(SombraMuro(20, 4, 0.25F, 0, true), 5);
  EXPECT_FLOAT_EQ(SombraMuro(20, 4, 0.25F, 0, false), 8);
  EXPECT_FLOAT_EQ(SombraMuro(20, 4, 0.25F, 3, true), 6.5F);
  EXPECT_FLOAT_EQ(SombraMuro(20, 4, 0.25F, 3, false), 6.5F);
  EXPECT_FLOAT_EQ(SombraMuro(20, 4, 0.25F, 4, true), 5);
  // Todo fuera del plano: el elemento se deja como está.
  EXPECT_LT(SombraMuro(20, 20, 0.25F, 0, true), 0.0F);
}

TEST(FraccionSinObstaculos, TapaLosHuecosDeAbajo) {
  ColumnaHuecos columna;
  columna.Anadir(4);
  columna.obstaculos[1] = {10, 12};  // al sur
  // Diciembre: 4,004 m de sombra y huecos cada 3 m son dos, en una de tres direcciones.
  EXPECT_NEAR(FraccionSinObstaculos(columna, sur, kLatitud, 12, 0, false), 1 - 2.0 / 12, 1e-5);
  EXPECT_EQ(FraccionSinObstaculos(columna, sur, kLatitud, 6, 0, true), 1.0F);
  // Sin separación, todos o ninguno.
  columna.Separacion_ventanas_vertical = 0;
  EXPECT_NEAR(FraccionSinObstaculos(columna, sur, kLatitud, 12, 0, false), 1 - 4.0 / 12, 1e-5);
  EXPECT_EQ(FraccionSinObstaculos(columna, sur, kLatitud, 6, 0, true), 1.0F);
  EXPECT_EQ(FraccionSinObstaculos(columna, norte, kLatitud, 12, 0, false), 1.0F);
  // El este y el oeste solo cuentan en verano.
  ColumnaHuecos deEste;
  deEste.Anadir(4);
  deEste.obstaculos[1] = {20, 10};  // al este: 20 - 0,788345 × 10 = 12,1 m tapan los cuatro
  EXPECT_NEAR(FraccionSinObstaculos(deEste, este, kLatitud, 6, 0, true), 0.5, 1e-5);
  EXPECT_EQ(FraccionSinObstaculos(deEste, este, kLatitud, 6, 0, false), 1.0F);
  EXPECT_NEAR(FraccionSinObstaculos(deEste, este, kLatitud, 6, 5, true), 0.75, 1e-5);
  EXPECT_NEAR(FraccionSinObstaculos(deEste, este, kLatitud, 6, 5, false), 0.75, 1e-5);
}

SombraPropia Hueco(float distancia, float alero, float retranqueo) {
  Huecos g;
  g.Ancho_m = 2;
  g.Alto_m = 1.2F;
  g.Distancia_alero_m = distancia;
  g.Longitud_alero_m = alero;
  g.Retranqueo_m = retranqueo;
  return SombraPropia(g);
}

TEST(SombraPropia, LaQueTapaTodoElHuecoNoPasaDeEl) {
  EXPECT_FALSE(Hueco(0.3F, 0, 0).Hay());
  EXPECT_EQ(Hueco(0.2F, 0.5F, 0.1F).FraccionSoleada(30, 0), 0.0F);
  EXPECT_EQ(Hueco(0, 0, 0.1F).FraccionSoleada(1, 50), 0.0F);
}

TEST(MirarSol, ElPlanoDeLaFachadaQuedaFuera) {
  EXPECT_FALSE(MirarSol(0, 50, 90).delante);     // 90° exactos
  EXPECT_FALSE(MirarSol(180, 50, -90).delante);  // 270°
  EXPECT_TRUE(MirarSol(180, 50, -90.5F).delante);
  EXPECT_TRUE(MirarSol(0.5F, 50, 90).delante);
  EXPECT_FALSE(MirarSol(0, 90, 0).delante);
  EXPECT_TRUE(MirarSol(0, 89, 0).delante);
  const SolEnFachada sol = MirarSol(-60, 45, 0);
  EXPECT_NEAR(sol.t, 2, 1e-4);
  EXPECT_NEAR(sol.s, 1.7320508, 1e-4);
}

TEST(IrradianciaCieloClaro, ModeloDeBird) {
  EXPECT_NEAR(IrradianciaCieloClaro(30, 0.5F), 624.327, 0.1);
  EXPECT_NEAR(IrradianciaCieloClaro(60, 0.8F), 772.396, 0.1);
  EXPECT_NEAR(IrradianciaCieloClaro(85, 0.3F), 128.782, 0.1);
  EXPECT_EQ(IrradianciaCieloClaro(90, 0.3F), 0.0F);
}

// Fracciones calculadas aparte, con las mismas horas y pesos.
TEST(FraccionSolCercana, PesaLasHorasConElCieloClaro) {
  const SombraPropia hueco = Hueco(0.2F, 0.5F, 0.1F);
  EXPECT_NEAR(FraccionSolCercana(hueco, sur, kLatitud, 12), 0.919927, 1e-3);
  EXPECT_NEAR(FraccionSolCercana(hueco, oeste, kLatitud, 6), 0.668478, 1e-3);
  EXPECT_EQ(FraccionSolCercana(hueco, sur, kLatitud, 6), 0.0F);
  EXPECT_EQ(FraccionSolCercana(Hueco(0.2F, 0, 0), sur, kLatitud, 6), 1.0F);
  // El mediodía, en el plano de la fachada, no cuenta a ningún lado: el este y el oeste son
  // iguales.
  for (const int mes : {1, 2, 3, 6, 9, 12})
    EXPECT_NEAR(FraccionSolCercana(hueco, oeste, kLatitud, mes),
                FraccionSolCercana(hueco, este, kLatitud, mes), 1e-4)
        << mes;
}

}  // namespace
}  // namespace novex
