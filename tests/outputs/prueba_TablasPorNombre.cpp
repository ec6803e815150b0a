#include "outputs/TablasPorNombre.h"

#include <gtest/gtest.h>

#include <set>

#include "outputs/CasoPrueba.h"

namespace novex {
namespace {

TEST(TablasPorNombre, CadaNombreEsUnoYDaSuTabla) {
  pruebas::CasoDePrueba caso;
  caso.Poner(3, "D3", "Nuevo");
  const CasoCalculado mostrado = caso.Mostrar();
  std::set<std::string> vistos;
  for (const std::string& nombre : NombresTablas(*caso.edificio)) {
    EXPECT_TRUE(vistos.insert(nombre).second) << nombre;
    EXPECT_TRUE(TablasDeNombre(mostrado, {mostrado}, nombre)) << nombre;
  }
  for (const char* nombre : {"calificacion", "casos", "comparacion-final-ahorro",
                             "detalle-vectores", "detalle-demanda-huecos", "final-iluminacion"})
    EXPECT_TRUE(vistos.contains(nombre)) << nombre;
  EXPECT_FALSE(TablasDeNombre(mostrado, {mostrado}, "Final-acs"));
  // La página de la iluminación no está en una vivienda, ni tiene edificio de referencia.
  caso.Poner(0, "D3", "Nuevo");
  EXPECT_FALSE(TablasDeNombre(mostrado, {mostrado}, "final-iluminacion"));
  EXPECT_TRUE(TablasDeNombre(mostrado, {mostrado}, "referencia")->empty());
}

TEST(TablasPorNombre, LaDeUnGraficoTieneUnaFilaPorPosicion) {
  Grafico g;
  g.titulo = "Demanda";
  g.posiciones = {"Calef.", "Refrig."};
  g.ejeY = "kWh/m2";
  g.series = {{"Base", {1, 2}}, {"Mejora_1", {3}}};
  const Tabla tabla = TablaDeGrafico(g, "nota");
  EXPECT_EQ(tabla.cabeceras, (std::vector<std::string>{"kWh/m2", "Base", "Mejora_1"}));
  ASSERT_EQ(tabla.filas.size(), 2U);
  EXPECT_EQ(tabla.filas[0][2].numero, 3.0);
  EXPECT_EQ(tabla.filas[1][1].texto, "2.00");
  EXPECT_EQ(tabla.filas[1][2].texto, "");
  EXPECT_EQ(tabla.notas, std::vector<std::string>{"nota"});
}

}  // namespace
}  // namespace novex
