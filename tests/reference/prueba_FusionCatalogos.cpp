#include "reference/FusionCatalogos.h"

#include <gtest/gtest.h>

#include "base/FicheroSeguro.h"
#include "files/CarpetaTemporal.h"
#include "reference/CatalogoMateriales.h"

namespace novex {
namespace {

std::string Catalogo(const std::string& materiales) {
  return "<MaterialesNovex><verticales><cte><grupo name=\"G\">" + materiales +
         "</grupo></cte></verticales></MaterialesNovex>";
}
std::string Uno(const char* nombre, const char* k, const char* espesor = "0.1") {
  return std::string("<m especificacion=\"") + nombre + "\" espesor=\"" + espesor + "\" k=\"" + k +
         "\"/>";
}

// Cada letra es una suerte: a igual, b corregida, c cambiada por el usuario, d borrada por él,
// e suya, f retirada de la versión nueva, g nueva.
TEST(FusionCatalogos, LaVersionNuevaNoPisaLoDelUsuario) {
  const pruebas::CarpetaTemporal carpeta;
  const auto version = carpeta / "version";
  const auto datos = carpeta / "datos";
  std::filesystem::create_directories(version);
  std::filesystem::create_directories(datos);
  EscribirFichero(version / "Composiciones.xml", "<ComposicionesNovex/>");
  const auto publicar = [&](const std::string& materiales) {
    EscribirFichero(version / "Materiales.xml", Catalogo(materiales));
    return ActualizarCatalogos(version, datos).front();
  };
  const CuentaFusion primera =
      publicar(Uno("a", "1") + Uno("b", "1") + Uno("c", "1") + Uno("d", "1") + Uno("f", "1"));
  EXPECT_EQ(primera.nuevas, 5);
  EscribirFichero(datos / "Materiales.xml",
                  Catalogo(Uno("a", "1") + Uno("b", "1") + Uno("c", "7") + Uno("e", "9") +
                           Uno("f", "1") + Uno("a", "1", "0.2")));
  const CuentaFusion segunda =
      publicar(Uno("a", "1") + Uno("b", "2") + Uno("g", "3") + Uno("c", "2") + Uno("d", "2"));
  EXPECT_EQ(segunda.nuevas, 1);
  EXPECT_EQ(segunda.corregidas, 1);
  EXPECT_EQ(segunda.retiradas, 1);
  EXPECT_EQ(segunda.conservadas, 2);
  std::string queda;
  for (const auto& m : CatalogoMateriales(datos / "Materiales.xml").Materiales({}, "G"))
    queda += m.capa.especificacion + Fijo(m.capa.k, 0) + " ";
  EXPECT_EQ(queda, "a1 b2 g3 c7 e9 a1 ");
  // Publicarla otra vez no cambia nada.
  const std::string antes = LeerFichero(datos / "Materiales.xml");
  publicar(Uno("a", "1") + Uno("b", "2") + Uno("g", "3") + Uno("c", "2") + Uno("d", "2"));
  EXPECT_EQ(LeerFichero(datos / "Materiales.xml"), antes);
}

}  // namespace
}  // namespace novex
