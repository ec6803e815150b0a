#include "model/Catastro.h"

#include <gtest/gtest.h>

#include <string>

namespace novex {
namespace {

struct Muestra {
  const char* registro;
  const char* parte;
  std::string texto;
  bool correcta;
};

TEST(Catastro, FormaDeCadaParte) {
  const std::vector<Muestra> muestras = {
      {"DGC", "Parcela", "9872023VH5797S", true},
      {"DGC", "Parcela", "9872023VH5797Sab", true},  // las minúsculas no cuentan ni estorban
      {"DGC", "Parcela", "9872023VH5797", false},
      {"DGC", "Parcela", "9872023 VH5797S", false},
      {"DGC", "Inmueble", "1234AB", true},
      {"DGC", "Inmueble", "12345A", false},
      {"DGC", "Inmueble", "1234ab", false},
      {"AFA", "Parcela", "12345678", true},
      {"AFA", "Parcela", "12ABCabc345678", true},
      {"AFA", "Parcela", "1234-5678", false},
      {"AFA", "Inmueble", "A112345678BC", true},
      {"AFA", "Inmueble", "a112345678BC", false},
      {"AFA", "Inmueble", "A1A2345678BC", false},
      {"BFA", "Parcela", "123456789012", true},
      {"BFA", "Inmueble", "0123", true},
      {"BFA", "Inmueble", "012A", false},
      {"GFA", "Parcela", "123456789", true},
      {"GFA", "Inmueble", "1234567A", true},
      {"GFA", "Inmueble", "123456AA", false},
      {"RRTN", "Parcela", "123456789", true},
      {"RRTN", "Inmueble", "31000000001234567AB", false},
      {"RRTN", "Inmueble", "310000000123456789AB", true},
      {"RRTN", "Inmueble", "31000000012345678AAB", false},
      {"AFA", "Parte", "ab-", true},
      {"DGC", "Parte", "a-_", true},
      {"DGC", "Parte", "a--b", false},
      {"DGC", "Parte", "ab", false},
      {"DGC", "Parte", "cañon", false},
      {"BFA", "Parte", std::string(36, 'x'), true},
      {"BFA", "Parte", std::string(37, 'x'), false},
      {"BFA", "Otra", "abc", false},
      {"XXX", "Inmueble", "1234AB", false},
  };
  for (const Muestra& m : muestras)
    EXPECT_EQ(ComprobarParteCatastro(m.texto, m.registro, m.parte),
              m.correcta ? kCorrecto : kIncorrecto)
        << m.registro << " " << m.parte << " " << m.texto;
  for (const auto registro : kRegistrosCatastro)
    for (const auto parte : kPartesCatastro) {
      EXPECT_EQ(ComprobarParteCatastro("", registro, parte), kIncorrecto);
      EXPECT_EQ(ComprobarParteCatastro("12 3456789", registro, parte), kIncorrecto);
    }
}

TEST(Catastro, TodasLasReferencias) {
  const ReferenciaCatastral buena{"9872023VH5797S", "0001WX", "total"};
  ReferenciaCatastral mala = buena;
  mala.Parte.clear();
  EXPECT_FALSE(ComprobarReferencias({}, "DGC"));
  EXPECT_TRUE(ComprobarReferencias({buena, buena}, "DGC"));
  EXPECT_FALSE(ComprobarReferencias({buena, mala}, "DGC"));
  EXPECT_FALSE(ComprobarReferencias({buena}, "RRTN"));
}

TEST(Catastro, RotulosPorRegistro) {
  EXPECT_EQ(RotulosCatastro("GFA")[1], "Inmueble (7 nº + 1 mayuscula)");
  EXPECT_EQ(RotulosCatastro("AFA")[2], "Parte (3 a 36 nº ó letras incluidos -_)");
  EXPECT_EQ(RotulosCatastro("RRTN")[2], "Parte (3 a 36 nº y letras incluidos -_)");
  EXPECT_EQ(RotulosCatastro("")[0], "Parcela");
}

}  // namespace
}  // namespace novex
