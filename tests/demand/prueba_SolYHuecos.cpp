#include <gtest/gtest.h>

#include <memory>

#include "base/Mensajes.h"
#include "demand/CieloClaro.h"
#include "demand/Clima.h"
#include "demand/ElementosHuecos.h"
#include "demand/ElementosOpacos.h"
#include "demand/FactoresHuecos.h"
#include "demand/Solar.h"
#include "demand/Sombras.h"
#include "model/Cambios.h"
#include "model/Huecos.h"

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

TEST(FraccionPersianaU, DeDiaPorElControlYDeNochePorLaEstacion) {
  const std::tuple<int, bool, int, int, float> casos[] = {
      {9, true, 0, 0, 0.1F}, {19, true, 5, 0, 0.4F}, {12, true, 8, 0, 0.5F},  {8, true, 8, 0, 0},
      {20, true, 8, 0, 0},   {9, false, 0, 4, 0.3F}, {19, false, 0, 1, 0.7F}, {8, false, 0, 1, 1},
      {24, false, 0, 1, 1},  {12, true, 9, 0, 0},    {12, false, 0, -1, 0}};
  for (const auto& [hora, verano, deVerano, deInvierno, fraccion] : casos)
    EXPECT_FLOAT_EQ(FraccionPersianaU(hora, verano, deVerano, deInvierno), fraccion)
        << hora << " h, controles " << deVerano << " y " << deInvierno;
}

