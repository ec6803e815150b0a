#include <gtest/gtest.h>

#include <memory>

#include "demand/ElementosHuecos.h"
#include "demand/ElementosOpacos.h"
#include "demand/FactoresHuecos.h"
#include "model/Cambios.h"
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
