#include "compliance/ResumenAnual.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "compliance/CoeficientesPaso.h"
#include "rating/EdificioPrueba.h"

namespace novex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

// Un año con consumo en dos meses. Enero: calefacción 40 de demanda y 50 de energía final. Julio:
// refrigeración 6 y 2, ACS 8 y 10, ventilación 3, iluminación 5.
std::unique_ptr<calculo> Ano() {
  auto caso = std::make_unique<calculo>();
  const auto poner = [&](Servicio s, std::size_t mes, float energiaFinal) {
    auto& unidades = caso->resultados.servicio[s].porUnidad;
    for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
      unidades[u][mes] = unidades[u][0] = energiaFinal * static_cast<float>(u + 1);
  };
  auto& demanda = caso->meses.demanda;
  demanda[kCalefaccion][1] = demanda[kCalefaccion][0] = -40;
  demanda[kRefrigeracion][7] = demanda[kRefrigeracion][0] = 6;
  demanda[kACS][7] = demanda[kACS][0] = 8;
  ResultadosCaso& r = caso->resultados;
  r.demandaCalefaccion = 40;
  r.demandaRefrigeracion = 6;
  r.demandaACS = 8;
  poner(kCalefaccion, 1, 50);
  poner(kRefrigeracion, 7, 2);
  poner(kACS, 7, 10);
  poner(kVentilacion, 7, 3);
  poner(kIluminacion, 7, 5);
  return caso;
}

void PonerTotales(calculo& caso, float energiaFinal) {
  for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
    caso.resultados.total[u] = energiaFinal * static_cast<float>(u + 1);
}

std::vector<std::string> Nombres(const Grafico& g) {
  std::vector<std::string> nombres;
  for (const SerieGrafico& s : g.series) nombres.push_back(s.nombre);
  return nombres;
}

TEST(ResumenAnual, LasLineasDelAno) {
  const auto caso = Ano();
  PonerTotales(*caso, 70);
  const ResumenAnual r = ResumirAno(*pruebas::EdificioDe100(3, "NO"), *caso);
  ASSERT_EQ(r.lineas.size(), 15U);
  EXPECT_EQ(r.lineas[0],
            "Demanda sensible por servicio (kWh/año):   Calef. 4000.00    Refrig. 600.00    "
            "ACS(neta) 800.00");
  EXPECT_EQ(r.lineas[2],
            "Energia Final por servicio (kWh/m2 año):  Calefaccion 50.00    Refrigeracion 2.00    "
            "ACS 10.00    Ventilacion 3.00    Iluminacion 5.00");
  EXPECT_EQ(r.lineas[3],
            "Energia Final Total: 70.00 (kWh/m2 año) que supone un total de 7000.00 (kWh/año)");
  EXPECT_EQ(r.lineas[12],
            "Eficiencia ACS = 80.00 (%)      Eficiencia Calefacción = 80.00 (%)     Eficiencia "
            "Refrigeración = 300.00 (%)");
  // 54 entre 70 y entre 140.
  EXPECT_EQ(r.lineas[13], "Eficiencia total = Demanda total / Energia final total = 0.77");
  EXPECT_NEAR(r.eficienciaPrimaria, 54.0 / 140, 1e-6);
  // Cada unidad lleva lo suyo: las emisiones son la quinta.
  EXPECT_THAT(r.lineas[11], HasSubstr("350.00 (kg CO2/m2 año) que supone un total de 35000.00"));
  // Sin energía no hay eficiencia.
  const auto vacio = std::make_unique<calculo>();
  vacio->resultados.demandaACS = 10;
  const ResumenAnual sin = ResumirAno(*pruebas::EdificioDe100(0, "NO"), *vacio);
  EXPECT_EQ(sin.eficiencia[kACS] + sin.eficienciaFinal + sin.eficienciaPrimaria, 0);
}

TEST(ResumenAnual, DondeNoSeCalificaLaRefrigeracionNoEstaEnLosTotales) {
  const auto caso = Ano();
  PonerTotales(*caso, 63);
  const auto edificio = pruebas::EdificioDe100(0, "NO");
  pruebas::PonerLugar(*edificio, "D1");
  const ResumenAnual r = ResumirAno(*edificio, *caso);
  EXPECT_NEAR(r.eficienciaFinal, 48.0 / 63, 1e-6);
  EXPECT_THAT(r.lineas, Contains("No se contabiliza refrigeración por estar en zona D1"));
  // Julio: 8 de demanda entre 10 de ACS y 3 de ventilación.
  const Grafico g = GraficoEficiencia(*edificio, *caso, TipoResultado::EnergiaFinal);
  EXPECT_NEAR(g.series.back().valores[6], 800.0 / 13, 1e-4);
}

TEST(GraficosResumen, UnaSeriePorServicioConSuSigno) {
  const auto caso = Ano();
  const auto vivienda = pruebas::EdificioDe100(0, "NO");
  const auto oficina = pruebas::EdificioDe100(3, "NO");
  const Grafico demanda = GraficoMensual(*vivienda, *caso, TipoResultado::Demanda);
  EXPECT_THAT(Nombres(demanda), ElementsAre("Calefacción", "Refrigeración", "ACS"));
  EXPECT_EQ(demanda.series[0].valores[0], 40);
  EXPECT_EQ(demanda.series[1].valores[6], 6);
  EXPECT_THAT(Nombres(GraficoMensual(*vivienda, *caso, TipoResultado::EnergiaFinal)),
              Not(Contains("Iluminación")));
  const Grafico emisiones = GraficoMensual(*oficina, *caso, TipoResultado::Emisiones);
  EXPECT_EQ(emisiones.series.back().valores[6], 25);
  // La eficiencia de un mes sin energia es cero.
  const Grafico g =
      GraficoEficiencia(*pruebas::EdificioDe100(3, "NO"), *caso, TipoResultado::PrimariaTotal);
  EXPECT_NEAR(g.series[0].valores[0], 40, 1e-4);
  EXPECT_EQ(g.series[0].valores[6], 0);
  // Julio: 14 de demanda entre 2 × (2 + 10 + 3 + 5) de energía primaria.
  EXPECT_NEAR(g.series.back().valores[6], 35, 1e-4);
}

TEST(CoeficientesPaso, CadaFilaLlevaSusFactoresEnElOrdenDeLasColumnas) {
  TablaFactores factores{};
  factores[static_cast<std::size_t>(FilaFactor::ElectricidadCanarias)] = {0.5F, 0.25F, 2, 2.25F};
  factores[static_cast<std::size_t>(FilaFactor::Biomasa_Pellet)] = {0.125F, 1, 0.5F, 1.5F};
  const Tabla tabla = TablaCoeficientesPaso(factores);
  const auto fila = [&](const std::string& nombre) {
    std::vector<std::string> textos;
    for (const auto& celdas : tabla.filas)
      if (celdas[0].texto == nombre)
        for (std::size_t i = 1; i < celdas.size(); ++i) textos.push_back(celdas[i].texto);
    return textos;
  };
  EXPECT_EQ(tabla.filas.size(), 14U);
  EXPECT_THAT(fila("ElectricidadCanarias"), ElementsAre("0.500", "0.250", "2.000", "2.250"));
  EXPECT_THAT(fila("ElectricidadBaleares"), ElementsAre("0.000", "0.000", "0.000", "0.000"));
  EXPECT_THAT(fila("Biomasa_Pellet"), ElementsAre("0.125", "1.000", "0.500", "1.500"));
  EXPECT_THAT(fila("MedioAmbiente"), ElementsAre("0.000", "1.000", "0.000", "1.000"));
}

}  // namespace
}  // namespace novex
