#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "model/Cambios.h"
#include "reference/LongitudesPuentes.h"
#include "reference/ValoresPuentes.h"

namespace novex {
namespace {

void PonerModo(Edificio& e, const std::string& modo) {
  pruebas::CambiarConstruccion(e,
                               [&](Construccion& c) { c.Longitud_puentes_termicos_modo = modo; });
}

// Un edificio con algo en cada clase de área.
void Rellenar(Edificio& e) {
  Recinto& r = e.GetRecinto(0);
  r.Suelo_habitable_m2 = 200;
  r.Volumen_total_m3 = 600;
  r.Suelo_al_terreno_m2 = {64, 0, 36};
  r.Suelo_otro_local_m2 = {0, 9};
  r.Suelo_vacio_sanitario_m2 = {16, 0};
  r.Suelo_ext_m2 = {10, 6};
  r.Cubierta_horiz_sol_m2 = {60, 40, 0};
  r.Cubierta_horiz_sombra_m2 = {30, 0, 0};
  r.Cubierta_incl_m2[0][norte] = 11;
  r.Cubierta_incl_m2[2][sur] = 10;
  r.Cubierta_incl_Sombra_m2[2][sur] = 5;
  r.Cubierta_techo_ventilado_m2 = {0, 49};
  r.Muro_ext_m2[0][norte] = 150;
  r.Muro_ext_m2[4][sur] = 60;
  r.Muro_ext_m2[1][este] = 60;
  r.Muro_otro_local_m2 = {12, 0};
  r.Muro_al_terreno_m2 = {0, 18};
  r.Muro_adiabatico_m2 = {40, 20};
  e.GetHuecos(0).columnas[sur].Anadir(4);  // 2 x 1 m
  e.GetHuecos(0).columnas[kColumnaHorizontal].Anadir(1);
  Huecos segundo;
  segundo.Ancho_m = 1.2F;
  segundo.Alto_m = 1.5F;
  segundo.columnas[norte].Anadir(3);
  e.AnadirHuecos(segundo);
  PonerModo(e, "Estimados");
}

TEST(LongitudesPuentes, EdificioConTodasLasClases) {
  Edificio e;
  Rellenar(e);
  // H = 600/200 = 3 m; F = 100 + 25 + 16 = 141 m2; n = 200/141 = 1,418.
  EXPECT_FLOAT_EQ(AlturaDeEdificio(e).alturaPlanta, 3);
  EXPECT_NEAR(AlturaDeEdificio(e).plantas, 1.41844, 1e-5);
  EXPECT_NEAR(AlturaDeEdificio(e).Total(), 4.25532, 1e-5);

  const Construccion c = LongitudesEstimadas(e);
  // Perímetros de planta cuadrada: terreno 40, no acondicionado 20, exterior 16, cubierta 44 (121
  // m2), bajo buhardilla 28. Muros 300/3 = 100 m y medianeras 60/3 = 20 m: parte exterior 5/6.
  // Pilares: (40 + 20 + 16)/4 - 3 = 16; 16 x 3 x 1,418 x 5/6 = 56,74 m, por las partes de muro
  // 0,5, 0,2 y 0,2.
  EXPECT_EQ(c.Long_pilares, (std::array<float, 6>{28, 0, 0, 11, 0, 11}));
  EXPECT_EQ(c.Longitud_esquinas_sal_menos_ent, 14);  // 4 x 3 x 1,418 x 5/6 = 14,18
  // Interiores 100 - 76 = 24; 20 x 0,6 + 24 + 28 x 0,6 = 52,8.
  EXPECT_EQ(c.Perimetro_forjados, 52);
  EXPECT_EQ(c.Perimetro_suelo_terreno, 40);
  EXPECT_EQ(c.Perimetro_cubiertas, 44);
  EXPECT_EQ(c.Perimetro_suelo_ext, 16);
  EXPECT_EQ(c.Perimetro_huecos, 46);  // 5 x 6 + 3 x 5,4 = 46,2
}

TEST(LongitudesPuentes, LosPerimetrosSeCortanSinRedondear) {
  Edificio e;
  PonerModo(e, "Estimados");
  Recinto& r = e.GetRecinto(0);
  r.Suelo_al_terreno_m2[1] = 52;      // 28,84
  r.Suelo_ext_m2[0] = 22;             // 18,76
  r.Cubierta_horiz_sol_m2[2] = 8.5F;  // 11,66
  const Construccion c = LongitudesEstimadas(e);
  EXPECT_EQ(c.Perimetro_suelo_terreno, 28);
  EXPECT_EQ(c.Perimetro_suelo_ext, 18);
  EXPECT_EQ(c.Perimetro_cubiertas, 11);
}

TEST(LongitudesPuentes, SinMurosNoHayPilaresNiEsquinas) {
  Edificio e;
  Rellenar(e);
  Recinto& r = e.GetRecinto(0);
  r.Muro_ext_m2 = {};
  r.Muro_otro_local_m2 = {};
  r.Muro_al_terreno_m2 = {};
  for (const float medianeras : {60.0F, 0.0F}) {
    r.Muro_adiabatico_m2 = {medianeras, 0};
    const Construccion c = LongitudesEstimadas(e);
    EXPECT_EQ(c.Long_pilares, (std::array<float, 6>{}));
    EXPECT_EQ(c.Longitud_esquinas_sal_menos_ent, 0);
    EXPECT_EQ(c.Perimetro_forjados, 28);  // sin interiores: 12 + 16,8
    EXPECT_EQ(c.Perimetro_suelo_terreno, 40);
  }
}

TEST(LongitudesPuentes, SinSuelosOSinSuperficieUtil) {
  Edificio e;
  PonerModo(e, "Estimados");
  e.GetRecinto(0).Muro_ext_m2[0][sur] = 90;  // 100 m2 y 300 m3
  EXPECT_EQ(AlturaDeEdificio(e).plantas, 1);
  Construccion c = LongitudesEstimadas(e);
  EXPECT_EQ(c.Long_pilares, (std::array<float, 6>{}));
  EXPECT_EQ(c.Longitud_esquinas_sal_menos_ent, 12);
  EXPECT_EQ(c.Perimetro_forjados, 30);
  e.GetRecinto(0).Suelo_ext_m2[0] = 150;  // más que la superficie útil: no baja de una planta
  EXPECT_EQ(AlturaDeEdificio(e).plantas, 1);

  Edificio sinSuperficie;
  Rellenar(sinSuperficie);
  sinSuperficie.GetRecinto(0).Suelo_habitable_m2 = 0;
  EXPECT_EQ(AlturaDeEdificio(sinSuperficie).alturaPlanta, 0);
  c = LongitudesEstimadas(sinSuperficie);
  EXPECT_EQ(c.Long_pilares, (std::array<float, 6>{}));
  EXPECT_EQ(c.Longitud_esquinas_sal_menos_ent, 0);
  EXPECT_EQ(c.Perimetro_cubiertas, 44);
}

TEST(LongitudesPuentes, ConVariosRecintosQuedanLasDelUltimo) {
  Edificio e;
  PonerModo(e, "Estimados");
  e.GetRecinto(0).Suelo_al_terreno_m2[0] = 75;
  Recinto segundo;
  segundo.Suelo_al_terreno_m2[0] = 25;
  e.AnadirRecinto(segundo);
  EXPECT_EQ(LongitudesEstimadas(e).Perimetro_suelo_terreno, 10);  // 25 de 100 m2, de 40 m
  // Las facilitadas no se tocan.
  Edificio otro;
  Rellenar(otro);
  Construccion c = otro.GetConstruccion();
  c.Perimetro_huecos = 7.25F;
  c.Long_pilares[oeste] = 3.5F;
  for (const char* modo : {"Facilitados", "", "estimados"}) {
    c.Longitud_puentes_termicos_modo = modo;
    otro.SetConstruccion(c);
    EXPECT_EQ(LongitudesEstimadas(otro), c) << modo;
  }
}

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
  // Modo, pilares, ventanas, zona y lo que da en unos puentes: su transmitancia y su factor. Los
  // valores por defecto (5) tienen sus propios grupos, sin mirar pilares ni ventanas, y una
  // posición que no existe deja solo ese puente.
  const std::tuple<int, int, int, const char*, Puente, float, float> casos[] = {
      {0, 0, 0, "D3", puente_ventanas, 0.11F, 0.74F},
      {0, 0, 0, "D3", puente_forjados, 0.41F, 0.76F},
      {0, 0, 0, "D3", puente_cubiertas, 0.38F, 0.72F},
      {0, 0, 0, "D3", puente_suelo_exterior, 0.33F, 0.65F},
      {0, 0, 0, "D3", puente_esquina_saliente, 0.08F, 0.84F},
      {0, 0, 0, "D3", puente_pilares, 0.77F, 0.64F},
      {0, 0, 0, "D3", puente_suelo_terreno, 0.12F, 0.72F},
      {1, 2, 2, "E1", puente_forjados, 0.21F, 0.83F},
      {1, 2, 2, "E1", puente_cubiertas, 0.34F, 0.67F},
      {1, 2, 2, "E1", puente_pilares, 0.08F, 0.89F},
      {1, 2, 2, "E1", puente_ventanas, 0.41F, 0.70F},
      {2, 1, 1, "A2c", puente_forjados, -0.05F, 0.85F},
      {2, 1, 1, "A2c", puente_suelo_exterior, 0.19F, 0.81F},
      {2, 1, 1, "A2c", puente_esquina_saliente, 0.16F, 0.76F},
      {2, 1, 1, "A2c", puente_pilares, 0.04F, 0.84F},
      {2, 1, 1, "A2c", puente_ventanas, 0.02F, 0.88F},
      {2, 1, 1, "A2c", puente_suelo_terreno, 0.12F, 0.66F},
      {5, 3, 2, "D1", puente_ventanas, 0.27F, 0.64F},
      {5, 3, 2, "D1", puente_forjados, 0.41F, 0.76F},
      {5, 3, 2, "D1", puente_cubiertas, 0.46F, 0.74F},
      {5, 3, 2, "D1", puente_suelo_exterior, 0.43F, 0.74F},
      {5, 3, 2, "D1", puente_esquina_saliente, 0.16F, 0.81F},
      {5, 3, 2, "D1", puente_pilares, 0.77F, 0.644F},
      {5, 3, 2, "D1", puente_suelo_terreno, 0.13F, 0.75F},
      {5, 0, 0, "D2", puente_ventanas, 0.27F, 0.65F},
      {5, 0, 0, "D2", puente_pilares, 0.77F, 0.65F},
      {5, 0, 0, "A3c", puente_ventanas, 0.22F, 0.63F},
      {5, 0, 0, "A3c", puente_cubiertas, 0.42F, 0.68F},
      {5, 0, 0, "B3c", puente_suelo_terreno, 0.13F, 0.73F},
      {5, 0, 0, "C4", puente_pilares, 0.80F, 0.62F},
      {5, 0, 0, "E1", puente_ventanas, 0.29F, 0.67F},
      {0, 4, -1, "C1", puente_pilares, 9, 8},
      {0, 4, -1, "C1", puente_ventanas, 9, 8},
      {0, 4, -1, "C1", puente_forjados, 0.41F, 0.75F}};
  for (const auto& [modo, pilares, ventanas, zona, puente, u, fi] : casos) {
    SCOPED_TRACE(std::to_string(modo) + " " + zona);
    ExpectPuente(PuentesPorTabla(Marcada(modo, pilares, ventanas), zona), puente, u, fi);
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

TEST(PuentesPorTabla, LoQueNoEstaEnLaTablaNoSeToca) {
  for (const int modo : {0, 1, 2})
    for (const char* zona : {"A3", "B4", "C2", "D1", "E1"})
      ExpectPuente(PuentesPorTabla(Marcada(modo, 3), zona), puente_pilares, 0, 100);
  for (const int modo : {0, 1, 2})
    for (const char* zona : {"A3c", "B3c", "alfa1c", "D1c", "E1c", "", "d3", "D3 "})
      EXPECT_EQ(PuentesPorTabla(Marcada(modo), zona), Marcada(modo)) << modo << " " << zona;
  for (const char* zona : {"A1c", "C1c", "alfa", "E1c", ""})
    EXPECT_EQ(PuentesPorTabla(Marcada(5), zona), Marcada(5)) << zona;
  for (const int modo : {4, 3, 6, -1})
    EXPECT_EQ(PuentesPorTabla(Marcada(modo), "D3"), Marcada(modo)) << modo;
}

}  // namespace
}  // namespace novex
