#include <gtest/gtest.h>

#include <numeric>

#include "demand/PuentesTermicos.h"
#include "demand/RespuestaZona.h"
#include "demand/Terreno.h"
#include "demand/TransmitanciaTerreno.h"
#include "demand/TransmitanciasEfectivas.h"
#include "model/Cambios.h"
#include "model/Edificio.h"

namespace novex {
namespace {

SueloTerreno Suelo(const char* tipo, float profundidad = 0, float D = 0, float Ra = 0) {
  return {profundidad, tipo, D, Ra};
}

void Esperar(const CoeficientesTerreno& c, double Hg, double Hpi, double Hpe) {
  EXPECT_NEAR(c.Hg, Hg, 1e-4 * Hg);
  EXPECT_NEAR(c.Hpi, Hpi, 1e-4 * Hpi);
  EXPECT_NEAR(c.Hpe, Hpe, 1e-4 * Hpe);
}

// ISO 13370 a mano: U = 1 en 100 m2 con 40 m de perímetro da dt = 2,38 y B' = 5.
TEST(CoeficientesSolera, LaBandaLaProfundidadYElAislamiento) {
  Esperar(CoeficientesSolera(1, 100, 40, Suelo("Periferico", 0, 1, 1.5F)), 37.49792, 46.86264,
          19.82864);
  // Una banda que aísla menos que la tierra que sustituye (0,1/2) no cuenta.
  Esperar(CoeficientesSolera(1, 100, 40, Suelo("Periferico", 0.5F, 0, 0.04F)), 44.85069, 46.86264,
          25.04358);
  // Sin perímetro se toma el de un cuadrado, que aquí es el mismo.
  Esperar(CoeficientesSolera(1, 100, 0, Suelo("Continuo")), 44.85069, 46.86264, 25.04358);
  // Muy aislada y estrecha: dt = 8,38 pasa de B' = 3,08.
  Esperar(CoeficientesSolera(0.25F, 40, 26, Suelo("Continuo")), 8.174815, 7.930007, 6.167087);
  Esperar(CoeficientesSolera(1, 100, 40, Suelo("Continuo", 0.5F)), 44.85069, 46.86264, 25.04358);
  Esperar(CoeficientesSolera(1, 100, 40, Suelo("Continuo", 2)), 36.27796, 46.86264, 13.31653);
  // La banda sigue contando en la parte estacionaria, no en la periódica exterior.
  Esperar(CoeficientesSolera(1, 100, 40, Suelo("Periferico", 2, 1, 1.5F)), 31.48194, 46.86264,
          13.31653);
}

TEST(CoeficientesTerreno, SinUOSinAreaNoHayFlujo) {
  for (const CoeficientesTerreno& c :
       {CoeficientesSolera(0, 100, 40, Suelo("Continuo")),
        CoeficientesSolera(1, 0, 40, Suelo("Continuo")), CoeficientesMuroTerreno(0, 30, 2),
        CoeficientesMuroTerreno(1, 0, 2)}) {
    EXPECT_EQ(c.Hg, 0.0F);
    EXPECT_EQ(c.Hpi, 0.0F);
    EXPECT_EQ(c.Hpe, 0.0F);
  }
}

// U = 0,8 en 30 m2: dw = 2,72.
TEST(CoeficientesMuroTerreno, PorSuProfundidad) {
  Esperar(CoeficientesMuroTerreno(0.8F, 30, 2.5F), 12.55463, 13.08539, 7.485452);
  Esperar(CoeficientesMuroTerreno(0.8F, 30, 1), 16.33138, 13.08539, 9.282485);
  Esperar(CoeficientesMuroTerreno(0.8F, 30, 0), 16.33138, 13.08539, 9.282485);
}

TEST(DimensionCaracteristica, DobleDelAreaEntreElPerimetro) {
  EXPECT_FLOAT_EQ(DimensionCaracteristica(100, 40), 5);
  EXPECT_FLOAT_EQ(DimensionCaracteristica(100, 0), 20);
}

// Celdas de las tablas publicadas, y puntos medios entre ellas.
TEST(TransmitanciaTerreno, CeldasDeSusTablasYPuntosMedios) {
  EXPECT_NEAR(UMuroTerreno(0, 0.5F), 3.05, 1e-5);
  EXPECT_NEAR(UMuroTerreno(2, 6), 0.24, 1e-5);
  EXPECT_NEAR(UMuroTerreno(1, 0), 0.65, 1e-5);  // sin profundidad, 1 m
  EXPECT_NEAR(UMuroTerreno(0.05F, 0.75F), (3.05 + 2.2 + 2.29 + 1.74) / 4, 1e-4);
  EXPECT_NEAR(UMuroTerreno(5, 20), 0.24, 1e-5);
  EXPECT_NEAR(UMuroTerreno(-1, 0.1F), 3.05, 1e-5);
  EXPECT_NEAR(UCamaraSanitaria(1, 0), 9.38, 1e-5);
  EXPECT_NEAR(UCamaraSanitaria(1.5F, 0.25F), (9.38 + 1.65 + 5.35 + 1.46) / 4, 1e-4);
  EXPECT_NEAR(UCamaraSanitaria(11, 2.5F), (0.32 + 0.31) / 2, 1e-4);
  EXPECT_NEAR(UCamaraSanitaria(40, 4), 0.23, 1e-5);
  EXPECT_NEAR(USoleraSuperficial(5, 0, 0), 0.85, 1e-5);
  EXPECT_NEAR(USoleraSuperficial(0.3F, 0, 2), 2.35, 1e-5);
  EXPECT_NEAR(USoleraSuperficial(5, 1, 1), 0.58, 1e-5);
  EXPECT_NEAR(USoleraSuperficial(20, 1.5F, 2.5F), 0.20, 1e-5);
  // Entre B' 5 y 6 y entre Ra 1 y 1,5, con 1 m de banda.
  EXPECT_NEAR(USoleraSuperficial(5.5F, 1, 1.25F), (0.58 + 0.54 + 0.52 + 0.48) / 4, 1e-4);
  // De no tener banda a la primera resistencia, y a la primera anchura.
  EXPECT_NEAR(USoleraSuperficial(5, 1, 0.25F), (0.85 + 0.65) / 2, 1e-4);
  EXPECT_NEAR(USoleraSuperficial(5, 0.25F, 1), (0.85 + 0.64) / 2, 1e-4);
  // Celda vacía en la tabla: toma la de su izquierda.
  EXPECT_NEAR(USoleraSuperficial(1, 1.5F, 0.5F), 0.57, 1e-5);
  EXPECT_NEAR(USoleraProfunda(5, 0, 0.6F), 0.64, 1e-5);
  EXPECT_NEAR(USoleraProfunda(5, 0, 1), 0.64, 1e-5);
  EXPECT_NEAR(USoleraProfunda(5, 0, 1.01F), 0.54, 1e-5);
  EXPECT_NEAR(USoleraProfunda(5, 0, 3), 0.42, 1e-5);
  EXPECT_NEAR(USoleraProfunda(5, 0, 8), 0.35, 1e-5);
  EXPECT_NEAR(USoleraProfunda(11, 0.75F, 0.6F), (0.34 + 0.30 + 0.30 + 0.27) / 4, 1e-4);
  EXPECT_NEAR(USoleraProfunda(90, 9, 9), 0.14, 1e-5);
}

class Envolvente : public testing::Test {
 protected:
  Envolvente() {
    for (std::size_t i = 0; i < kRanuras; ++i) edificio.GetComposicion(i).U = 0.5F;
  }
  void Peliculas(const char* texto) {
    pruebas::CambiarConstruccion(edificio,
                                 [&](Construccion& c) { c.resistenciasSuperficiales = texto; });
  }
  std::array<float, kRanuras> U() const { return TransmitanciasEfectivas(edificio, forzados); }