TEST(FraccionPersianaSol, PorElControlElUmbralYLaHora) {
  // Los controles 6 a 8 actúan a cualquier hora con sol; en invierno, solo sin sol.
  const std::tuple<int, bool, int, int, float, float> casos[] = {
      {12, true, 0, 0, 300, 0},   {12, true, 0, 0, 301, 0.5F}, {12, true, 1, 0, 500, 0},
      {9, true, 2, 0, 400, 0.7F}, {19, true, 5, 0, 501, 0.9F}, {20, true, 5, 0, 501, 0},
      {7, true, 8, 0, 1, 0.9F},   {12, true, 6, 0, 1, 0.5F},   {12, true, 6, 0, 0, 0},
      {12, true, 9, 0, 800, 0},   {12, false, 8, 3, 1, 0},     {12, false, 8, 2, 0, 0.9F},
      {23, false, 8, 4, 0, 0.3F}, {23, false, 8, 5, 0, 0}};
  for (const auto& [hora, verano, deVerano, deInvierno, sol, fraccion] : casos)
    EXPECT_FLOAT_EQ(FraccionPersianaSol(hora, verano, deVerano, deInvierno, sol), fraccion)
        << hora << " h, controles " << deVerano << " y " << deInvierno << ", " << sol << " W/m2";
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

class Elementos : public testing::Test {
 protected:
  Elementos() {
    lugar.latitud = 40;
    lugar.mesmin = 6;
    lugar.mesmax = 9;
    edificio.SetLocalizacion(lugar);
    caso->resultados.alturaLibre = 0.9F;
    caso->resultados.Uefectiva.fill(0.5F);
    caso->alturaEdificio = 6;
    Huecos& g = edificio.GetHuecos(0);
    g.Ancho_m = 2;
    g.Alto_m = 1;
    g.Fraccion_marco_tanto_por_cien = 0;
    g.FS_cristal_tanto_por_uno = 0.8F;
    g.U_cristal_W_m2K = 3;
  }
  AjustesUso Ajustes(int perfil) {
    pruebas::CambiarGenerales(edificio, [&](DatosGenerales& g) { g.PerfilUso = perfil; });
    return ResolverAjustes(edificio);
  }
  float Valor(const std::string& clave, int h) const { return caso->valores.at(clave).valor[h]; }

  Edificio edificio;
  Recinto& r = edificio.GetRecinto(0);
  Localizacion lugar;
  std::unique_ptr<calculo> caso = std::make_unique<calculo>();
};

TEST_F(Elementos, LaParteEnSombraRecibeLoQueElNorte) {
  Huecos& g = edificio.GetHuecos(0);
  g.columnas[sur].Anadir(2);
  g.columnas[norte].Anadir(1);
  g.Indice_tipo_sombra_fija = 11;  // deja pasar el 2 % al sur
  caso->clima.CENITS[12] = 60;
  caso->clima.IRAD[sur][12] = 500;
  caso->clima.IRAD[norte][12] = 100;
  // A la hora siguiente el sol está detrás de la fachada.
  caso->clima.CENITS[13] = 60;
  caso->clima.AZIMUTS[13] = 120;
  caso->clima.IRAD[sur][13] = 500;
  caso->clima.IRAD[norte][13] = 100;
  ElementosHuecos huecos(edificio, Ajustes(4), *caso);
  huecos.Ganancias(12, 1);
  EXPECT_NEAR(Valor("0-S-G-1", 12), 0.769 * 0.8 * (0.08 * 500 + 3.92 * 100), 1e-2);
  EXPECT_NEAR(Valor("0-N-G-1", 12), 0.769 * 0.8 * 200, 1e-2);
  huecos.Ganancias(13, 1);
  EXPECT_NEAR(Valor("0-S-G-1", 13), 0.769 * 0.8 * 400 + 0.33 * 0.17 * 0.8 * 432, 1e-2);
}

TEST_F(Elementos, CortinaYPersianaTomanLaMenorEnVeranoYLaMayorEnInvierno) {
  Huecos& g = edificio.GetHuecos(0);
  g.columnas[norte].Anadir(1);
  g.Indice_tipo_sombra_movil = 4;  // con vidrio sencillo pasa 0,22
  g.Indice_tipo_control_Verano = 7;
  g.Indice_tipo_control_Invierno = 0;
  const auto hora = [&](int h, int mes, int perfil, float sobreFachada) {
    caso->clima.IRAD[norte][h] = 100;
    caso->clima.irradianciaVertical[norte][h] = sobreFachada;
    ElementosHuecos huecos(edificio, Ajustes(perfil), *caso);
    huecos.Ganancias(h, mes);
    return Valor("0-N-G-1", h) / (0.769F * 200);
  };
  const int julio = 4345, enero = 1;
  // 12 h de julio: cortina 0,7 × 0,8; persiana 0,3 × 0,8 + 0,7 × 0,22.
  EXPECT_NEAR(hora(julio + 11, 7, 0, 120), 0.394, 1e-4);
  EXPECT_NEAR(hora(julio + 11, 7, 0, 0), 0.56, 1e-4);
  EXPECT_NEAR(hora(julio + 11, 7, 4, 0), 0.8, 1e-4);
  // 12 h de enero: con sol la persiana está levantada y no hay cortina.
  EXPECT_NEAR(hora(enero + 11, 1, 0, 120), 0.8, 1e-4);
  // 20 h de enero, sin sol: cortina cerrada y media persiana.
  EXPECT_NEAR(hora(enero + 19, 1, 0, 0), 0.5 * 0.8 + 0.5 * 0.22, 1e-4);
  // Sin persiana, la cortina de noche lo tapa todo.
  g.Indice_tipo_sombra_movil = 0;
  EXPECT_NEAR(hora(enero + 19, 1, 0, 0), 0, 1e-4);
}

TEST_F(Elementos, LosLucernariosNoTienenRetardo) {
  Huecos& g = edificio.GetHuecos(0);
  g.columnas[sur].Anadir(1);
  g.columnas[kColumnaHorizontal].Anadir(3);
  g.Tipo_de_hueco = kLucernario;
  g.Longitud_alero_m = 1;  // pozo de 1 m: ancho 2 y alto 1, factor 0,55
  caso->clima.IRADH[12] = 600;
  caso->clima.IRAD[sur][12] = 200;
  ElementosHuecos huecos(edificio, Ajustes(0), *caso);
  huecos.Ganancias(12, 1);
  EXPECT_NEAR(Valor("0-LS-G-1", 12), 2 * 0.8 * 0.55 * (0.3 * 200 + 0.7 * 600), 1e-2);
  EXPECT_NEAR(Valor("0-LH-G-1", 12), 6 * 0.8 * 0.55 * 600, 1e-2);
  EXPECT_EQ(caso->valores.at("0-LH-G-1").orientacion, "HORIZONTAL");
  EXPECT_EQ(caso->valores.at("0-LH-G-1").numero, 3);
  huecos.Ganancias(13, 1);
  EXPECT_EQ(Valor("0-LH-G-1", 13), 0.0F);
}

// U = 3: la cortina o la persiana cerradas la bajan a 3/1,495.
TEST_F(Elementos, LaConductanciaCambiaConLaHora) {
  Huecos& g = edificio.GetHuecos(0);
  g.columnas[este].Anadir(2);
  g.columnas[este].FactorUColumna = 0.5F;
  g.Valor_multiplicativo_U_invierno = 2;
  const double cortina = 0.3 / 1.495 + 0.7;
  {
    const ElementosHuecos huecos(edificio, Ajustes(0), *caso);
    EXPECT_NEAR(huecos.UA(true, 5), 4 * 0.5 * 3, 1e-4);
    EXPECT_NEAR(huecos.UA(true, 6), 4 * 0.5 * 3 * cortina, 1e-4);
    EXPECT_NEAR(huecos.UA(true, 21), 4 * 0.5 * 3 * cortina, 1e-4);
    EXPECT_NEAR(huecos.UA(true, 22), 4 * 0.5 * 3, 1e-4);
    EXPECT_NEAR(huecos.UA(false, 7), 4 * 0.5 * 2 * 3 * cortina, 1e-4);
    EXPECT_NEAR(huecos.UA(false, 8), 4 * 0.5 * 2 * 3, 1e-4);
    EXPECT_NEAR(huecos.UA(false, 15), 4 * 0.5 * 2 * 3, 1e-4);
    EXPECT_NEAR(huecos.UA(false, 16), 4 * 0.5 * 2 * 3 * cortina, 1e-4);
  }
  g.Indice_tipo_sombra_movil = 1;
  g.Indice_tipo_control_Verano = 8;
  g.Indice_tipo_control_Invierno = 3;
  ElementosHuecos huecos(edificio, Ajustes(4), *caso);
  EXPECT_NEAR(huecos.UA(true, 12), 6 * (0.5 / 1.495 + 0.5), 1e-4);
  EXPECT_NEAR(huecos.UA(true, 20), 6, 1e-4);
  EXPECT_NEAR(huecos.UA(false, 3), 12 / 1.495, 1e-4);
  // La conducción se suma a lo que el elemento ya guarda.
  huecos.AnadirConduccion(20, true, -5);
  huecos.AnadirConduccion(20, true, -5);
  EXPECT_NEAR(Valor("0-E-G-1", 20), -60, 1e-3);
  EXPECT_NEAR(huecos.SumaGuardada(20), -60, 1e-3);
}

TEST_F(Elementos, UnaColumnaVaciaNoDaElemento) {
  edificio.GetHuecos(0).columnas[sur].FactorAreaColumna = 0;
  edificio.GetHuecos(0).columnas[sur].Anadir(2);
  ElementosHuecos huecos(edificio, Ajustes(0), *caso);
  EXPECT_FALSE(huecos.Hay());
  EXPECT_TRUE(caso->valores.empty());
}

}  // namespace
}  // namespace novex
