#include <gtest/gtest.h>

#include "CarpetaTemporal.h"
#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "files/xmlParser.h"

namespace novex {
namespace {

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
}

TEST(ErroresXml, ElMensajeLlevaElCaminoElTextoYElLugar) {
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
  for (const auto& ruta : {carpeta / "no.xml", carpeta / ""}) {
    try {
      XMLNode::loadFile(ruta, "a");
      FAIL();
    } catch (const ErrorFichero& e) {
      EXPECT_EQ(e.codigo, 10);
      EXPECT_EQ(e.ruta, ruta.string());
    }
  }
}

TEST(ErroresXml, ElAnidamientoTieneLimite) {
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
}

TEST(ErroresXml, ElNumeroDeElementosTieneLimite) {
  std::string texto = "<a>";
  texto.reserve(9'000'000);
  for (std::size_t i = 0; i < XMLNode::kMaximoMarcas; ++i) texto += "<b/>";
  EXPECT_EQ(FalloDe(texto + "</a>").codigo, 8);
}

TEST(ErroresXml, TodoTrozoDeUnDocumentoFallaSinRomperNada) {
  const std::string entero =
      "<?xml version=\"1.0\"?>\n<a n=\"1\">\n<!-- c --><b "
      "m='&amp;x'>t&#233;</b><![CDATA[z]]><c/></a>";
  for (std::size_t n = 0; n < entero.size(); ++n)
    EXPECT_NE(FalloDe(entero.substr(0, n)).codigo, 0) << entero.substr(0, n);
  EXPECT_EQ(FalloDe(entero).codigo, 0);
}

}  // namespace
}  // namespace novex
