#include "outputs/administracion/ComprobacionesAdministracion.h"

#include <gtest/gtest.h>

#include <limits>

#include "model/Catastro.h"
#include "outputs/administracion/CamposObligatorios.h"

namespace novex {
namespace {

class Administracion : public testing::Test {
 protected:
  Administracion() {
    for (auto campo : pruebas::kCamposObligatorios) g.*campo = "x";
    g.Certificador_NIF = "x";
    g.NumeroVisitas = 1;
    pantalla.referencias = {{"1234501VK3713S", "0001AB", "Vivienda"}};
  }
  std::optional<Mensaje> Comprobar() const {
    Edificio edificio;
    edificio.SetDatosGenerales(g);
    edificio.SetDatosPantalla(pantalla);
    return ComprobarAdministracion(edificio);
  }
  DatosGenerales g;
  DatosPantalla pantalla;
};

TEST_F(Administracion, CadaDatoObligatorioHaceFalta) {
  EXPECT_EQ(Comprobar(), std::nullopt);
  const auto todos = g;
  for (auto campo : pruebas::kCamposObligatorios) {
    for (const char* vacio : {"", " \t\r\n"}) {
      g = todos;
      g.*campo = vacio;
      const auto aviso = Comprobar();
      ASSERT_TRUE(aviso);
      EXPECT_EQ(aviso->titulo, "AVISO");
      EXPECT_EQ(aviso->texto,
                "No se genera el fichero. Faltan datos generales obligatorios del edificio y(o del "
                "certificador");
    }
  }
  g = todos;
  g.Certificador_Telefono = "976000000";  // el fijo no sustituye al móvil
  g.Certificador_Movil = "";
  EXPECT_EQ(Comprobar(), kAvisoDatosObligatorios);
  // De los dos números basta uno.
  g = todos;
  g.Certificador_NIF = " ";
  EXPECT_EQ(Comprobar(), kAvisoDatosObligatorios);
  g.Certificador_CIF = "B00000000";
  EXPECT_EQ(Comprobar(), std::nullopt);
}

TEST_F(Administracion, SeDiceLoPrimeroQueFalta) {
  g.Certificador_email = "";
  pantalla.referencias[0].Inmueble = "12345A";
  g.NumeroVisitas = 0;
  EXPECT_EQ(Comprobar(), kAvisoDatosObligatorios);
  g.Certificador_email = "a@example.org";
  auto aviso = Comprobar();
  ASSERT_TRUE(aviso);
  EXPECT_EQ(aviso->texto,
            "No se genera el fichero. Faltan datos catastro o no tienen la estructura correcta");
  pantalla.referencias.clear();
  EXPECT_EQ(Comprobar(), kAvisoCatastro);
  pantalla.referencias = {{"1234501VK3713S", "0001AB", "Vivienda"}};
  pantalla.Registro = "BFA";  // la referencia es de otro registro
  EXPECT_EQ(Comprobar(), kAvisoCatastro);
  pantalla.Registro = "DGC";
  aviso = Comprobar();
  ASSERT_TRUE(aviso);
  EXPECT_EQ(aviso->titulo, "AVISO");
  EXPECT_EQ(aviso->texto, "No se genera el fichero. Faltan definir visitas edificio (mínimo una)");
  g.NumeroVisitas = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(Comprobar(), kAvisoVisitas);
}

}  // namespace
}  // namespace novex
