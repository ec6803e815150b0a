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

TEST(PuentesPorTabla, CadaModoConSusPilaresYVentanas) {
  struct Caso {
    int modo, pilares, ventanas;
    const char* zona;
    std::vector<std::tuple<Puente, float, float>> esperados;
  };
  const Caso casos[] = {
      {0,
       0,
       0,
       "D3",
       {{puente_ventanas, 0.11F, 0.74F},
        {puente_forjados, 0.41F, 0.76F},
        {puente_cubiertas, 0.38F, 0.72F},
        {puente_suelo_exterior, 0.33F, 0.65F},
        {puente_esquina_saliente, 0.08F, 0.84F},
        {puente_pilares, 0.77F, 0.64F},
        {puente_suelo_terreno, 0.12F, 0.72F}}},
      {1,
       2,
       2,
       "E1",
       {{puente_forjados, 0.21F, 0.83F},
        {puente_cubiertas, 0.34F, 0.67F},
        {puente_pilares, 0.08F, 0.89F},
        {puente_ventanas, 0.41F, 0.70F}}},
      {2,
       1,
       1,
       "A2c",
       {{puente_forjados, -0.05F, 0.85F},
        {puente_suelo_exterior, 0.19F, 0.81F},
        {puente_esquina_saliente, 0.16F, 0.76F},
        {puente_pilares, 0.04F, 0.84F},
        {puente_ventanas, 0.02F, 0.88F},
        {puente_suelo_terreno, 0.12F, 0.66F}}},
      // Los valores por defecto tienen sus propios grupos, sin mirar pilares ni ventanas.
      {5,
       3,
       2,
       "D1",
       {{puente_ventanas, 0.27F, 0.64F},
        {puente_forjados, 0.41F, 0.76F},
        {puente_cubiertas, 0.46F, 0.74F},
        {puente_suelo_exterior, 0.43F, 0.74F},
        {puente_esquina_saliente, 0.16F, 0.81F},
        {puente_pilares, 0.77F, 0.644F},
        {puente_suelo_terreno, 0.13F, 0.75F}}},
      {5, 0, 0, "D2", {{puente_ventanas, 0.27F, 0.65F}, {puente_pilares, 0.77F, 0.65F}}},
      {5, 0, 0, "A3c", {{puente_ventanas, 0.22F, 0.63F}, {puente_cubiertas, 0.42F, 0.68F}}},
      {5, 0, 0, "B3c", {{puente_suelo_terreno, 0.13F, 0.73F}}},
      {5, 0, 0, "C4", {{puente_pilares, 0.80F, 0.62F}}},
      {5, 0, 0, "E1", {{puente_ventanas, 0.29F, 0.67F}}},
      // Una posición que no existe deja solo ese puente.
      {0,
       4,
       -1,
       "C1",
       {{puente_pilares, 9, 8}, {puente_ventanas, 9, 8}, {puente_forjados, 0.41F, 0.75F}}}};
  for (const Caso& caso : casos) {
    SCOPED_TRACE(std::to_string(caso.modo) + " " + caso.zona);
    const auto c = PuentesPorTabla(Marcada(caso.modo, caso.pilares, caso.ventanas), caso.zona);
    for (const auto& [puente, u, fi] : caso.esperados) ExpectPuente(c, puente, u, fi);
  }
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

TEST(PuentesPorTabla, UnaZonaFueraDeLaTablaDejaLosCampos) {
  for (const int modo : {0, 1, 2})
    for (const char* zona : {"A3c", "B3c", "alfa1c", "D1c", "E1c", "", "d3", "D3 "})
      EXPECT_EQ(PuentesPorTabla(Marcada(modo), zona), Marcada(modo)) << modo << " " << zona;
  for (const char* zona : {"A1c", "C1c", "alfa", "E1c", ""})
    EXPECT_EQ(PuentesPorTabla(Marcada(5), zona), Marcada(5)) << zona;
}

TEST(PuentesPorTabla, LosValoresDadosYLosModosSinTablaNoSeTocan) {
  for (const int modo : {4, 3, 6, -1})
    EXPECT_EQ(PuentesPorTabla(Marcada(modo), "D3"), Marcada(modo)) << modo;
}

}  // namespace
}  // namespace novex
