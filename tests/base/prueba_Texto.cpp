#include "base/Texto.h"

#include <gtest/gtest.h>

#include <string>

namespace novex {
namespace {

TEST(EsUtf8, AceptaSoloSecuenciasValidas) {
  using namespace std::string_view_literals;
  for (const auto texto : {""sv, "Muro\0x"sv, "ñ€"sv, "\xF0\x9F\x8F\xA0"sv, "\xF4\x8F\xBF\xBF"sv})
    EXPECT_TRUE(EsUtf8(texto)) << texto;
  for (const auto texto : {
           "\x80"sv,              // continuación suelta
           "\xC0\x80"sv,          // forma larga de NUL
           "\xE0\x80\xAF"sv,      // forma larga de '/'
           "\xF0\x8F\xBF\xBF"sv,  // forma larga de U+FFFF
           "\xED\xA0\x80"sv,      // mitad de un par subrogado
           "\xF4\x90\x80\x80"sv,  // pasa de U+10FFFF
           "\xF5\x80\x80\x80"sv,  // primer byte imposible
           "a\xE2\x82"sv,         // cortada
           "\xC3("sv,             // sin continuación
           "Le\xF3n"sv,           // Latin-1
       })
    EXPECT_FALSE(EsUtf8(texto)) << texto;
}

TEST(Windows1252AUtf8, LetrasDeLatin1YDeWindows) {
  EXPECT_EQ(Windows1252AUtf8("Le\xF3n \x80 \x93x\x94 \x9F \xFF"), "León € “x” Ÿ ÿ");
  EXPECT_EQ(Windows1252AUtf8("\x81"), "\xC2\x81");  // hueco de la tabla
}

TEST(AUtf8, DejaUtf8YConvierteLoDemas) {
  EXPECT_EQ(AUtf8("Peñíscola"), "Peñíscola");
  EXPECT_EQ(AUtf8("Pe\xF1\xED\x73\x63ola"), "Peñíscola");
}

TEST(AnadirUtf8, LosBordesDeCadaLargo) {
  const auto de = [](char32_t codigo) {
    std::string texto = ">";
    AnadirUtf8(texto, codigo);
    return texto;
  };
  EXPECT_EQ(de(0x7F), ">\x7F");
  EXPECT_EQ(de(0x80), ">\xC2\x80");
  EXPECT_EQ(de(0x7FF), ">\xDF\xBF");
  EXPECT_EQ(de(0x800), ">\xE0\xA0\x80");
  EXPECT_EQ(de(0xFFFF), ">\xEF\xBF\xBF");
  EXPECT_EQ(de(0x10000), ">\xF0\x90\x80\x80");
  EXPECT_EQ(de(0x10FFFF), ">\xF4\x8F\xBF\xBF");
  for (const char32_t codigo : {0xD800U, 0xDFFFU, 0x110000U, 0xFFFFFFFFU})
    EXPECT_EQ(de(codigo), ">\xEF\xBF\xBD") << static_cast<unsigned>(codigo);
}

TEST(PrimerCaracter, CodigoYBytes) {
  const auto comprobar = [](std::string_view texto, char32_t codigo, std::size_t bytes) {
    const auto caracter = PrimerCaracter(texto);
    EXPECT_EQ(static_cast<unsigned>(caracter.codigo), static_cast<unsigned>(codigo)) << texto;
    EXPECT_EQ(caracter.bytes, bytes) << texto;
  };
  comprobar("ab", 'a', 1);
  comprobar("ñu", 0xF1, 2);
  comprobar("€", 0x20AC, 3);
  comprobar("\xF0\x9F\x8F\xA0", 0x1F3E0, 4);
  comprobar("\xF1o", 0xF1, 1);
  comprobar("\xE2\x82", 0xE2, 1);
}

TEST(IgualesSinMayusculas, SoloLasLetrasDelAlfabetoIngles) {
  EXPECT_TRUE(IgualesSinMayusculas("Zona_D3", "zONA_d3"));
  EXPECT_TRUE(IgualesSinMayusculas("", ""));
  EXPECT_FALSE(IgualesSinMayusculas("zona", "zona1"));
  EXPECT_FALSE(IgualesSinMayusculas("Á", "á"));
  EXPECT_FALSE(IgualesSinMayusculas("[", "{"));  // separadas 32, como las letras
}

TEST(SinBlancos, QuitaLosDeLosExtremosYNoLosDeDentro) {
  EXPECT_EQ(SinBlancos(" \t\r\na b\n "), "a b");
  EXPECT_EQ(SinBlancosFinales("  a b \r\n"), "  a b");
  EXPECT_EQ(SinBlancos(" \n"), "");
  EXPECT_EQ(SinBlancos("\xC2\xA0x"), "\xC2\xA0x");  // el espacio duro no es un blanco
}

}  // namespace
}  // namespace novex
