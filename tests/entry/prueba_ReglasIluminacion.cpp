#include "entry/ReglasIluminacion.h"

#include <gtest/gtest.h>

#include "demand/CargaInternaMedia.h"

namespace novex {
namespace {

// Terciario con el mismo horario todos los días: 6 W/m2 de ocupación medio día, y 10 de iluminación
// al 30 %. En media, 3 + 3 W/m2.
DatosGenerales Oficina() {
  DatosGenerales g;
  g.PerfilUso = 3;
  g.Sensibleocupantes = 6;
  g.Iluminacion = 10;
  g.Equipos = 5;
  for (std::size_t h = 1; h <= 24; ++h) {
    g.perfiles.tabla[C1][0][h] = h <= 12 ? 100.0F : 0.0F;
    g.perfiles.tabla[CIlu][0][h] = 30;
  }
  g.perfiles.tabla[C1][0][0] = 999;  // esta posición no se usa
  g.perfiles.calendario.fill(1);
  return g;
}

float Carga(const DatosGenerales& g) {
  Edificio e;
  e.SetDatosGenerales(g);
  return CargaInternaMedia(e);
}

TEST(CargaInternaMedia, MediaDelAnoSegunElCalendario) {
  DatosGenerales g = Oficina();
  EXPECT_FLOAT_EQ(Carga(g), 6);
  g.PerfilUso = 0;  // las tablas son W/m2: 50 + 30
  EXPECT_FLOAT_EQ(Carga(g), 80);
  g = Oficina();
  for (std::size_t d = 0; d < 73; ++d) g.perfiles.calendario[d] = 0;
  EXPECT_FLOAT_EQ(Carga(g), 4.8F);
  for (std::size_t d = 0; d < 73; ++d) g.perfiles.calendario[d] = 9;  // clase E6: equipos al 100 %
  g.perfiles.tabla[CEq][8].fill(100);
  EXPECT_FLOAT_EQ(Carga(g), 5.8F);
}

TEST(CargaInternaMedia, NivelYTexto) {
  EXPECT_EQ(NivelCargaInterna(5.99F), "Nivel baja <6");
  EXPECT_EQ(NivelCargaInterna(Carga(Oficina())), "Nivel media 6<=CFI<9");
  EXPECT_EQ(NivelCargaInterna(8.99F), "Nivel media 6<=CFI<9");
  EXPECT_EQ(NivelCargaInterna(9), "Nivel alta 9<=CFI<12");
  EXPECT_EQ(NivelCargaInterna(12), "Nivel muy alta >=12");
  EXPECT_EQ(TextoCargaInterna(4.812F), "CFI = 4.81 W/m2");
}

TEST(VEIIMax, DeLaListaODelUsuario) {
  Edificio e;
  RegistroMensajes m;
  const auto guardado = [&] { return e.GetDatosGenerales().VEIIMax; };
  EXPECT_TRUE(ElegirVEIIMax(e, "VIEElim=3,5  Aulas y laboratorios"));
  EXPECT_EQ(guardado(), 3.5F);
  EXPECT_EQ(e.GetDatosGenerales().TipoVEIIMax, "VIEElim=3,5  Aulas y laboratorios");
  EXPECT_FALSE(DefinirVEIIMax(e, "6", m));
  EXPECT_FALSE(ElegirVEIIMax(e, "Aulas"));
  EXPECT_EQ(guardado(), 3.5F);
  EXPECT_TRUE(ElegirVEIIMax(e, kVEIIMaxDefinir));
  EXPECT_EQ(guardado(), 7.0F);
  EXPECT_TRUE(DefinirVEIIMax(e, "6,2", m));
  EXPECT_TRUE(ElegirVEIIMax(e, kVEIIMaxDefinir));
  EXPECT_EQ(guardado(), 6.2F);
  DefinirVEIIMax(e, "11", m);
  EXPECT_EQ(guardado(), 5.0F);
  EXPECT_EQ(m.recibidos.size(), 1U);
}

TEST(Iluminacion, PotenciaMaximaPorLux) {
  Edificio e;
  RegistroMensajes m;
  PonerLux(e, "600", m);
  EXPECT_EQ(e.GetDatosGenerales().EPotIluMax, 10.0F);
  PonerLux(e, "600,5", m);
  EXPECT_EQ(e.GetDatosGenerales().EPotIluMax, 25.0F);
  EXPECT_EQ(TextoPotenciaMaximaIluminacion(600), "Carga máxima 10 W/m2");
  EXPECT_EQ(TextoPotenciaMaximaIluminacion(601), "Carga máxima 25 W/m2");
  EXPECT_TRUE(m.recibidos.empty());
  PonerIluminacion(e, "27", m);
  EXPECT_EQ(e.GetDatosGenerales().Iluminacion, 5.0F);
}

}  // namespace
}  // namespace novex
