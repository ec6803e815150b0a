#include "outputs/TablaResultados.h"

#include <gtest/gtest.h>

#include "outputs/CasoPrueba.h"

namespace novex {
namespace {

std::vector<std::string> Columna(const Tabla& tabla, std::size_t i) {
  std::vector<std::string> textos;
  for (const auto& fila : tabla.filas) textos.push_back(fila.at(i).texto);
  return textos;
}

class TablasDeCaso : public testing::Test {
 protected:
  TablasDeCaso() { caso.Resultados().escala.letra.fill("A"); }
  pruebas::CasoDePrueba caso;
};

TEST_F(TablasDeCaso, LaIluminacionSoloEstaEnTerciario) {
  const std::vector<std::string> vivienda = {"Calefacción", "Refrigeración", "ACS", "Ventilación",
                                             "Total"};
  caso.Poner(2, "D3", "Nuevo");
  EXPECT_EQ(Columna(TablaServicios(caso.Mostrar()), 0), vivienda);
  caso.Poner(3, "D3", "Nuevo");
  EXPECT_EQ(Columna(TablaServicios(caso.Mostrar()), 0)[4], "Iluminación");
}

TEST_F(TablasDeCaso, ServiciosEnSusColumnas) {
  auto& r = caso.Resultados();
  r.demandaCalefaccion = 7;
  for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
    r.servicio[kCalefaccion].porUnidad[u][0] = static_cast<float>(u + 1);
  r.escala.letra[static_cast<std::size_t>(Indicador::DemandaCalefaccion)] = "B";
  r.escala.letra[static_cast<std::size_t>(Indicador::EPriNoRCalefaccion)] = "C";
  r.escala.letra[static_cast<std::size_t>(Indicador::EmisionesCalefaccion)] = "D";
  const Tabla tabla = TablaServicios(caso.Mostrar());
  std::vector<std::string> fila;
  for (const Celda& celda : tabla.filas[0]) fila.push_back(celda.texto);
  // Demanda, final, primaria total, renovable, no renovable y emisiones, con las letras que tienen.
  EXPECT_EQ(fila, (std::vector<std::string>{"Calefacción", "7.00", "B", "1.00", "2.00", "4.00",
                                            "3.00", "C", "5.00", "D"}));
  EXPECT_EQ(tabla.cabeceras.size(), fila.size());
}

TEST_F(TablasDeCaso, NotasDeLaZonaYDeLasHoras) {
  caso.Poner(0, "E1", "Nuevo");
  auto& r = caso.Resultados();
  EXPECT_EQ(TablaServicios(caso.Mostrar()).notas,
            (std::vector<std::string>{"No se contabiliza refrigeración por estar en zona E1"}));
  caso.Poner(0, "D3", "Nuevo");
  EXPECT_TRUE(TablaServicios(caso.Mostrar()).notas.empty());
  r.horasFueraCalefaccion = 30;
  r.horasFueraRefrigeracion = 10;
  r.horasOcupacion = 1000;
  EXPECT_EQ(TablaServicios(caso.Mostrar()).notas,
            (std::vector<std::string>{"Nº horas fuera consigna = 40 h lo que supone un 4.00 % "
                                      "de las horas de ocupación"}));
}

TEST_F(TablasDeCaso, VectoresConEnergia) {
  auto& r = caso.Resultados();
  r.servicio[kACS].finalPorVector[Indice(VectorEnergetico::GLP)][0] = 10;
  r.servicio[kCalefaccion].finalPorVector[Indice(VectorEnergetico::GLP)][0] = 5;
  // Uno que se anula entre servicios se muestra también.
  r.servicio[kACS].finalPorVector[Indice(VectorEnergetico::Electricidad)][0] = -3;
  r.servicio[kCalefaccion].finalPorVector[Indice(VectorEnergetico::Electricidad)][0] = 3;
  const Tabla tabla = TablaVectores(caso.Mostrar());
  EXPECT_EQ(Columna(tabla, 0), (std::vector<std::string>{"Electricidad", "GLP"}));
  EXPECT_EQ(Columna(tabla, 3), (std::vector<std::string>{"-3.00", "10.00"}));
  EXPECT_EQ(Columna(tabla, 2), (std::vector<std::string>{"", ""}));
  EXPECT_EQ(tabla.filas[1].back().numero, 15.0);
}

}  // namespace
}  // namespace novex
