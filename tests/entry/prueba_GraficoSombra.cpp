#include "entry/GraficoSombra.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

constexpr std::size_t kDiciembre = 0, kMarzo = 3, kJunio = 6;

ObstaculosRemotos Obstaculos() {
  ObstaculosRemotos o;
  o.Sur_Altura = 20;
  o.Sur_Distancia = 30;
  o.SurEste_Altura = 5;  // pegado: su sombra no baja con el sol
  o.Este_Altura = 100;
  return o;
}

float Sombra(Sector fachada, std::size_t serie, std::size_t hora) {
  return CalcularGraficoSombra(fachada, Obstaculos(), 40, 10)[serie].porcentaje[hora];
}

// A 40° de latitud y mitad de la hora 12 el sol está en diciembre a 26,18° de altura y 8° del sur.
TEST(GraficoSombra, TapaElObstaculoDelRumboDelSol) {
  EXPECT_NEAR(Sombra(sur, kDiciembre, 12), 52.5, 0.3);  // 20 - 30 × 0,4915 = 5,25 m de 10
  EXPECT_NEAR(Sombra(sur, kDiciembre, 13), 52.5, 0.3);
  EXPECT_FLOAT_EQ(Sombra(sur, kDiciembre, 10), 50);  // a -36°, sureste
  EXPECT_FLOAT_EQ(Sombra(sur, kDiciembre, 15), 0);   // al suroeste no hay nada
  EXPECT_FLOAT_EQ(Sombra(sur, kDiciembre, 7), 0);    // de noche
  EXPECT_FLOAT_EQ(Sombra(sur, kJunio, 12), 50);      // a -23°, ya sureste
  EXPECT_FLOAT_EQ(Sombra(sur, kJunio, 8), 0);        // detrás de la fachada
  // En marzo a las 7 el sol está a -85°: el este no cuenta para la fachada sur.
  EXPECT_FLOAT_EQ(Sombra(sur, kMarzo, 7), 0);
  EXPECT_FLOAT_EQ(Sombra(este, kMarzo, 7), 100);
}

TEST(GraficoSombra, SinSombra) {
  for (const auto& grafico : {CalcularGraficoSombra(norte, Obstaculos(), 40, 10),
                              CalcularGraficoSombra(sur, ObstaculosRemotos{}, 40, 10),
                              CalcularGraficoSombra(sur, Obstaculos(), 40, 0)})
    for (std::size_t i = 0; i < grafico.size(); ++i) {
      EXPECT_EQ(grafico[i].mes, kMesesGraficoSombra[i]);
      for (const float porcentaje : grafico[i].porcentaje) EXPECT_EQ(porcentaje, 0.0F);
    }
}

TEST(GraficoSombra, TomaElSitioYLaAlturaDelCaso) {
  Edificio e;
  Localizacion l;
  l.latitud = 40;
  e.SetLocalizacion(l);
  e.SetObstaculosRemotos(Obstaculos());
  e.GetRecinto(0).Suelo_al_terreno_m2[0] = 50;  // 100 m2 útiles en dos plantas de 3 m
  EXPECT_NEAR(CalcularGraficoSombra(sur, e)[kDiciembre].porcentaje[12], 87.5, 0.5);
  const auto nota = [&](Sector fachada) {
    return NotaGraficoSombra(CalcularGraficoSombra(fachada, e), e);
  };
  EXPECT_TRUE(nota(sur).starts_with("Parte de la fachada"));
  EXPECT_TRUE(nota(oeste).starts_with("Ningún obstáculo"));
  e.GetRecinto(0).Suelo_habitable_m2 = 0;
  EXPECT_TRUE(nota(sur).starts_with("Sin volumen ni suelo habitable"));
}

}  // namespace
}  // namespace novex
