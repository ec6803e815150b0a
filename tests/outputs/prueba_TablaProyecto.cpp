#include "outputs/TablaProyecto.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

TEST(TablaProyecto, SumaLasAreasDeLosElementosQueHay) {
  Edificio edificio;
  Recinto& r = edificio.GetRecinto(0);
  r.Muro_ext_m2[1] = {10, 0, 0, 20, 0, 0};
  r.Cubierta_horiz_sol_m2[0] = 50;
  // La parte en sombra está dentro del área: no se suma.
  r.Cubierta_horiz_sombra_m2[0] = 30;
  r.Suelo_al_terreno_m2[2] = 40;
  edificio.GetComposicion(ranura::MuroExt2).nombre = "Fachada";
  edificio.GetComposicion(ranura::SueloTerr3).U = 0.5F;
  const Tabla tabla = TablaEnvolventeCaso(edificio);
  ASSERT_EQ(tabla.filas.size(), 4U);
  EXPECT_EQ(tabla.filas[0][0].texto, "Muro exterior 2");
  EXPECT_EQ(tabla.filas[0][1].numero, 30.0);
  EXPECT_EQ(tabla.filas[0][3].texto, "Fachada");
  EXPECT_EQ(tabla.filas[1][3].texto, "");
  EXPECT_EQ(tabla.filas[2][0].texto, "Suelo al terreno 3");
  EXPECT_EQ(tabla.filas[2][2].numero, 0.5);
  EXPECT_EQ(tabla.filas[3][1].numero, 120.0);
}

TEST(TablaProyecto, HuecosPorOrientacion) {
  Edificio edificio;
  Huecos& grupo = edificio.GetHuecos(0);
  grupo.Ancho_m = 1.5F;
  grupo.Alto_m = 2;
  grupo.Tipo_de_hueco = 9;
  grupo.columnas[sur].Anadir(2);
  grupo.columnas[kColumnaHorizontal].Anadir(1);
  edificio.AnadirHuecos({});  // un grupo sin huecos no se muestra
  const Tabla tabla = TablaHuecosCaso(edificio);
  ASSERT_EQ(tabla.filas.size(), 1U);
  const auto& fila = tabla.filas[0];
  ASSERT_EQ(fila.size(), tabla.cabeceras.size());
  EXPECT_EQ(fila[1].texto, "9");
  for (std::size_t i = 6; i < 13; ++i) {
    const std::string& orientacion = tabla.cabeceras[i];
    const std::string esperado = orientacion == "S" ? "2" : orientacion == "Hz" ? "1" : "";
    EXPECT_EQ(fila[i].texto, esperado) << orientacion;
  }
  EXPECT_EQ(fila[13].numero, 9.0);
}

TEST(TablaProyecto, UnSistemaSinGeneradorNoImpideVerlo) {
  Edificio edificio;
  SistemaResidencial sistema;
  sistema.Tipo_sistema = "ACS";
  edificio.AnadirSistema(sistema);
  const Tabla tabla = TablaSistemasCaso(edificio);
  ASSERT_EQ(tabla.filas.size(), 1U);
  EXPECT_EQ(tabla.filas[0][1].texto, "ACS");
  EXPECT_EQ(tabla.filas[0][2].texto, "");
}

}  // namespace
}  // namespace novex
