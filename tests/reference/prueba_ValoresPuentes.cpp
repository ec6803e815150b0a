#include "reference/ValoresPuentes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace novex {
namespace {

// Un registro con valores que no están en ninguna tabla.
Construccion Marcada(int modo, int pilares = 0, int ventanas = 0) {
  Construccion c;
  c.Def_Puentes_termicos = modo;
  c.Def_Puentes_termicos_pilares = pilares;
  c.Def_Puentes_termicos_ventanas = ventanas;
  c.U_L_Puentes.fill(9);
  c.fi_Puentes.fill(8);
  return c;
}

void ExpectPuente(const Construccion& c, Puente puente, float u, float fi) {
  EXPECT_FLOAT_EQ(c.U_L_Puentes[puente], u) << "puente " << puente;
  EXPECT_FLOAT_EQ(c.fi_Puentes[puente], fi) << "puente " << puente;
}

TEST(PuentesPorTabla, ForjadoSinAislarEnD3) {
  const Construccion c = PuentesPorTabla(Marcada(0), "D3");
  ExpectPuente(c, puente_ventanas, 0.11F, 0.74F);
  ExpectPuente(c, puente_forjados, 0.41F, 0.76F);
  ExpectPuente(c, puente_cubiertas, 0.38F, 0.72F);
  ExpectPuente(c, puente_suelo_exterior, 0.33F, 0.65F);
  ExpectPuente(c, puente_esquina_saliente, 0.08F, 0.84F);
  ExpectPuente(c, puente_pilares, 0.77F, 0.64F);
  ExpectPuente(c, puente_suelo_terreno, 0.12F, 0.72F);
}

TEST(PuentesPorTabla, AisladoYContinuoConSusPilaresYVentanas) {
  const Construccion aislado = PuentesPorTabla(Marcada(1, 2, 2), "E1");
  ExpectPuente(aislado, puente_forjados, 0.21F, 0.83F);
  ExpectPuente(aislado, puente_cubiertas, 0.34F, 0.67F);
  ExpectPuente(aislado, puente_pilares, 0.08F, 0.89F);
  ExpectPuente(aislado, puente_ventanas, 0.41F, 0.70F);

  const Construccion continuo = PuentesPorTabla(Marcada(2, 1, 1), "A2c");
  ExpectPuente(continuo, puente_forjados, -0.05F, 0.85F);
  ExpectPuente(continuo, puente_suelo_exterior, 0.19F, 0.81F);
  ExpectPuente(continuo, puente_esquina_saliente, 0.16F, 0.76F);
  ExpectPuente(continuo, puente_pilares, 0.04F, 0.84F);
  ExpectPuente(continuo, puente_ventanas, 0.02F, 0.88F);
  ExpectPuente(continuo, puente_suelo_terreno, 0.12F, 0.66F);
}

TEST(PuentesPorTabla, ElForjadoDaLaLetraDeCadaZona) {
  const std::pair<std::vector<const char*>, float> grupos[] = {
      {{"A4", "A3", "A2c", "alfa3c"}, 0.11F},
      {{"B4", "B3", "B2c"}, 0.14F},
      {{"C4", "C3", "C2", "C1", "C2c"}, 0.17F},
      {{"D3", "D2", "D1"}, 0.18F},
      {{"E1"}, 0.21F}};
  for (const auto& [zonas, u] : grupos)
    for (const char* zona : zonas)
      EXPECT_FLOAT_EQ(PuentesPorTabla(Marcada(1), zona).U_L_Puentes[puente_forjados], u) << zona;
}

TEST(PuentesPorTabla, SinPilaresSonNulosConFactor100) {
  for (const int modo : {0, 1, 2})
    for (const char* zona : {"A3", "B4", "C2", "D1", "E1"})
      ExpectPuente(PuentesPorTabla(Marcada(modo, 3), zona), puente_pilares, 0, 100);
}

TEST(PuentesPorTabla, LosValoresPorDefectoTienenSusPropiosGrupos) {
  const Construccion d1 = PuentesPorTabla(Marcada(5, 3, 2), "D1");
  ExpectPuente(d1, puente_ventanas, 0.27F, 0.64F);
  ExpectPuente(d1, puente_forjados, 0.41F, 0.76F);
  ExpectPuente(d1, puente_cubiertas, 0.46F, 0.74F);
  ExpectPuente(d1, puente_suelo_exterior, 0.43F, 0.74F);
  ExpectPuente(d1, puente_esquina_saliente, 0.16F, 0.81F);
  ExpectPuente(d1, puente_pilares, 0.77F, 0.644F);
  ExpectPuente(d1, puente_suelo_terreno, 0.13F, 0.75F);

  const Construccion d2 = PuentesPorTabla(Marcada(5), "D2");
  ExpectPuente(d2, puente_ventanas, 0.27F, 0.65F);
  ExpectPuente(d2, puente_pilares, 0.77F, 0.65F);

  const Construccion a = PuentesPorTabla(Marcada(5), "A3c");
  ExpectPuente(a, puente_ventanas, 0.22F, 0.63F);
  ExpectPuente(a, puente_cubiertas, 0.42F, 0.68F);
  ExpectPuente(PuentesPorTabla(Marcada(5), "B3c"), puente_suelo_terreno, 0.13F, 0.73F);
  ExpectPuente(PuentesPorTabla(Marcada(5), "C4"), puente_pilares, 0.80F, 0.62F);
  ExpectPuente(PuentesPorTabla(Marcada(5), "E1"), puente_ventanas, 0.29F, 0.67F);
}

TEST(PuentesPorTabla, UnaZonaFueraDeLaTablaDejaLosCampos) {
  for (const int modo : {0, 1, 2})
    for (const char* zona : {"A3c", "B3c", "alfa1c", "D1c", "E1c", "", "d3", "D3 "})
      EXPECT_EQ(PuentesPorTabla(Marcada(modo), zona), Marcada(modo)) << modo << " " << zona;
  for (const char* zona : {"A1c", "C1c", "alfa", "E1c", ""})
    EXPECT_EQ(PuentesPorTabla(Marcada(5), zona), Marcada(5)) << zona;
}

TEST(PuentesPorTabla, LosValoresDadosYLosModosSinTablaNoSeTocan) {
  for (const int modo : {4, 3, 6, -1})
    for (const char* zona : {"A3", "D3", "E1"})
      EXPECT_EQ(PuentesPorTabla(Marcada(modo), zona), Marcada(modo)) << modo;
}

TEST(PuentesPorTabla, UnaPosicionQueNoExisteDejaSoloEsePuente) {
  const Construccion c = PuentesPorTabla(Marcada(0, 4, -1), "C1");
  ExpectPuente(c, puente_pilares, 9, 8);
  ExpectPuente(c, puente_ventanas, 9, 8);
  ExpectPuente(c, puente_forjados, 0.41F, 0.75F);
}

}  // namespace
}  // namespace novex
