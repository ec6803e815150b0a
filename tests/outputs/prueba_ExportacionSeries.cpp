#include "outputs/ExportacionSeries.h"

#include <gtest/gtest.h>

#include <sstream>

#include "outputs/CasoPrueba.h"
#include "outputs/TextoTabla.h"

namespace novex {
namespace {

using pruebas::CasoDePrueba;

SerieMostrada Mostrada(const char* texto, float paso) {
  SerieMostrada s{texto, {"X", "ºC", ClaseSerie::Temperatura, std::vector<float>(kHorasAno)}};
  for (std::size_t i = 0; i < s.serie.valores.size(); ++i)
    s.serie.valores[i] = paso * static_cast<float>(i + 1);
  return s;
}

std::vector<std::string> Celdas(const std::string& linea) {
  std::vector<std::string> celdas;
  std::istringstream flujo(linea);
  for (std::string celda; std::getline(flujo, celda, ';');) celdas.push_back(celda);
  return celdas;
}

TEST(TablaNumerica, SeVuelveALeerDelTexto) {
  const std::vector<SerieMostrada> series = {Mostrada("Temp.seca TSE(ºC)", 0.5F),
                                             Mostrada("Demanda DCAL(kWh)", -0.125F)};
  const auto tabla = TablaNumerica(series, {});
  ASSERT_TRUE(tabla.valor);
  std::istringstream texto(TextoSeparado(*tabla.valor));
  std::string linea;
  std::getline(texto, linea);
  EXPECT_EQ(linea, "Conta;hora;día;mes;Temp.seca TSE(ºC);Demanda DCAL(kWh);");
  for (int h = 1; h <= kHorasAno; ++h) {
    ASSERT_TRUE(std::getline(texto, linea)) << h;
    ASSERT_EQ(linea.back(), ';');
    const auto celdas = Celdas(linea);
    ASSERT_EQ(celdas.size(), 6U);
    ASSERT_EQ(std::stoi(celdas[0]), h);
    ASSERT_EQ(std::stof(celdas[4]), 0.5F * static_cast<float>(h));
    ASSERT_EQ(std::stof(celdas[5]), -0.125F * static_cast<float>(h));
    if (h == 1417) {  // 1 h del 1 de marzo
      EXPECT_EQ(linea, "1417;1;1;3;708.500;-177.125;");
    }
  }
  EXPECT_EQ(linea, "8760;24;31;12;4380.000;-1095.000;");
  EXPECT_FALSE(std::getline(texto, linea));
}

TEST(TablaNumerica, PeriodosColumnasYLimite) {
  const std::vector<SerieMostrada> series(26, Mostrada("T", 1));
  EXPECT_FALSE(TablaNumerica(series, {}).valor);
  EXPECT_FALSE(TablaNumerica(series, {}).aviso.texto.empty());
  const auto veinticinco = std::span(series).first(25);
  const auto dia = TablaNumerica(veinticinco, {.tipo = TipoPeriodo::Diario, .mes = 12, .dia = 31},
                                 {.conta = true, .hora = false, .dia = true, .mes = false});
  ASSERT_TRUE(dia.valor);
  ASSERT_EQ(dia.valor->filas.size(), 24U);
  ASSERT_EQ(dia.valor->filas[23].size(), 27U);
  EXPECT_EQ(dia.valor->filas[23][0].texto, "24");
  EXPECT_EQ(dia.valor->filas[23][1].texto, "31");
  EXPECT_EQ(dia.valor->filas[23][2].texto, "8760.000");
  EXPECT_FALSE(TablaNumerica({}, {.tipo = TipoPeriodo::Diario, .mes = 4, .dia = 31}).valor);
}

TEST(GraficosSeries, UnaContraOtra) {
  const auto g = GraficoXY(Mostrada("X", 2), Mostrada("Y", 3),
                           {.tipo = TipoPeriodo::Diario, .mes = 1, .dia = 2});
  ASSERT_TRUE(g.valor);
  ASSERT_EQ(g.valor->x.size(), 24U);
  EXPECT_EQ(g.valor->x.front(), 50);  // hora 25
  EXPECT_EQ(g.valor->series[0].valores.front(), 75);
  EXPECT_EQ(g.valor->ejeX, "X");
  EXPECT_EQ(g.valor->ejeY, "Y");
}

TEST(GraficosSeries, CadaEjeTieneUnaUnidad) {
  const CasoDePrueba caso;
  const SeleccionEjes seleccion = {{"TSE", "FIE", "Ninguno", "TSL", "WE"},
                                   {"Ninguno", "DCAL", "TXX", "CV", ""}};
  const auto g = GraficoMas(*caso.edificio, *caso.resultado, seleccion, {});
  ASSERT_TRUE(g.valor);
  ASSERT_EQ(g.valor->izquierda.series.size(), 2U);
  EXPECT_EQ(g.valor->izquierda.series[1].nombre, "Temp.seca local TSL(ºC)");
  EXPECT_EQ(g.valor->izquierda.ejeY, "ºC");
  // Los Wh no van con los kWh.
  ASSERT_EQ(g.valor->derecha.series.size(), 1U);
  EXPECT_EQ(g.valor->derecha.ejeY, "kWh");
  ASSERT_EQ(g.valor->avisos.size(), 3U);
  const Mensaje unidades{"AVISO",
                         "En cada eje solo se representan variables con las mismas unidades"};
  EXPECT_EQ(g.valor->avisos[0], unidades);
  EXPECT_NE(g.valor->avisos[1].texto.find("TXX"), std::string::npos);
  EXPECT_EQ(g.valor->avisos[2], unidades);
}

}  // namespace
}  // namespace novex
