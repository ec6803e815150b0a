#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "files/EntidadesXml.h"
#include "files/ErroresXml.h"

namespace novex {
namespace {

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
}

TEST(EntidadesXml, LosCaracteresFueraDeLaTablaQuedanComoEstan) {
  EXPECT_EQ(ToXMLStringTool::toXML("m² → 3 € /ö"), "m² → 3 € /ö");
  EXPECT_EQ(ToXMLStringTool::toXML(std::string("a\0b", 3)), "ab");
  EXPECT_EQ(ToXMLStringTool::toXML("Cubierta Térmica"), "Cubierta T&#233;rmica");
}

TEST(EntidadesXml, LaReglaNumericaAdmiteLasDosBases) {
  EXPECT_EQ(Decodificar("&#0233;&#xe9;&#XE9;&#x0000000E9;"), "éééé");
  EXPECT_EQ(Decodificar("a&#32;b"), "a b");
  // 128 a 159 son los del juego de un byte de Windows: 150 es el guion medio, 128 el euro.
  EXPECT_EQ(Decodificar("&#150;&#128;"), "–€");
}

TEST(EntidadesXml, LosBytesSueltosSeTomanPorLatin1YLosDeUtf8Quedan) {
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
