#include "model/TablaEnvolvente.h"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>

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

}  // namespace
}  // namespace novex
