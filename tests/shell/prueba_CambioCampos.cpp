#include "shell/CambioCampos.h"

#include <gtest/gtest.h>

#include "model/CatalogoCampos.h"
#include "model/ClavesCampos.h"

namespace novex {
namespace {

class CambioCampos : public testing::Test {
 protected:
  CambioCampos() {
    Huecos otro;
    otro.Nombre_hueco = "Galería";
    edificio.AnadirHuecos(otro);
  }
  CampoCambiado Cambiar(const char* campo, const char* valor) {
    return CambiarCampo(edificio, campo, valor, mensajes);
  }
  std::string Error(const char* campo, const char* valor) {
    try {
      Cambiar(campo, valor);
    } catch (const ErrorCampo& error) {
      return error.what();
    }
    return {};
  }
  Edificio edificio;
  RegistroMensajes mensajes;
};

TEST_F(CambioCampos, CadaDireccionLlegaASuCampo) {
  edificio.AnadirMaterial({}, ranura::MuroExt1);
  const CampoCambiado c = Cambiar("Suelo_habitable_m2", "120,5");
  EXPECT_EQ(c.campo, "Datos_Globales[1]/Suelo_habitable_m2");
  EXPECT_EQ(c.antes + " " + c.ahora, "100.0 120.5");
  Cambiar("MuroExt[2]/muro_ext_sur_m2", "12");
  Cambiar("MuroExt[2]/U_Muro_ext_W_m2K", "0.4");
  Cambiar("Hueco[Galería]/Ancho_m", "1.5");
  Cambiar("Hueco[2]/Numero_ventanas_sur", "3");
  Cambiar("Valores_Maximos/Iluminacion", "4");
  Cambiar("Recuperador", "SensibleConBypass");
  Cambiar("Def_Puentes_termicos", "Aislado");
  Cambiar("Tipologia/N_dormitorios_dobles", "4");
  EXPECT_FLOAT_EQ(edificio.GetRecinto(0).Suelo_habitable_m2, 120.5F);
  EXPECT_EQ(edificio.GetRecinto(0).Muro_ext_m2[1][sur], 12);
  EXPECT_EQ(edificio.GetComposicion(ranura::MuroExt2).U, 0.4F);
  EXPECT_EQ(edificio.GetHuecos(0).Ancho_m, 2);
  EXPECT_EQ(edificio.GetHuecos(1).Ancho_m, 1.5F);
  EXPECT_EQ(edificio.GetHuecos(1).columnas[sur].recintos.size(), 3U);
  EXPECT_EQ(edificio.GetDatosGenerales().Iluminacion, 4);
  EXPECT_EQ(edificio.GetDatosGenerales().Recuperador, "SensibleConBypass");
  EXPECT_EQ(edificio.GetConstruccion().Def_Puentes_termicos, 1);
  EXPECT_EQ(edificio.GetVentilacion().tipologias[0].N_dormitorios_dobles, 4);
  EXPECT_EQ(edificio.GetComposicion(ranura::MuroExt1).capas.size(), 1U);
  EXPECT_TRUE(mensajes.recibidos.empty());
}

TEST_F(CambioCampos, LoQueNoValeSeSustituyeOSeRechaza) {
  EXPECT_EQ(Cambiar("nrenovventilacion", "50").ahora, "0.50");
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].titulo, "Se espera un menor o igual al máximo");
  EXPECT_NE(Error("Suelo_habitble_m2", "1").find("Suelo_habitable_m2"), std::string::npos);
  EXPECT_NE(Error("Recuperador", "Otro").find("EntalpicoConBypass"), std::string::npos);
  EXPECT_NE(Error("Def_Puentes_termicos", "Otro").find("no se puede cambiar"), std::string::npos);
  EXPECT_NE(Error("UCTE_Muro_ext_W_m2K", "1").find("no se puede cambiar"), std::string::npos);
  EXPECT_FALSE(Error("Hueco[3]/Ancho_m", "1").empty());
  EXPECT_FALSE(Error("Hueco[2/Ancho_m", "1").empty());
  EXPECT_FALSE(Error("", "1").empty());
  EXPECT_EQ(edificio.GetConstruccion().Def_Puentes_termicos, 5);
}

// Toda clave que se da a un campo ha de estar en el catálogo.
TEST(ClavesCampos, TodasEstanEnElCatalogo) {
  for (const char* etiqueta :
       {"asnm", "Muro_ext_norte_m2", "U_Suelo_terreno_W_m2K", "U_cristal_W_m2K", "CaudalGEN1",
        "PSBZ", "RendRET", "DTINT", "Ventana_sur_altura_obstaculo_sur", "Sur_Altura",
        "Perimetro_Ext_Suelo_Terreno_m", "QcalorCaldera2", "Teminrec", "Long_pilares_Sur",
        "Volumen_Dep_ST", "Super_FV3", "Sup_ACS", "AintermbD2", "NVBloqueF"}) {
    const std::string_view clave = ClaveDeCampo(etiqueta);
    EXPECT_NE(BuscarCampo(clave), nullptr) << etiqueta << ' ' << clave;
  }
  EXPECT_EQ(ClaveDeCampo("U_L_Puentes_pilares"), "Puente");
  EXPECT_EQ(ClaveDeCampo("Edificio_Titulo"), "");
  EXPECT_TRUE(TextosDeCampo("Edificio_Titulo").empty());
}

}  // namespace
}  // namespace novex
