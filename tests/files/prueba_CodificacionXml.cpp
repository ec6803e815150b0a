#include <gtest/gtest.h>

#include "files/CodificacionXml.h"

namespace novex {
namespace {

CodificacionXml Deducida(std::string_view bytes, CodificacionXml antes) {
  ModoCodificacion modo{antes};
  modo.Deducir(bytes);
  return modo.valor;
}

constexpr auto kUtf8 = CodificacionXml::Utf8;
constexpr auto kLegado = CodificacionXml::Legado;
constexpr auto kGbk = CodificacionXml::GBK;

TEST(CodificacionXml, LaMarcaMandaSobreLaDeclaracion) {
  EXPECT_EQ(Deducida("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>", kLegado),
            kUtf8);
}

TEST(CodificacionXml, SinDeclaracionDecidenLosBytes) {
  EXPECT_EQ(Deducida("<a>veinticinco letras y más</a>", kLegado), kUtf8);
  EXPECT_EQ(Deducida("<a>veinticinco letras y m\xE1s</a>", kUtf8), kLegado);
  EXPECT_EQ(Deducida("<a encoding>veinticinco letras m\xE1s</a>", kUtf8), kLegado);
}

TEST(CodificacionXml, LaDeclaracionSeComparaPorSuComienzo) {
  const auto con = [](std::string_view nombre, std::string_view resto, CodificacionXml antes) {
    return Deducida(
        "<?xml version=\"1.0\" encoding=\"" + std::string(nombre) + "\"?>" + std::string(resto),
        antes);
  };
  EXPECT_EQ(con("UTF-8", "<a/>", kLegado), kUtf8);
  EXPECT_EQ(con("utf8", "<a/>", kLegado), kUtf8);
  // Dice UTF-8 y no lo es: el modo no cambia.
  EXPECT_EQ(con("UTF-8", "<a>\xE1</a>", kGbk), kGbk);
  EXPECT_EQ(con("Shift-JIS", "<a/>", kUtf8), CodificacionXml::ShiftJIS);
  EXPECT_EQ(con("sjis", "<a/>", kUtf8), CodificacionXml::ShiftJIS);
  EXPECT_EQ(con("gb2312", "<a/>", kUtf8), CodificacionXml::GB2312);
  EXPECT_EQ(con("big5", "<a/>", kUtf8), CodificacionXml::Big5);
  EXPECT_EQ(con("gbk", "<a/>", kUtf8), kGbk);
  EXPECT_EQ(con("ISO-8859-1", "<a/>", kUtf8), kLegado);
}

TEST(CodificacionXml, LoCortoYLoDe16BitsNoCambianElModo) {
  EXPECT_EQ(Deducida("<a>m\xE1s</a>", kUtf8), kUtf8);
  EXPECT_EQ(Deducida("", kGbk), kGbk);
  EXPECT_EQ(Deducida("\xFF\xFE<a>veinticinco letras y algo</a>", kGbk), kGbk);
}

TEST(CodificacionXml, SoloSeMiran200BytesYUnaLetraCortadaVale) {
  const std::string inicio(199, 'x');
  EXPECT_EQ(Deducida(inicio + "á" + "resto", kLegado), kUtf8);
  EXPECT_EQ(Deducida(inicio + "y" + "\xE1", kLegado), kUtf8);
  EXPECT_EQ(Deducida(std::string(150, 'x') + "\xE1 y m\xE1s" + std::string(100, 'x'), kUtf8),
            kLegado);
}

}  // namespace
}  // namespace novex
