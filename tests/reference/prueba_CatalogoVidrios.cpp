#include "reference/CatalogoVidrios.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

CatalogoVidrios Instalado() {
  return LeerCatalogoVidrios(XMLNode::loadFile(
      std::filesystem::path(NOVEX_RAIZ_DATOS) / "database" / "VidriosMarcos.xml", "VidriosMarcos"));
}

// Todo tipo de las listas tiene de dónde elegir, y lo elegido es posible.
TEST(CatalogoVidrios, ElInstaladoTieneTodosLosTipos) {
  const CatalogoVidrios catalogo = Instalado();
  for (const auto& tipo : catalogo.vidrios) {
    ASSERT_FALSE(tipo.empty());
    for (const VidrioCatalogo& v : tipo) {
      SCOPED_TRACE(v.nombre);
      EXPECT_FALSE(v.nombre.empty());
      EXPECT_GT(v.U, 0.3F);
      EXPECT_GE(v.UH, v.U);  // el calor sube mejor por una cámara horizontal
      EXPECT_GT(v.g, 0.0F);
      EXPECT_LE(v.g, 0.9F);
    }
  }
  for (const auto& tipo : catalogo.marcos) {
    ASSERT_FALSE(tipo.empty());
    for (const MarcoCatalogo& m : tipo) EXPECT_GE(m.UH, m.U) << m.nombre;
  }
  ASSERT_EQ(catalogo.permeabilidades.size(), 5U);
  for (std::size_t i = 1; i < catalogo.permeabilidades.size(); ++i)
    EXPECT_LT(catalogo.permeabilidades[i].C100, catalogo.permeabilidades[i - 1].C100);
}

TEST(CatalogoVidrios, BuscaPorTipoYPosicionYPorPermeabilidad) {
  const XMLNode raiz = XMLNode::parseString(
      "<VidriosMarcos><Vidrios indice=\"1\"><Vidrio name=\"4-6-4\" U=\"3.28\" UH=\"3.63\" "
      "g=\"0.76\"/></Vidrios><Vidrios indice=\"6\"><Vidrio name=\"x\" U=\"1\"/></Vidrios>"
      "<Vidrios><Vidrio name=\"y\"/></Vidrios>"
      "<Marcos indice=\"7\"><Marco name=\"a\" U=\"1.3\" UH=\"1.4\"/><Marco name=\"b\" U=\"2.4\" "
      "UH=\"2.6\"/></Marcos><Permeabilidades><Permeabilidad clase=\"2\" name=\"Clase 2\" "
      "C100=\"27\"/></Permeabilidades></VidriosMarcos>",
      "VidriosMarcos", "prueba");
  const CatalogoVidrios catalogo = LeerCatalogoVidrios(raiz);
  ASSERT_NE(catalogo.Vidrio(1, 0), nullptr);
  EXPECT_EQ(catalogo.Vidrio(1, 0)->nombre, "4-6-4");
  EXPECT_EQ(catalogo.Vidrio(1, 0)->UH, 3.63F);
  for (const auto& [tipo, posicion] : {std::pair{1, 1}, {1, -1}, {0, 0}, {-1, 0}, {6, 0}})
    EXPECT_EQ(catalogo.Vidrio(tipo, posicion), nullptr) << tipo << posicion;
  ASSERT_NE(catalogo.Marco(7, 1), nullptr);
  EXPECT_EQ(catalogo.Marco(7, 1)->U, 2.4F);
  EXPECT_EQ(catalogo.ClaseDe(27)->clase, 2);
  EXPECT_FALSE(catalogo.ClaseDe(26.9F).has_value());
  EXPECT_TRUE(LeerCatalogoVidrios(XMLNode{}).permeabilidades.empty());
}

}  // namespace
}  // namespace novex
