#include "files/AccesoCampos.h"

#include <gtest/gtest.h>

#include <set>

namespace novex {
namespace {

TEST(AccesoCampos, CadaCampoSeLeeYSeVuelveAPoner) {
  Edificio edificio;
  edificio.AnadirSistema({});
  edificio.GetSistema(0).instalaciones.emplace_back();
  const auto direcciones = DireccionesDeCampos(edificio);
  EXPECT_EQ(std::set<std::string>(direcciones.begin(), direcciones.end()).size(),
            direcciones.size());
  EXPECT_GT(direcciones.size(), 400U);
  LectorCampos lector(edificio);
  RegistroMensajes mensajes;
  for (const std::string& direccion : direcciones) {
    SCOPED_TRACE(direccion);
    ASSERT_TRUE(BuscarDatosCampo(direccion).has_value());
    EXPECT_TRUE(lector.Valor(direccion).has_value());
  }
}

TEST(AccesoCampos, PoneNumerosTextosListasYElementosDeLista) {
  Edificio edificio;
  RegistroMensajes mensajes;
  const auto poner = [&](const char* d, const char* t) {
    return PonerCampo(edificio, d, t, mensajes);
  };
  EXPECT_TRUE(poner("MuroExt[2]/Muro_ext_sur_m2", "12,5"));
  EXPECT_EQ(edificio.GetRecinto(0).Muro_ext_m2[1][sur], 12.5F);
  EXPECT_TRUE(poner("Hueco[1]/Ancho_m", "1.237"));  // sin perder el tercer decimal
  EXPECT_EQ(edificio.GetHuecos(0).Ancho_m, 1.237F);
  EXPECT_TRUE(poner("Tipologia[2]/N_viviendas", "3"));
  EXPECT_EQ(edificio.GetVentilacion().tipologias[1].N_viviendas, 3);
  EXPECT_TRUE(poner("Edificio_Titulo", "Casa"));
  EXPECT_TRUE(poner("Existencia_pilares", "Sin pilares"));
  EXPECT_EQ(edificio.GetConstruccion().Existencia_pilares, 1);
  EXPECT_TRUE(mensajes.recibidos.empty());

  EXPECT_FALSE(poner("Existencia_pilares", "Quizá"));
  EXPECT_FALSE(poner("Hueco[9]/Ancho_m", "1"));
  EXPECT_FALSE(poner("Tipo_sistema[1]/QcalorCaldera1", "1"));  // no hay sistemas
  EXPECT_FALSE(poner("No_existe", "1"));
  EXPECT_EQ(LectorCampos(edificio).Valor("Hueco[0]/Ancho_m"), std::nullopt);

  EXPECT_TRUE(poner("Volumen_total_m3", "abc"));  // se sustituye, con su aviso
  EXPECT_EQ(mensajes.recibidos.size(), 1U);
}

TEST(AccesoCampos, LasColumnasDeUnGrupoDeHuecos) {
  Edificio edificio;
  edificio.AnadirHuecos({});
  RegistroMensajes mensajes;
  const auto poner = [&](const char* d, const char* t) {
    return PonerCampo(edificio, d, t, mensajes);
  };
  EXPECT_TRUE(poner("Hueco[2]/Numero_ventanas_sur_oeste", "3"));
  EXPECT_TRUE(poner("Hueco[2]/Numero_lucernarios_Hz", "2"));
  EXPECT_TRUE(poner("Hueco[2]/Separacion_ventanas_vertical_sur", "2,7"));
  EXPECT_TRUE(poner("Hueco[2]/Ventana_sur_altura_obstaculo_sur_este", "4"));
  EXPECT_TRUE(poner("Hueco[2]/Ventana_este_distancia_obstaculo_sur_este", "5.25"));
  const Huecos& g = edificio.GetHuecos(1);
  EXPECT_EQ(g.columnas[sur_oeste].recintos.size(), 3U);
  EXPECT_EQ(g.columnas[kColumnaHorizontal].recintos.size(), 2U);
  EXPECT_EQ(g.columnas[sur].Separacion_ventanas_vertical, 2.7F);
  EXPECT_EQ(g.columnas[sur].obstaculos[2].altura, 4.0F);       // suroeste, sur, sureste
  EXPECT_EQ(g.columnas[este].obstaculos[0].distancia, 5.25F);  // sureste, este
  EXPECT_EQ(edificio.GetHuecos(0), Huecos{});
  LectorCampos lector(edificio);
  EXPECT_EQ(lector.Valor("Hueco[2]/Numero_ventanas_sur_oeste"), "3");
  EXPECT_EQ(lector.Valor("Hueco[2]/Separacion_ventanas_vertical_sur"), "2.70");
  EXPECT_TRUE(mensajes.recibidos.empty());
  EXPECT_TRUE(poner("Hueco[2]/Numero_ventanas_sur_oeste", "1000"));  // hasta 999
  EXPECT_EQ(g.columnas[sur_oeste].recintos.size(), 0U);
  EXPECT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_FALSE(poner("Hueco[3]/Numero_ventanas_sur", "1"));
  // Al norte no hay sol que tapar.
  EXPECT_FALSE(poner("Hueco[2]/Separacion_ventanas_vertical_norte", "1"));
}

}  // namespace
}  // namespace novex
