#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "model/Huecos.h"
#include "model/PropiedadesHueco.h"
#include "model/TablaEnvolvente.h"

namespace novex {
namespace {

TEST(TablaEnvolvente, SonCincuentaYDosCadaUnaEnSuPosicion) {
  const std::pair<const char*, std::size_t> esperadas[] = {
      {"MuroExt1", 0},    {"MuroExt5", 4},    {"MuroTerr1", 5},   {"MuroOtro1", 7},
      {"MuroOtro5", 8},   {"MuroOtro2", 9},   {"MuroOtro6", 10},  {"MuroOtro3", 11},
      {"MuroExt6", 12},   {"MuroOtro7", 13},  {"MuroExt7", 14},   {"TechoExt1", 15},
      {"TechoInc3", 20},  {"TechoTerr2", 22}, {"TechoOtro1", 23}, {"TechoInt2", 26},
      {"TechoVent1", 27}, {"TechoVent2", 28}, {"TechoVent3", 29}, {"TechoVent4", 30},
      {"SueloTerr1", 31}, {"SueloExt2", 35},  {"SueloVent1", 36}, {"MuroExt8", 37},
      {"SueloVent3", 38}, {"MuroExt9", 39},   {"SueloOtro1", 40}, {"SueloOtro3", 41},
      {"SueloOtro2", 42}, {"SueloOtro4", 43}, {"SueloInt1", 44},  {"MuroOtro8", 46},
      {"MuroOtro9", 47},  {"TechoInt3", 48},  {"SueloInt3", 50},  {"SueloInt4", 51}};
  for (const auto& [clave, indice] : esperadas) {
    EXPECT_EQ(TablaEnvolvente::Indice(clave), indice) << clave;
    EXPECT_EQ(TablaEnvolvente::Clave(indice), clave);
  }
  EXPECT_EQ(ranura::MuroOtro5, 8U);
  EXPECT_EQ(ranura::SueloOtro3, 41U);
  EXPECT_EQ(ranura::MuroExt9, 39U);
  EXPECT_EQ(ranura::SueloInt4, 51U);
  std::set<std::string_view> claves;
  for (std::size_t i = 0; i < 52; ++i) {
    claves.insert(TablaEnvolvente::Clave(i));
    EXPECT_EQ(TablaEnvolvente::Indice(TablaEnvolvente::Clave(i)), i);
  }
  EXPECT_EQ(claves.size(), 52U);
  for (const char* clave : {"", "MuroOtro4", "muroExt1", "MuroExt1 ", "SueloVent2", "MuroExt10"})
    EXPECT_FALSE(TablaEnvolvente::Indice(clave)) << clave;
  EXPECT_THROW(TablaEnvolvente::Clave(52), std::out_of_range);
}

TEST(Huecos, AnadirYQuitarPorElFinalDeLaColumna) {
  Huecos grupo;
  ColumnaHuecos& columna = grupo.columnas[sur];
  columna.Anadir(3);
  columna.Quitar(1);
  EXPECT_EQ(columna.recintos, (std::vector<std::size_t>{0, 0}));
  columna.recintos.push_back(1);
  EXPECT_EQ(columna.NumeroEnRecinto(0), 2U);
  EXPECT_EQ(columna.NumeroEnRecinto(1), 1U);
  columna.Quitar(1);  // el del recinto 1, que es el último
  EXPECT_EQ(columna.NumeroEnRecinto(1), 0U);
  columna.Quitar(5);
  EXPECT_TRUE(columna.recintos.empty());
  columna.Quitar(0);
  columna.Anadir(0);
  EXPECT_TRUE(columna.recintos.empty());
}

TEST(Huecos, ElTotalYLasDireccionesDeObstaculoDeLasColumnas) {
  Huecos grupo;
  std::size_t esperado = 0;
  for (std::size_t i = 0; i < 8; ++i) {
    grupo.columnas[i].Anadir(i + 1);
    esperado += i + 1;
  }
  EXPECT_EQ(grupo.NumeroTotal(), esperado);  // 36
  const std::vector<std::vector<Sector>> esperadas = {{},
                                                      {oeste, sur_oeste},
                                                      {oeste, sur_oeste, sur},
                                                      {sur_oeste, sur, sur_este},
                                                      {sur, sur_este, este},
                                                      {sur_este, este},
                                                      {},
                                                      {}};
  for (std::size_t columna = 0; columna < esperadas.size(); ++columna) {
    const DireccionesObstaculo d = DireccionesDeColumna(columna);
    const std::vector<Sector> dadas(d.sector.begin(),
                                    d.sector.begin() + static_cast<std::ptrdiff_t>(d.cuantas));
    EXPECT_EQ(dadas, esperadas[columna]) << columna;
  }
}

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
TEST(UVentana, VidrioMarcoBordeCajaYCasosExtremos) {
  EXPECT_NEAR(UVentana(Ventana(), 0, 0), 3.214164, 1e-5);
  EXPECT_NEAR(UVentana(Ventana(), 1.8F, 1.2F), (0.36 * 1.2 + 1.44 * 1.8 + 0.2414953) / 1.8, 1e-5);
  Huecos g = Ventana();
  g.Altura_Caja_de_persiana_m = 0.25F;
  g.U_Caja_de_persiana_W_m2K = 1.8F;
  EXPECT_NEAR(UVentana(g, 0, 0), 3.214164, 1e-5);
  g.Existe_Caja_persiana = 0;
  EXPECT_NEAR(UVentana(g, 0, 0), 2.970343, 1e-5);
  g = Ventana();
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

TEST(FactorProteccionMovil, PorElTipoDeVidrioOPorSuU) {
  const std::tuple<int, int, float, float> casos[] = {
      {4, 0, 1, 0.22F},  {4, 1, 5.7F, 0.2F}, {4, 4, 5.7F, 0.17F},  {4, 5, 5.01F, 0.22F},
      {4, 5, 5, 0.2F},   {4, 9, 3, 0.2F},    {4, -1, 1.6F, 0.17F}, {4, 9, 1.59F, 0.13F},
      {12, 0, 1, 0.65F}, {13, 1, 1, 0.05F}};
  for (const auto& [proteccion, vidrio, U, factor] : casos)
    EXPECT_FLOAT_EQ(FactorProteccionMovil(proteccion, vidrio, U), factor) << vidrio << " " << U;
  for (const int indice : {0, 14, -3}) EXPECT_EQ(FactorProteccionMovil(indice, 0, 1), 1.0F);
}

TEST(FigurasHueco, LasDeUnaVentanaConPersiana) {
  Huecos g = Ventana();
  g.FS_cristal_tanto_por_uno = 0.62F;
  g.Permeabilidad_Ventanas = 27;
  g.Indice_tipo_sombra_movil = 3;
  const FigurasHueco f = CalcularFigurasHueco(g);
  // 0,62 × 0,8 + 0,04 × 2,2 × 0,2 × 0,7
  EXPECT_NEAR(f.FactorSolar, 0.50832, 1e-5);
  EXPECT_NEAR(f.FactorSolarSombraActivada, 0.50832 * 0.11, 1e-5);
  EXPECT_FLOAT_EQ(f.FSHueco, f.FactorSolar);
  EXPECT_NEAR(f.Ff, 0.2, 1e-6);
  EXPECT_EQ(f.C100, 27.0F);
  EXPECT_NEAR(f.UHueco, 3.214164, 1e-5);
  g.Fraccion_marco_tanto_por_cien = 100;
  EXPECT_EQ(CalcularFigurasHueco(g).FSHueco, 0.0F);
  EXPECT_NEAR(CalcularFigurasHueco(g).FactorSolar, 0.0616, 1e-5);
}

}  // namespace
}  // namespace novex