  Edificio edificio;
  Forzados forzados;
};

TEST_F(Envolvente, CambianALasDeSuPapel) {
  Peliculas("No");
  const auto u = U();
  // 1/U = 2 - 0,17 + las dos del papel.
  const std::pair<std::size_t, double> esperadas[] = {
      {ranura::TechoExt1, 0.14},  {ranura::TechoInc3, 0.14},  {ranura::TechoTerr2, 0.14},
      {ranura::TechoVent4, 0.20}, {ranura::MuroOtro7, 0.26},  {ranura::MuroTerr1, 0.13},
      {ranura::SueloExt2, 0.21},  {ranura::SueloVent1, 0.34}, {ranura::SueloOtro3, 0.34},
      {ranura::SueloTerr2, 0.17}, {ranura::MuroExt9, 0.34},   {ranura::MuroOtro1, 0.26},
      {ranura::MuroOtro9, 0.26},  {ranura::SueloInt4, 0.34},  {ranura::TechoInt3, 0.20}};
  for (const auto& [i, peliculas] : esperadas)
    EXPECT_NEAR(u[i], 1 / (1.83 + peliculas), 1e-5) << TablaEnvolvente::Clave(i);
  // Los muros exteriores y el de fuera del local se quedan con las suyas.
  EXPECT_FLOAT_EQ(u[ranura::MuroExt1], 0.5F);
  EXPECT_FLOAT_EQ(u[ranura::MuroExt6], 0.5F);
}

TEST_F(Envolvente, LaResistenciaAnadidaVaPorFamilias) {
  forzados.ExtraRMuros = 1;
  forzados.ExtraRCubiertas = 2;
  forzados.ExtraRSuelos = 0.5F;
  for (const char* peliculas : {"Si", "No"}) {
    Peliculas(peliculas);
    const auto u = U();
    EXPECT_NEAR(u[ranura::MuroExt5], 1.0 / 3, 1e-5);
    EXPECT_FLOAT_EQ(u[ranura::MuroExt7], 0.5F);
  }
  Peliculas("Si");
  const auto u = U();
  EXPECT_NEAR(u[ranura::MuroTerr2], 1.0 / 3, 1e-5);
  EXPECT_NEAR(u[ranura::MuroOtro3], 1.0 / 3, 1e-5);
  EXPECT_NEAR(u[ranura::TechoVent2], 0.25, 1e-5);
  EXPECT_NEAR(u[ranura::SueloTerr3], 0.4, 1e-5);
  for (const std::size_t i : {std::size_t{ranura::MuroOtro1}, std::size_t{ranura::TechoOtro2},
                              std::size_t{ranura::SueloOtro2}, std::size_t{ranura::MuroExt8}})
    EXPECT_FLOAT_EQ(u[i], 0.5F) << TablaEnvolvente::Clave(i);
  // Lo que no está definido sigue sin U.
  Peliculas("No");
  forzados.ExtraRCubiertas = 1;
  edificio.GetComposicion(ranura::TechoExt1).U = 0;
  EXPECT_EQ(U()[ranura::TechoExt1], 0.0F);
}

TEST(FactorLocalNoHabitable, EntreSusLimites) {
  EXPECT_EQ(FactorLocalNoHabitable(0, 0, 4), 0.0F);
  EXPECT_FLOAT_EQ(FactorLocalNoHabitable(10, 10, 0), 0.5F);
  EXPECT_FLOAT_EQ(FactorLocalNoHabitable(10, 10, 4), 2.5F / 3.5F);
  EXPECT_FLOAT_EQ(FactorLocalNoHabitable(10, 10, 2), 1.15F / 2.15F);
  EXPECT_FLOAT_EQ(FactorLocalNoHabitable(1000, 1, 0), 0.28F);
  EXPECT_FLOAT_EQ(FactorLocalNoHabitable(0, 5, 0), 1);
  EXPECT_FLOAT_EQ(FactorLocalNoHabitable(10, 10, 99), FactorLocalNoHabitable(10, 10, 4));
}

TEST(FactorReduccionB, TablaDeLosDosCerramientosYLaVentilacion) {
  EXPECT_FLOAT_EQ(FactorReduccionB(100, 1, 100, 1, 0), 0.7F);
  EXPECT_FLOAT_EQ(FactorReduccionB(100, 1, 100, 1, 2), 0.7F);
  EXPECT_FLOAT_EQ(FactorReduccionB(100, 1, 100, 1, 3), 0.83F);
  EXPECT_FLOAT_EQ(FactorReduccionB(100, 0.3F, 100, 1, 0), 0.94F);
  EXPECT_FLOAT_EQ(FactorReduccionB(100, 1, 100, 0.3F, 4), 0.79F);
  EXPECT_FLOAT_EQ(FactorReduccionB(100, 0.9F, 100, 1, 0), 0.7F);  // menos de un 20 %: iguales
  EXPECT_NEAR(FactorReduccionB(112.5F, 1, 100, 1, 0), (0.7 + 0.65) / 2, 1e-5);
  EXPECT_NEAR(FactorReduccionB(162.5F, 1, 100, 1, 0), (0.65 + 0.56) / 2, 1e-5);
  EXPECT_FLOAT_EQ(FactorReduccionB(10, 1, 100, 1, 0), 0.94F);
  EXPECT_FLOAT_EQ(FactorReduccionB(300, 1, 100, 1, 0), 0.43F);
  EXPECT_FLOAT_EQ(FactorReduccionB(301, 1, 100, 1, 0), 0.39F);
  EXPECT_FLOAT_EQ(FactorReduccionB(100, 1, 0, 1, 0), 0.39F);  // sin exterior, la décima parte
  EXPECT_EQ(FactorReduccionB(0, 1, 0, 1, 0), 0.0F);
}

class Puentes : public testing::Test {
 protected:
  Puentes() {
    c.U_L_Puentes[puente_ventanas] = 0.1F;
    c.U_L_Puentes[puente_forjados] = 0.5F;
    c.U_L_Puentes[puente_cubiertas] = 0.3F;
    c.U_L_Puentes[puente_suelo_exterior] = 0.2F;
    c.U_L_Puentes[puente_esquina_saliente] = 0.15F;
    c.U_L_Puentes[puente_pilares] = 0.6F;
    c.U_L_Puentes[puente_suelo_terreno] = 0.45F;
    c.Long_pilares = {1, 2, 3, 4, 0, 0};
    c.Longitud_esquinas_sal_menos_ent = 5;
    c.Perimetro_forjados = 40;
    c.Perimetro_cubiertas = 30;
    c.Perimetro_suelo_ext = 8;
    c.Perimetro_suelo_terreno = 24;
    c.Perimetro_huecos = 50;
  }
  Construccion c;
};

TEST_F(Puentes, PorElModoLaZonaYLosPilares) {
  // 6 + 0,75 + (20 + 3,6 + 1,6 + 9) + 5.
  EXPECT_NEAR(ConductanciaPuentes(c, 0, "D3"), 45.95, 1e-4);
  EXPECT_NEAR(ConductanciaPuentes(c, 2, "D3"), 0.4 + 0.75 + 34.2 + 9.5, 1e-4);
  EXPECT_NEAR(ConductanciaPuentes(c, 3, "D3"), 0.4 + 0.75 + 34.2 + 5, 1e-4);
  EXPECT_NEAR(ConductanciaPuentes(c, 4, "D3"), 6 + 0.75 + 34.2 + 9.5, 1e-4);
  // 0,4 + 0,8 + (5,7 + 1,52 + 2,88) + 9,5 y el frente de forjado de la zona por 40 m.
  const double resto = 20.8;
  const std::pair<const char*, double> frentes[] = {
      {"A4", -0.05},  {"A2c", -0.05}, {"alfa3c", -0.05}, {"B4", -0.04}, {"B2c", -0.04},
      {"C2c", -0.03}, {"C1", -0.03},  {"D1", -0.02},     {"E1", -0.02}};
  for (const auto& [zona, psi] : frentes)
    EXPECT_NEAR(ConductanciaPuentes(c, 1, zona), resto + 40 * psi, 1e-4) << zona;
  c.Existencia_pilares = 1;
  for (const int modo : {4, 5}) {
    c.Def_Puentes_termicos = modo;
    EXPECT_NEAR(ConductanciaPuentes(c, 0, "D3"), 39.95, 1e-4);
  }
  c.Def_Puentes_termicos = 2;
  EXPECT_NEAR(ConductanciaPuentes(c, 0, "D3"), 45.95, 1e-4);
}

class RespuestaDe : public testing::Test {
 protected:
  RespuestaDe() {
    U.fill(0.5F);
    r.Suelo_habitable_m2 = 0;  // sin tabiques ni forjados
  }
  RespuestaZona Preparar() const { return PrepararRespuestaZona(edificio, U); }
  static float Suma(const RespuestaZona& z) {
    return std::accumulate(z.F1.begin(), z.F1.end(), 0.0F);
  }
  Edificio edificio;
  Recinto& r = edificio.GetRecinto(0);
  std::array<float, kRanuras> U{};
};

TEST_F(RespuestaDe, LoNoAcondicionadoVaPorSuFactorB) {
  r.Cubierta_techo_ventilado_m2[0] = 50;
  EXPECT_EQ(Preparar().K, 0.0F);  // sin cubierta exterior no toma parte
  r.Cubierta_buhardilla_ext_m2[0] = 50;
  EXPECT_FLOAT_EQ(Preparar().K, 50 * 0.5F * 0.5F);
  EXPECT_NEAR(Suma(Preparar()), -12.5F, 1e-3);
  // Cámara sanitaria: b de un espacio muy ventilado igual de aislado, 2,5/3,5.
  r.Cubierta_techo_ventilado_m2[0] = 0;
  r.Suelo_vacio_sanitario_m2[1] = 70;
  EXPECT_NEAR(Preparar().K, 70 * 0.5 * 2.5 / 3.5, 1e-3);
}

TEST_F(RespuestaDe, LosForjadosInterioresSonLoQueNoTieneSuelo) {
  r.Suelo_habitable_m2 = 100;
  EXPECT_NEAR(Preparar().F3[0], -1520.8361, 1e-2);
  EXPECT_NEAR(Preparar().F2[0], -429.9487, 1e-2);
  r.Suelo_al_terreno_m2[0] = 40;
  r.Suelo_adiabatico_m2[0] = 35;
  EXPECT_NEAR(Preparar().F3[0], -0.25 * 1520.8361, 1e-2);
  r.Suelo_ext_m2[0] = 60;
  EXPECT_EQ(Preparar().F3[0], 0.0F);
}

}  // namespace
}  // namespace novex
