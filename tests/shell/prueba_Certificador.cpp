#include "shell/Certificador.h"

#include <gtest/gtest.h>

#include "base/FicheroSeguro.h"
#include "files/CarpetaTemporal.h"

namespace novex {
namespace {

DatosGenerales Completo() {
  DatosGenerales g;
  g.Certificador_Nombre = "María Núñez & Cía <\"1\">";
  g.Certificador_Empresa = "Energía, S.L.";
  g.Certificador_Direccion = "C/ Mayor, 1";
  g.Certificador_CIF = "B00000000";
  g.Certificador_NIF = "00000000T";
  g.Certificador_CP = "46001";
  g.Certificador_email = "a@b.es";
  g.Certificador_Profesion = "Ingeniera";
  g.Certificador_Provincia = "Valencia/València";
  g.Certificador_Localidad = "Valencia";
  g.Certificador_Movil = "600000000";
  return g;
}

class Certificador : public testing::Test {
 protected:
  pruebas::CarpetaTemporal carpeta;
  std::filesystem::path fichero = carpeta / "Certificador.xml";
  RegistroMensajes m;
};

TEST_F(Certificador, IdaYVuelta) {
  ASSERT_TRUE(GuardarCertificador(fichero, Completo(), m));
  DatosGenerales leido;
  leido.Edificio_Titulo = "Casa";
  leido.Certificador_Telefono = "el de otro";
  ASSERT_TRUE(LeerCertificador(fichero, leido, m));
  DatosGenerales esperado = Completo();
  esperado.Edificio_Titulo = "Casa";
  EXPECT_EQ(leido, esperado);
  // Lo que no tiene casilla se lee y se conserva al guardar.
  leido.Certificador_Telefono = "960000000";
  leido.Certificador_Colegio_Profesional = "COIICV";
  ASSERT_TRUE(GuardarCertificador(fichero, leido, m));
  DatosGenerales otra;
  LeerCertificador(fichero, otra, m);
  EXPECT_EQ(otra.Certificador_Colegio_Profesional, "COIICV");
  EXPECT_TRUE(m.recibidos.empty());
}

TEST_F(Certificador, EtiquetasDelFichero) {
  EscribirFichero(fichero,
                  "<?xml version=\"1.0\"?>\n<CERTIFICADOR>\n<Razon_social name=\"R\"/><titulacion "
                  "name=\"T\"/><municipio name=\"M\"/><Telefono name=\"9\"/></CERTIFICADOR>\n");
  DatosGenerales g = Completo();
  ASSERT_TRUE(LeerCertificador(fichero, g, m));
  EXPECT_EQ(g.Certificador_Empresa, "R");
  EXPECT_EQ(g.Certificador_Profesion, "T");
  EXPECT_EQ(g.Certificador_Localidad, "M");
  EXPECT_EQ(g.Certificador_Telefono, "9");
  EXPECT_EQ(g.Certificador_Nombre, "");
}

TEST_F(Certificador, FaltaODanado) {
  DatosGenerales g;
  EXPECT_FALSE(LeerCertificador(fichero, g, m));
  EXPECT_TRUE(m.recibidos.empty());
  for (const char* malo :
       {"", "<CERTIFICADOR><Nombre name=", "<OTRA><Nombre name=\"A\"/></OTRA>"}) {
    EscribirFichero(fichero, malo);
    m.recibidos.clear();
    EXPECT_FALSE(LeerCertificador(fichero, g, m)) << malo;
    EXPECT_EQ(m.recibidos.size(), 1U) << malo;
  }
  EXPECT_EQ(g, DatosGenerales{});
}

TEST_F(Certificador, NoSeGuardaConUnCampoEnBlanco) {
  ASSERT_TRUE(GuardarCertificador(fichero, Completo(), m));
  const std::string antes = LeerFichero(fichero);
  DatosGenerales g = Completo();
  g.Certificador_Movil = "  ";
  EXPECT_FALSE(GuardarCertificador(fichero, g, m));
  EXPECT_EQ(LeerFichero(fichero), antes);
  EXPECT_EQ(
      m.recibidos,
      (std::vector<Mensaje>{{"Atención.", "No se almacena por existir algún campo en blanco"}}));
  EXPECT_FALSE(GuardarCertificador(carpeta / "no_existe/C.xml", Completo(), m));
  EXPECT_EQ(m.recibidos.size(), 2U);
}

}  // namespace
}  // namespace novex
