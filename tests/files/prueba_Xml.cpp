#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "CarpetaTemporal.h"
#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "files/Base64.h"
#include "files/CodificacionXml.h"
#include "files/EntidadesXml.h"
#include "files/ErroresXml.h"
#include "files/xmlParser.h"

namespace novex {
namespace {

XMLNode Leer(std::string texto, std::string_view raiz = "a") {
  return XMLNode::parseString(std::move(texto), raiz, "prueba.xml");
}

TEST(XMLNode, ElAsaVaciaSeLeeSinFallar) {
  const XMLNode vacia;
  EXPECT_TRUE(vacia.childNamed("x").childNamed("y").childAt(3).isEmpty());
  EXPECT_EQ(vacia.childCount() + vacia.attributeCount() + vacia.textCount() + vacia.clearCount(),
            0U);
  EXPECT_FALSE(vacia.nameOf());
  EXPECT_FALSE(vacia.attributeValue("name"));
  EXPECT_FALSE(vacia.textAt(0));
  EXPECT_FALSE(vacia.clearAt(0));
  XMLNode otra;
  EXPECT_TRUE(otra.appendChild("x").isEmpty());
  otra.setAttribute("a", "b");
  otra.updateClear("c");
  EXPECT_EQ(otra.toString(), "");
}

TEST(XMLNode, LoQueSeLeeDeUnElemento) {
  const std::string texto =
      "<a><1979-2013 x=\"<2\">t</1979-2013><9/><b><![CDATA[</3><4>]]></b><!-- <5 --></a>";
  const XMLNode a = Leer(texto);
  EXPECT_EQ(a.childNamed("1979-2013").attributeValue("x"), "<2");
  EXPECT_EQ(a.childNamed("1979-2013").textAt(0), "t");
  EXPECT_EQ(a.childAt(1).nameOf(), "9");
  EXPECT_EQ(a.childNamed("b").clearAt(0), "</3><4>");
  EXPECT_THROW(Leer("<a><1b></2b></a>"), ErrorFichero);
  // Un atributo vacío no es un atributo ausente.
  const XMLNode atributos = Leer("<a name=\"\" otro='1' name=\"2\"/>");
  ASSERT_TRUE(atributos.attributeValue("name"));
  EXPECT_EQ(*atributos.attributeValue("name"), "");
  EXPECT_FALSE(atributos.hasAttribute("nombre"));
  EXPECT_EQ(atributos.attributeCount(), 3U);
  EXPECT_EQ(atributos.attributeAt(1)->name, "otro");
  EXPECT_EQ(atributos.attributeAt(1)->value, "1");
  EXPECT_FALSE(atributos.attributeAt(3));
  std::size_t i = 0;
  EXPECT_EQ(*atributos.attributeValue("NAME", &i), "");
  EXPECT_EQ(*atributos.attributeValue("NAME", &i), "2");
  EXPECT_FALSE(atributos.attributeValue("NAME", &i));
  const XMLNode nombres = Leer("<a><b>x</b><c/><B>y</B></a>");
  i = 0;
  EXPECT_EQ(*nombres.childNamed("b", &i).textAt(0), "x");
  EXPECT_EQ(*nombres.childNamed("b", &i).textAt(0), "y");
  EXPECT_EQ(i, 3U);
  EXPECT_TRUE(nombres.childNamed("b", &i).isEmpty());
  EXPECT_EQ(i, 3U);
  EXPECT_EQ(*nombres.childNamed("C").nameOf(), "c");
  EXPECT_EQ(*nombres.childAt(2).nameOf(), "B");
  EXPECT_TRUE(nombres.childAt(3).isEmpty());
  // Los textos pierden los blancos y unen sus trozos.
  const XMLNode textos = Leer(
      "<a>\n\t <b> dos palabras \r\n</b> \t <c>uno <!-- x --> <!-- y --> dos</c>"
      "<d> <!-- nada --> </d><e>1<f/> 2 </e><g>&#32;z&#32;</g></a>");
  EXPECT_EQ(textos.textCount(), 0U);
  EXPECT_EQ(*textos.childNamed("b").textAt(0), "dos palabras");
  EXPECT_EQ(textos.childNamed("c").textCount(), 1U);
  EXPECT_EQ(*textos.childNamed("c").textAt(0), "uno   dos");
  EXPECT_EQ(textos.childNamed("d").textCount(), 0U);
  EXPECT_EQ(textos.childNamed("e").textCount(), 2U);
  EXPECT_EQ(*textos.childNamed("e").textAt(1), "2");
  EXPECT_EQ(*textos.childNamed("g").textAt(0), " z ");
  // Un bloque acaba en el primer cierre.
  const XMLNode bloque = Leer("<a><![CDATA[<![CDATA[x&amp;<y>]]>]]></a>");
  ASSERT_EQ(bloque.clearCount(), 1U);
  EXPECT_EQ(*bloque.clearAt(0), "<![CDATA[x&amp;<y>");
  EXPECT_EQ(*bloque.textAt(0), "]]>");
  for (const char* escrito : {"<a name=\"T&#233;rmica\">&#xF1;</a>", "<a name=\"Térmica\">ñ</a>",
                              "<a name=\"T\xE9rmica\">\xF1</a>"}) {
    const XMLNode acentos = Leer(escrito);
    EXPECT_EQ(*acentos.attributeValue("name"), "Térmica") << escrito;
    EXPECT_EQ(*acentos.textAt(0), "ñ") << escrito;
  }
  // La raíz se busca en el documento y en sus hijos.
  EXPECT_EQ(*Leer("<?xml version=\"1.0\"?><A/>").nameOf(), "A");
  EXPECT_EQ(*Leer("<x><b/><a n=\"1\"/></x>").attributeValue("n"), "1");
  EXPECT_EQ(*Leer("<x/>", "").nameOf(), "x");
}

TEST(XMLNode, ElTextoEscritoSigueElOrdenYLosNiveles) {
  XMLNode cima = XMLNode::createTop("xml version=\"1.0\" encoding=\"UTF-8\"");
  XMLNode a = cima.appendChild("a");
  a.appendChild("b").setAttribute("name", "1 < 2 & \"á\" 5%");
  a.appendChild("c").appendText("tres");
  XMLNode d = a.appendChild("d");
  d.appendText("uno");
  d.appendChild("e");
  d.appendText("dos");
  a.appendChild("f").appendClear("<x>");
  EXPECT_EQ(cima.toString(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<a>\n"
            "\t<b name=\"1 &lt; 2 &amp; &quot;&#225;&quot; 5&#37;\"/>\n"
            "\t<c>tres</c>\n"
            "\t<d>\n\t\tuno\n\t\t<e/>\n\t\tdos\n\t</d>\n"
            "\t<f><![CDATA[<x>]]></f>\n"
            "</a>\n");
  EXPECT_EQ(d.toString(false), "<d>uno<e/>dos</d>");
  EXPECT_EQ(*Leer(cima.toString()).childAt(0).attributeValue("name"), "1 < 2 & \"á\" 5%");
  // Cambiar el bloque solo toca el primero.
  XMLNode bloques = XMLNode::createTop("x").appendChild("a");
  bloques.updateClear("uno");
  bloques.appendClear("dos");
  bloques.updateClear("tres");
  EXPECT_EQ(bloques.toString(false), "<a><![CDATA[tres]]><![CDATA[dos]]></a>");
  // Un hijo vive aunque su padre no tenga asa.
  XMLNode b;
  {
    const XMLNode padre =
        Leer("<a><b name=\"un texto más largo que una cadena corta &amp; más\"/></a>");
    b = padre.childAt(0);
  }
  EXPECT_EQ(*b.attributeValue("name"), "un texto más largo que una cadena corta & más");
}

TEST(XMLNode, LaCabeceraDependeDelModoYDeLaDeclaracion) {
  const pruebas::CarpetaTemporal carpeta;
  const auto ruta = carpeta / "x.xml";
  XMLNode cima = XMLNode::createTop("xml version=\"1.0\" encoding=\"UTF-8\"");
  const XMLNode a = cima.appendChild("a");
  const ModoCodificacion legado{CodificacionXml::Legado};
  const std::string bom = "\xEF\xBB\xBF";

  EXPECT_EQ(cima.saveToFile(ruta), 0);
  EXPECT_EQ(LeerFichero(ruta), bom + "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a/>\n");
  EXPECT_EQ(a.saveToFile(ruta), 0);
  EXPECT_EQ(LeerFichero(ruta), bom + "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<a/>\n");
  EXPECT_EQ(a.saveToFile(ruta, {}, false, legado), 0);
  EXPECT_EQ(LeerFichero(ruta), "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<a/>");
  EXPECT_EQ(a.saveToFile(ruta, "latin9", true, legado), 0);
  EXPECT_EQ(LeerFichero(ruta), "<?xml version=\"1.0\" encoding=\"latin9\"?>\n<a/>\n");

  EXPECT_EQ(a.saveToFile(carpeta / "no/existe/x.xml"), 15);
  std::filesystem::create_directory(carpeta / "carpeta.xml");
  EXPECT_EQ(a.saveToFile(carpeta / "carpeta.xml"), 15);
  ModoCodificacion modo;
  EscribirFichero(carpeta / "l.xml", "<a>sin declaraci\xF3n y en Latin-1</a>");
  XMLNode::loadFile(carpeta / "l.xml", "a", modo);
  EXPECT_EQ(modo.valor, CodificacionXml::Legado);
  EscribirFichero(carpeta / "b.xml", "\xEF\xBB\xBF<a>con marca de orden de bytes</a>");
  EXPECT_EQ(*XMLNode::loadFile(carpeta / "b.xml", "a", modo).textAt(0),
            "con marca de orden de bytes");
  EXPECT_EQ(modo.valor, CodificacionXml::Utf8);
}

struct Fallo {
  int codigo = 0;
  int linea = 0;
  int columna = 0;
  std::string mensaje;
};

Fallo FalloDe(std::string texto, std::string_view raiz = "a") {
  try {
    XMLNode::parseString(std::move(texto), raiz, "/tmp/p.xml");
  } catch (const ErrorFichero& e) {
    EXPECT_EQ(e.ruta, "/tmp/p.xml");
    return {e.codigo, e.linea, e.columna, e.what()};
  }
  return {};
}

void Espera(const std::string& texto, int codigo, int linea, int columna) {
  const Fallo f = FalloDe(texto);
  EXPECT_EQ(f.codigo, codigo) << texto;
  EXPECT_EQ(f.linea, linea) << texto;
  EXPECT_EQ(f.columna, columna) << texto;
}

TEST(ErroresXml, CadaFalloDaSuCodigoConLineaYColumna) {
  Espera("<a>\n <b>\n", 1, 3, 1);
  Espera("\nsolo texto", 2, 1, 1);
  Espera(" \n\t", 3, 1, 1);
  Espera("<a>\n  < b/></a>", 4, 2, 4);
  Espera("<a>\n  </></a>", 5, 2, 5);
  Espera("<a>\n  <b></c></a>", 6, 2, 8);
  Espera("<a>\n<![CDATA[ sin cierre </a>", 7, 2, 26);
  Espera("<a>\n<!-- sin cierre </a>", 7, 2, 21);
  Espera("<a>\n<b x=1/></a>", 8, 2, 6);
  Espera("<!-- nada -->\n", 9, 1, 1);
  Espera("<a>\n<b n=\"x&otra;\"/></a>", 12, 2, 8);
  Espera("<a>\n\n  z &#256;</a>", 13, 3, 5);
  Espera(std::string("<a>\n\0</a>", 9), 14, 2, 1);
  Espera("\xFF\xFE<a/>", 14, 1, 1);
  EXPECT_EQ(FalloDe("<a>\n  <b></c></a>").mensaje,
            "XML Parsing error inside file '/tmp/p.xml'.\nError: Unmatched end tag\n"
            "At line 2, column 8.\n");
  EXPECT_EQ(FalloDe("<x><b/></x>").mensaje,
            "XML Parsing error inside file '/tmp/p.xml'.\nError: First Tag not found\n"
            "At line 1, column 2.\nFirst Tag should be 'a'.\n");
  EXPECT_EQ(FalloDe("<x><b/></x>").codigo, 11);
  EXPECT_EQ(TextoErrorXml(20), "Error: Base64 decode output buffer is too small");
  EXPECT_EQ(TextoErrorXml(21), "Unknown");
  EXPECT_EQ(TextoErrorXml(-1), "Unknown");
}

TEST(ErroresXml, UnFicheroQueFaltaEsElCodigo10YUnaCarpetaTambien) {
  const pruebas::CarpetaTemporal carpeta;
  for (const auto& ruta : {carpeta / "no.xml", carpeta / ""})
    EXPECT_THAT([&] { XMLNode::loadFile(ruta, "a"); },
                testing::Throws<ErrorFichero>(
                    testing::AllOf(testing::Field(&ErrorFichero::codigo, 10),
                                   testing::Field(&ErrorFichero::ruta, ruta.string()))));
}

TEST(ErroresXml, ElAnidamientoYElNumeroDeElementosTienenLimite) {
  const auto anidado = [](int niveles) {
    std::string texto;
    for (int i = 0; i < niveles; ++i) texto += "<a>";
    for (int i = 0; i < niveles; ++i) texto += "</a>";
    return texto;
  };
  EXPECT_EQ(FalloDe(anidado(256)).codigo, 0);
  const Fallo f = FalloDe(anidado(257));
  EXPECT_EQ(f.codigo, 8);
  EXPECT_EQ(f.columna, 256 * 3 + 2);
  EXPECT_NE(f.mensaje.find("anida demasiados"), std::string::npos);
  EXPECT_EQ(FalloDe(anidado(300'000)).codigo, 8);
  std::string texto = "<a>";
  texto.reserve(9'000'000);
  for (std::size_t i = 0; i < XMLNode::kMaximoMarcas; ++i) texto += "<b/>";
  EXPECT_EQ(FalloDe(texto + "</a>").codigo, 8);
  // Todo trozo de un documento falla sin romper nada.
  const std::string entero =
      "<?xml version=\"1.0\"?>\n<a n=\"1\">\n<!-- c --><b "
      "m='&amp;x'>t&#233;</b><![CDATA[z]]><c/></a>";
  for (std::size_t n = 0; n < entero.size(); ++n)
    EXPECT_NE(FalloDe(entero.substr(0, n)).codigo, 0) << entero.substr(0, n);
  EXPECT_EQ(FalloDe(entero).codigo, 0);
}

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
