#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "files/Base64.h"
#include "files/CodificacionXml.h"
#include "files/EntidadesXml.h"
#include "files/ErroresXml.h"

namespace novex {
namespace {

// Los ejemplos de RFC 4648.
const std::vector<std::pair<std::string, std::string>> kEjemplos = {{"", ""},
                                                                    {"f", "Zg=="},
                                                                    {"fo", "Zm8="},
                                                                    {"foo", "Zm9v"},
                                                                    {"foob", "Zm9vYg=="},
                                                                    {"fooba", "Zm9vYmE="},
                                                                    {"foobar", "Zm9vYmFy"}};

TEST(Base64, LosEjemplosDeLaNormaTodosLosBytesYLoQueFalta) {
  for (const auto& [bytes, texto] : kEjemplos) {
    EXPECT_EQ(CodificarBase64(bytes), texto);
    std::string leido;
    EXPECT_EQ(DecodificarBase64(texto, leido), 0);
    EXPECT_EQ(leido, bytes);
  }
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(static_cast<unsigned char>(i));
  std::string leido;
  EXPECT_EQ(DecodificarBase64(CodificarBase64(bytes), leido), 0);
  EXPECT_EQ(leido, bytes);
  EXPECT_EQ(DecodificarBase64("Zm9v\r\n Ym*Fy", leido), 0);
  EXPECT_EQ(leido, "foobar");
  EXPECT_EQ(DecodificarBase64("Zm9vYg", leido), 17);
  EXPECT_EQ(leido, "foob");
  EXPECT_EQ(DecodificarBase64("Zm9vY", leido), 19);
  EXPECT_EQ(leido, "foo");
}

CodificacionXml Deducida(std::string_view bytes, CodificacionXml antes) {
  ModoCodificacion modo{antes};
  modo.Deducir(bytes);
  return modo.valor;
}

constexpr auto kUtf8 = CodificacionXml::Utf8;
constexpr auto kLegado = CodificacionXml::Legado;
constexpr auto kGbk = CodificacionXml::GBK;

TEST(CodificacionXml, LaMarcaLaDeclaracionYLosBytes) {
  EXPECT_EQ(Deducida("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>", kLegado),
            kUtf8);
  EXPECT_EQ(Deducida("<a>veinticinco letras y más</a>", kLegado), kUtf8);
  EXPECT_EQ(Deducida("<a>veinticinco letras y m\xE1s</a>", kUtf8), kLegado);
  EXPECT_EQ(Deducida("<a encoding>veinticinco letras m\xE1s</a>", kUtf8), kLegado);
  // La declaración se compara por su comienzo.
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
  // Lo corto y lo de 16 bits no cambian el modo.
  EXPECT_EQ(Deducida("<a>m\xE1s</a>", kUtf8), kUtf8);
  EXPECT_EQ(Deducida("", kGbk), kGbk);
  EXPECT_EQ(Deducida("\xFF\xFE<a>veinticinco letras y algo</a>", kGbk), kGbk);
  const std::string inicio(199, 'x');
  EXPECT_EQ(Deducida(inicio + "á" + "resto", kLegado), kUtf8);
  EXPECT_EQ(Deducida(inicio + "y" + "\xE1", kLegado), kUtf8);
  EXPECT_EQ(Deducida(std::string(150, 'x') + "\xE1 y m\xE1s" + std::string(100, 'x'), kUtf8),
            kLegado);
}

// Carácter y grafía con que se guarda, escritos a mano.
const std::vector<std::pair<std::string, std::string>> kGrafias = {
    {"&", "&amp;"},     {"<", "&lt;"},      {">", "&gt;"},      {"\"", "&quot;"},
    {"'", "&apos;"},    {"á", "&#225;"},    {"à", "&#x000E0;"}, {"é", "&#233;"},
    {"è", "&#x000E8;"}, {"í", "&#237;"},    {"ì", "&#x000EC;"}, {"ó", "&#243;"},
    {"ò", "&#x000F2;"}, {"ú", "&#250;"},    {"ù", "&#x000F9;"}, {"ñ", "&#241;"},
    {"Ñ", "&#209;"},    {"ü", "&#252;"},    {"ç", "&#x000E7;"}, {"Á", "&#x000C1;"},
    {"À", "&#x000C0;"}, {"È", "&#x000C8;"}, {"É", "&#x000C9;"}, {"Í", "&#x000CD;"},
    {"Ì", "&#x000CC;"}, {"Ó", "&#x000D3;"}, {"Ò", "&#x000D2;"}, {"Ú", "&#x000DA;"},
    {"Ù", "&#x000D9;"}, {"ï", "&#x000EF;"}, {"ª", "&#170;"},    {"º", "&#186;"},
    {"°", "&#176;"},    {"Ç", "&#199;"},    {"!", "&#33;"},     {"#", "&#35;"},
    {"%", "&#37;"}};

std::string Decodificar(std::string_view bytes) {
  std::string texto;
  EXPECT_EQ(DecodificarTextoXml(bytes, texto).codigo, 0) << bytes;
  return texto;
}

TEST(EntidadesXml, CadaFilaSeEscribeYSeLee) {
  ASSERT_EQ(TablaEntidades().size(), kGrafias.size());
  for (const auto& [caracter, grafia] : kGrafias) {
    EXPECT_EQ(ToXMLStringTool::toXML(caracter), grafia);
    EXPECT_EQ(Decodificar(grafia), caracter);
  }
  EXPECT_EQ(ToXMLStringTool::toXML("m² → 3 € /ö"), "m² → 3 € /ö");
  EXPECT_EQ(ToXMLStringTool::toXML(std::string("a\0b", 3)), "ab");
  EXPECT_EQ(ToXMLStringTool::toXML("Cubierta Térmica"), "Cubierta T&#233;rmica");
  EXPECT_EQ(Decodificar("&#0233;&#xe9;&#XE9;&#x0000000E9;"), "éééé");
  EXPECT_EQ(Decodificar("a&#32;b"), "a b");
  // 128 a 159 son los del juego de un byte de Windows: 150 es el guion medio, 128 el euro.
  EXPECT_EQ(Decodificar("&#150;&#128;"), "–€");
  EXPECT_EQ(Decodificar("Espa\xF1"
                        "a &amp; \x80"),
            "España & €");
  EXPECT_EQ(Decodificar("España &#225;"), "España á");
}

TEST(EntidadesXml, LasReferenciasMalasDanSuCodigoYSuSitio) {
  const auto falla = [](std::string_view bytes, int codigo, std::size_t posicion) {
    std::string texto;
    const ResultadoEntidades r = DecodificarTextoXml(bytes, texto);
    EXPECT_EQ(r.codigo, codigo) << bytes;
    EXPECT_EQ(r.posicion, posicion) << bytes;
  };
  using namespace codigoXml;
  falla("ab&#256;", kMayorDe255, 2);
  falla("&#99999999999999999999999;", kMayorDe255, 0);
  falla("&#x100;", kMayorDe255, 0);
  for (const char* mala : {"&", "&;", "&eacute;", "&amp", "&AMP;", "&#;", "&#x;", "&#12a;", "&#xG;",
                           "&#-1;", "&#0;", "&#65"})
    falla(mala, kEntidadDesconocida, 0);
}

}  // namespace
}  // namespace novex
