#include "entry/GruposHuecos.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace novex {
namespace {

constexpr SeleccionPropiedades kTodas{0xFF};

SeleccionPropiedades Solo(ConjuntoPropiedades conjunto) {
  return SeleccionPropiedades{}.set(static_cast<std::size_t>(conjunto));
}

// Un grupo con todas las propiedades que se copian distintas de las de uno en blanco.
Huecos Distinto() {
  Huecos g;
  g.Indice_tipo_cristal = 3;
  g.Indice_cristal_concreto = 2;
  g.U_cristal_W_m2K = 1.6F;
  g.FS_cristal_tanto_por_uno = 0.6F;
  g.Indice_marco = 6;
  g.U_marco_W_m2K = 1.8F;
  g.Fraccion_marco_tanto_por_cien = 25;
  g.Valor_multiplicativo_FS_verano = 0.5F;
  g.Valor_multiplicativo_FS_invierno = 0.6F;
  g.Valor_multiplicativo_U_verano = 0.7F;
  g.Valor_multiplicativo_U_invierno = 0.8F;
  g.Indice_tipo_sombra_fija = 5;
  g.Indice_tipo_sombra_movil = 1;
  g.Indice_tipo_control_Verano = 2;
  g.Indice_tipo_control_Invierno = 3;
  g.Indice_tipo_junta = 4;
  g.Permeabilidad_Ventanas = 9;
  g.Existe_Caja_persiana = 0;
  g.Tipo_de_U_Caja_persiana = 1;
  g.U_Caja_de_persiana_W_m2K = 1.2F;
  g.Tipo_de_Vinf_Caja_persiana = 2;
  g.Vinf_Caja_de_persiana_m3_h = 3;
  g.Altura_Caja_de_persiana_m = 0.3F;
  return g;
}

TEST(GruposHuecos, AnadirQuitarYRenombrar) {
  Edificio e;
  EXPECT_FALSE(QuitarGrupoHuecos(e, 0));
  EXPECT_EQ(AnadirGrupoHuecos(e), 1U);
  EXPECT_EQ(AnadirGrupoHuecos(e), 2U);
  Huecos esperado;
  esperado.Nombre_hueco = "Grupo_3";
  EXPECT_EQ(e.GetHuecos(2), esperado);
  RenombrarGrupoHuecos(e, 1, "Salón");
  EXPECT_TRUE(QuitarGrupoHuecos(e, 0));
  EXPECT_EQ(e.GetHuecos(0).Nombre_hueco, "Salón");
  EXPECT_THROW(QuitarGrupoHuecos(e, 2), std::out_of_range);
  EXPECT_TRUE(QuitarGrupoHuecos(e, 1));
  EXPECT_FALSE(QuitarGrupoHuecos(e, 0));
  EXPECT_EQ(e.NumeroHuecos(), 1U);
}

TEST(GruposHuecos, NumeroDeHuecosDeUnaColumna) {
  ColumnaHuecos columna;
  RegistroMensajes m;
  PonerNumeroHuecos(columna, "3", m);
  EXPECT_EQ(columna.recintos, (std::vector<std::size_t>{0, 0, 0}));
  PonerNumeroHuecos(columna, "2", m);
  EXPECT_EQ(columna.recintos.size(), 2U);
  EXPECT_TRUE(m.recibidos.empty());
  PonerNumeroHuecos(columna, "4,7", m);
  EXPECT_EQ(columna.recintos.size(), 4U);
  PonerNumeroHuecos(columna, "-1", m);
  EXPECT_TRUE(columna.recintos.empty());
  EXPECT_EQ(m.recibidos.size(), 2U);
}

// La U de un lucernario es la del vidrio y el marco en horizontal.
TEST(GruposHuecos, ElCatalogoDaLosValoresDeSuInclinacion) {
  CatalogoVidrios catalogo;
  catalogo.vidrios[1] = {{"4-6-4", 3.28F, 3.63F, 0.76F}, {"4-12-4", 2.85F, 3.41F, 0.75F}};
  catalogo.marcos[7] = {{"a", 1.3F, 1.4F}};
  Huecos g;
  ASSERT_FALSE(VidrioDeCatalogo(catalogo, g, 1, 2).has_value());
  ASSERT_FALSE(MarcoDeCatalogo(catalogo, g, 0, 0).has_value());
  PonerVidrio(g, *VidrioDeCatalogo(catalogo, g, 1, 1));
  PonerMarco(g, *MarcoDeCatalogo(catalogo, g, 7, 0));
  EXPECT_EQ(g.U_cristal_W_m2K, 2.85F);
  EXPECT_EQ(g.Indice_cristal_concreto, 1);
  EXPECT_EQ(g.FS_cristal_tanto_por_uno, 0.75F);
  EXPECT_EQ(g.U_marco_W_m2K, 1.3F);
  EXPECT_EQ(g.Indice_marco, 7);
  EXPECT_TRUE(TieneVidrio(g, *VidrioDeCatalogo(catalogo, g, 1, 1)));
  g.Tipo_de_hueco = kLucernario;
  EXPECT_FALSE(TieneVidrio(g, *VidrioDeCatalogo(catalogo, g, 1, 1)));
  PonerVidrio(g, *VidrioDeCatalogo(catalogo, g, 1, 1));
  PonerMarco(g, *MarcoDeCatalogo(catalogo, g, 7, 0));
  EXPECT_EQ(g.U_cristal_W_m2K, 3.41F);
  EXPECT_EQ(g.U_marco_W_m2K, 1.4F);
  PonerPermeabilidad(g, {3, "Clase 3", 9});
  EXPECT_EQ(g.Indice_tipo_junta, 3);
  EXPECT_EQ(g.Permeabilidad_Ventanas, 9.0F);
}

TEST(GruposHuecos, ElAreaCuentaTodasLasColumnas) {
  Huecos g;
  g.Ancho_m = 1.2F;
  g.Alto_m = 1.5F;
  g.columnas[norte].Anadir(1);
  g.columnas[kColumnaHorizontal].Anadir(3);
  EXPECT_FLOAT_EQ(AreaGrupoHuecos(g), 7.2F);
}

TEST(CopiarPropiedades, TodasMenosNombreTipoYMedidas) {
  Edificio e;
  e.GetHuecos(0) = Distinto();
  e.GetHuecos(0).Ancho_m = 3;
  e.GetHuecos(0).Retranqueo_m = 0.2F;
  for (const int tipo : {kVentana, kPuerta, kLucernario, kEscaparate})
    e.GetHuecos(AnadirGrupoHuecos(e)).Tipo_de_hueco = tipo;
  const std::vector<std::size_t> todos = {0, 1, 2, 3, 4};
  EXPECT_EQ(CopiarPropiedadesHuecos(e, 0, todos, kTodas), 2U);
  Huecos copiado = Distinto();
  copiado.Nombre_hueco = "Grupo_2";
  EXPECT_EQ(e.GetHuecos(1), copiado);
  EXPECT_EQ(e.GetHuecos(4).U_cristal_W_m2K, 1.6F);
  EXPECT_EQ(e.GetHuecos(2).U_cristal_W_m2K, 5.7F);  // puerta
  EXPECT_EQ(e.GetHuecos(3).U_cristal_W_m2K, 5.7F);  // lucernario
  // Desde una puerta no se copia.
  EXPECT_EQ(CopiarPropiedadesHuecos(e, 2, todos, kTodas), 0U);
  EXPECT_EQ(e.GetHuecos(1), copiado);
}

// Cada conjunto deja distinto lo suyo y en blanco lo de los demás.
TEST(CopiarPropiedades, CadaConjuntoPorSeparado) {
  const std::array<int Huecos::*, 8> testigo = {&Huecos::Indice_cristal_concreto,
                                                &Huecos::Indice_marco,
                                                nullptr,
                                                &Huecos::Indice_tipo_sombra_fija,
                                                &Huecos::Indice_tipo_sombra_movil,
                                                &Huecos::Indice_tipo_control_Invierno,
                                                &Huecos::Indice_tipo_junta,
                                                &Huecos::Tipo_de_Vinf_Caja_persiana};
  const std::vector<std::size_t> destino = {1};
  Edificio e;
  e.GetHuecos(0) = Distinto();
  AnadirGrupoHuecos(e);
  for (std::size_t i = 0; i < kConjuntosPropiedades; ++i) {
    e.GetHuecos(1) = Huecos{};
    EXPECT_EQ(CopiarPropiedadesHuecos(e, 0, destino, Solo(static_cast<ConjuntoPropiedades>(i))),
              1U);
    for (std::size_t j = 0; j < testigo.size(); ++j) {
      if (testigo[j] == nullptr) continue;
      EXPECT_EQ(e.GetHuecos(1).*testigo[j] == e.GetHuecos(0).*testigo[j], i == j) << i << j;
    }
    EXPECT_EQ(e.GetHuecos(1).Valor_multiplicativo_U_invierno == 0.8F, i == 2);
  }
}

}  // namespace
}  // namespace novex
