#include "outputs/ComparacionCasos.h"

#include <gtest/gtest.h>

#include "outputs/AnalisisTecnico.h"
#include "outputs/CasoPrueba.h"
#include "outputs/TablaObjetoReferencia.h"

namespace novex {
namespace {

using pruebas::FilaDe;
using pruebas::Textos;

// La base y una mejora que gasta menos en calefacción y nada en agua caliente, como la base.
class CasosTest : public testing::Test {
 protected:
  CasosTest() {
    for (auto* c : {&base, &mejora}) {
      c->Poner(3, "D3", "Existente");
      c->edificio->GetRecinto(0).Suelo_habitable_m2 = 50;
      for (auto& th : c->Resultados().escala.th) th = {4, 6.5F, 10, 13, 16, 20};
    }
    Llenar(base, 8);
    Llenar(mejora, 6);
  }
  static void Llenar(pruebas::CasoDePrueba& c, float calefaccion) {
    ResultadosCaso& r = c.Resultados();
    r.demandaCalefaccion = 2 * calefaccion;
    r.demandaRefrigeracion = 5;
    for (std::size_t u = 0; u < kUnidadesEnergia; ++u) {
      r.servicio[kCalefaccion].porUnidad[u][0] = calefaccion;
      r.servicio[kRefrigeracion].porUnidad[u][0] = 12;
      r.total[u] = calefaccion + 12;
    }
  }
  std::vector<CasoCalculado> Casos() {
    std::vector<CasoCalculado> casos = {base.MostrarCalificado(), mejora.MostrarCalificado()};
    casos[1].nombre = "Mejora_1";
    return casos;
  }
  void PonerZona(int uso, const std::string& zona) {
    base.Poner(uso, zona, "Existente");
    mejora.Poner(uso, zona, "Existente");
  }
  pruebas::CasoDePrueba base, mejora;
};

TEST_F(CasosTest, GraficosYLetras) {
  const auto graficos = CompararCasos(Casos(), kEmisiones, TipoValor::Absoluto);
  ASSERT_EQ(graficos.size(), 6U);
  const GraficoComparacion& total = graficos.back();
  EXPECT_EQ(total.grafico.titulo, "Emisiones Totales");
  EXPECT_EQ(total.grafico.ejeY, "kgCO2/m2año");
  EXPECT_EQ(total.grafico.posiciones, (Textos{"Actual", "Mejora_1"}));
  EXPECT_EQ(total.grafico.series.at(0).valores, (std::vector<double>{20, 18}));
  EXPECT_EQ(total.LineaLetras(), "Actual: G   Mejora_1: F");
  EXPECT_EQ(graficos[0].LineaLetras(), "Actual: C   Mejora_1: B");
  EXPECT_TRUE(graficos[3].letras.empty());  // la ventilación no se califica
  EXPECT_EQ(CompararCasos(Casos(), kPrimariaNoRenovable, TipoValor::Absoluto)[0].grafico.titulo,
            "E.primaria no renov.Calef.");
  EXPECT_EQ(CompararCasos(Casos(), kFinal, TipoValor::Absoluto)[0].grafico.titulo,
            "Energía final Calefacción");
  EXPECT_TRUE(CompararCasos({}, kFinal, TipoValor::Absoluto).empty());
  const auto ahorros = CompararCasos(Casos(), kFinal, TipoValor::Ahorro);
  EXPECT_EQ(ahorros[0].grafico.ejeY, "Porcentaje ahorro");
  EXPECT_EQ(ahorros[0].grafico.series[0].valores, (std::vector<double>{0, 25}));
  // Sin base no hay ahorro.
  EXPECT_EQ(ahorros[2].grafico.series[0].valores, (std::vector<double>{0, 0}));
  EXPECT_TRUE(ahorros[0].letras.empty());
  // En vivienda no hay gráfico de iluminación.
  PonerZona(0, "D3");
  EXPECT_EQ(CompararCasos(Casos(), kFinal, TipoValor::Ahorro).size(), 5U);
}

TEST_F(CasosTest, TablaDeLosCasosDeMejora) {
  base.resultado->meses.iluminacion[1] = 100;  // 2 kWh/m2
  const auto tablas = TablasAnalisisTecnico(Casos());
  EXPECT_EQ(tablas[0].cabeceras[0], "  (kWh/m2 año)");
  EXPECT_EQ(tablas[1].cabeceras[0], "  (kgCO2/m2 año)");
  EXPECT_EQ(tablas[0].cabeceras[12], "Total %");
  EXPECT_EQ(tablas[1].cabeceras[12], "Total Cali,%");
  EXPECT_EQ(FilaDe(tablas[0], 0), (Textos{"base", "8.00", "0.00", "12.00", "0.00", "0.00", "",
                                          "0.00", "", "0.00", "", "20.00", "0.00"}));
  // La letra va sola donde la base no da ahorro.
  EXPECT_EQ(FilaDe(tablas[1], 1), (Textos{"Mejora_1", "6.00", "B,25.00", "12.00", "D,0.00", "0.00",
                                          "A", "0.00", "A", "0.00", "", "18.00", "F,10.00"}));
  // 16 + 5 + 2 de la base y 12 + 5 de la mejora.
  EXPECT_EQ(FilaDe(tablas[3], 0)[11], "23.00");
  EXPECT_EQ(FilaDe(tablas[3], 1), (Textos{"Mejora_1", "12.00", "D,25.00", "5.00", "B,0.00", "0.00",
                                          "", "0.00", "100.00", "0.00", "", "17.00", "26.09"}));
}

TEST_F(CasosTest, SinRefrigeracionEnLaTablaDeMejoras) {
  PonerZona(0, "E1");
  const auto tablas = TablasAnalisisTecnico(Casos());
  for (const Tabla& tabla : tablas) {
    EXPECT_EQ(FilaDe(tabla, 1)[3], "( - )");
    EXPECT_EQ(FilaDe(tabla, 1)[4], "( - )");
  }
  EXPECT_EQ(FilaDe(tablas[3], 1)[11], "12.00");
  for (auto* c : {&base, &mejora}) c->PonerSimulacionLibre();
  EXPECT_EQ(FilaDe(TablasAnalisisTecnico(Casos())[1], 1)[3], "12.00");
}

TEST_F(CasosTest, ObjetoYReferencia) {
  EscalaCaso& escala = base.Resultados().escala;
  escala.referencia[static_cast<std::size_t>(Indicador::DemandaCalefaccion)] = 10;
  escala.referencia[static_cast<std::size_t>(Indicador::EmisionesCalefaccion)] = 4;
  escala.referencia[static_cast<std::size_t>(Indicador::EmisionesTotales)] = 99;
  escala.totalReferenciaEmisiones = 16;
  escala.DemandaACS_solar_minima = 3;
  escala.iluminacionReferencia = 5;
  base.resultado->meses.iluminacion[12] = 200;  // 4 kWh/m2
  base.AnadirSistema("Calefaccion");
  const Tabla tabla =
      TablaObjetoReferencia(base.MostrarCalificado(), UnidadesReferencia::Totales).value();
  ASSERT_EQ(tabla.filas.size(), 17U);
  EXPECT_EQ(FilaDe(tabla, 0),
            (Textos{"Demanda calefacción (kWh)", "800.00", "500.00", "1.60", "F"}));
  EXPECT_EQ(FilaDe(tabla, 2), (Textos{"Demanda ACS (kWh)", "0.00", "150.00", "0.00", ""}));
  EXPECT_EQ(FilaDe(tabla, 3),
            (Textos{"Energía iluminación (kWh)", "200.00", "250.00", "0.80", ""}));
  EXPECT_EQ(FilaDe(tabla, 5),
            (Textos{"Emisiones Calefacción (kgCO2)", "400.00", "200.00", "2.00", "C"}));
  // Sin referencia no hay índice; sin equipos no hay letra.
  EXPECT_EQ(FilaDe(tabla, 6), (Textos{"Emisiones Refrigeración (kgCO2)", "600.00", "0.00", "",
                                      "No existe equipo Refri."}));
  EXPECT_EQ(FilaDe(tabla, 7)[4], "No existe equipo ACS");
  EXPECT_EQ(FilaDe(tabla, 10),
            (Textos{"Emisiones Totales (kgCO2)", "1000.00", "800.00", "1.25", "G"}));
  EXPECT_EQ(tabla.notas.size(), 1U);
  const Tabla porM2 =
      TablaObjetoReferencia(base.MostrarCalificado(), UnidadesReferencia::PorM2).value();
  EXPECT_EQ(FilaDe(porM2, 0),
            (Textos{"Demanda calefacción (kWh/m2)", "16.00", "10.00", "1.60", "F"}));
  EXPECT_EQ(FilaDe(porM2, 4)[0], "Energía ventilación (kWh)");
  EXPECT_EQ(FilaDe(porM2, 16)[0], "* Energia primaria no renovable Totales (kWh/m2)");
  PonerZona(0, "D3");
  EXPECT_FALSE(
      TablaObjetoReferencia(base.MostrarCalificado(), UnidadesReferencia::PorM2).has_value());
}

// Una mejora sola no es la base de nada.
TEST_F(CasosTest, SinLaBaseNoHayConQueComparar) {
  const std::vector<CasoCalculado> sola = {Casos()[1]};
  const auto ahorros = CompararCasos(sola, kEmisiones, TipoValor::Ahorro);
  EXPECT_EQ(ahorros.back().grafico.posiciones, Textos{"Mejora_1"});
  EXPECT_EQ(ahorros.back().LineaLetras(), "Mejora_1: F");
  const Tabla emisiones = TablasAnalisisTecnico(sola)[1];
  EXPECT_EQ(FilaDe(emisiones, 0)[0], "Mejora_1");
  EXPECT_EQ(FilaDe(emisiones, 0)[2], "B");
}

}  // namespace
}  // namespace novex
