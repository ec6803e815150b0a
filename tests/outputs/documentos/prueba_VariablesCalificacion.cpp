#include "outputs/documentos/VariablesCalificacion.h"

#include <gtest/gtest.h>

#include <map>

#include "outputs/CasoPrueba.h"

namespace novex {
namespace {

using Mapa = std::map<std::string, std::string>;

template <class Rellenar>
Mapa Variables(pruebas::CasoDePrueba& caso, Rellenar rellenar) {
  std::vector<VBLE> variables;
  rellenar(caso.MostrarCalificado(), variables);
  Mapa mapa;
  for (const VBLE& v : variables) EXPECT_TRUE(mapa.emplace(v.nombre, v.valor).second) << v.nombre;
  return mapa;
}

TEST(VariablesCalificacion, BandasNuevasYExistentes) {
  const std::array<float, 6> th = {4.7F, 7.65F, 11.83F, 123456, 41, 46.5F};
  const auto nuevas = TextosBandas(th, true);
  EXPECT_EQ(nuevas[0], "     A &lt; 4.70");
  EXPECT_EQ(nuevas[1], "4.70 &lt;= B &lt;7.65");
  EXPECT_EQ(nuevas[3], "11.83 &lt;= D &lt;123460.00");  // cinco cifras
  EXPECT_EQ(nuevas[4], "     E &gt;= 123460.00");
  EXPECT_EQ(nuevas[5], " ");
  EXPECT_EQ(nuevas[6], " ");
  const auto existentes = TextosBandas(th, false);
  EXPECT_EQ(existentes[5], "41.00 &lt;= F &lt;46.50");
  EXPECT_EQ(existentes[6], "     G &gt;= 46.50");
  const auto sinCompletar = TextosBandas({1, 2, 3, 4, 0, 0}, false);
  EXPECT_EQ(sinCompletar[4], "     E &gt;= 4.00");
  EXPECT_EQ(sinCompletar[6], " ");
}

TEST(VariablesCalificacion, SinEscalaEnVigorNoHayBandasDeCero) {
  for (const std::string& texto : TextosBandas({}, false)) EXPECT_EQ(texto, "( - )");
  const auto nuevas = TextosBandas({}, true);
  EXPECT_EQ(nuevas[4], "( - )");
  EXPECT_EQ(nuevas[5], " ");
  EXPECT_EQ(nuevas[6], " ");
}

class Indicadores : public testing::Test {
 protected:
  Indicadores() {
    ResultadosCaso& r = caso.Resultados();
    r.servicio[kRefrigeracion].porUnidad[kEmisiones][0] = 3;
    r.servicio[kRefrigeracion].porUnidad[kPrimariaNoRenovable][0] = 9;
    r.servicio[kACS].porUnidad[kEmisiones][0] = 5;
    r.servicio[kIluminacion].porUnidad[kEmisiones][0] = 2;
    r.demandaRefrigeracion = 7;
    r.total[kEmisiones] = 20;
    r.escala.referencia[static_cast<std::size_t>(Indicador::EmisionesACS)] = 4;
    for (auto& th : r.escala.th) th = {1, 2, 3, 4, 5, 6};
  }
  pruebas::CasoDePrueba caso;
};

TEST_F(Indicadores, ValoresIndicesYLetras) {
  caso.Poner(5, "D3", "Nuevo");
  const Mapa v = Variables(caso, VariablesIndicadores);
  EXPECT_EQ(v.at("EMI_REF_CO2"), "3.00");
  EXPECT_EQ(v.at("W__EMI_REF_CO2"), "D");
  EXPECT_EQ(v.at("I__EMI_REF_CO2"), "( - )");  // sin referencia
  EXPECT_EQ(v.at("I__EMI_ACS_CO2"), "1.25");
  EXPECT_EQ(v.at("I_EMI_CAL_CO2"), "");
  EXPECT_EQ(v.at("EMI_ILU_CO2"), "2.00");
  EXPECT_EQ(v.at("EMI_GL_CO2"), "20.00");
  EXPECT_EQ(v.at("CO2GL"), "20.00");
  EXPECT_EQ(v.at("DEMGLREF"), "7.00");
}

TEST_F(Indicadores, ViviendaSinRefrigeracionCalificada) {
  caso.Poner(0, "D1", "Nuevo");
  const Mapa v = Variables(caso, VariablesIndicadores);
  for (const char* nombre : {"EMI_REF_CO2", "DEM_GL_REF", "PRIM_REF", "W_PRIM_REF"})
    EXPECT_EQ(v.at(nombre), "( - )") << nombre;
  EXPECT_FALSE(v.contains("EMI_ILU_CO2"));
  EXPECT_FALSE(v.contains("W_ILU_REF"));
}

TEST_F(Indicadores, LaEscalaDelFrioQueNoSeCalificaNoSeEnsena) {
  caso.Poner(0, "D1", "Existente");
  const Mapa v = Variables(caso, VariablesEscalas);
  EXPECT_EQ(v.at("LIM_A_P4"), "( - )");
  EXPECT_EQ(v.at("MIM_G_M4"), "( - )");
  EXPECT_EQ(v.at("LIM_A_P3"), "     A &lt; 1.00");
}

TEST_F(Indicadores, UnaSimulacionLibreNoTieneLetras) {
  caso.Poner(0, "D1", "Nuevo");
  DatosGenerales g = caso.edificio->GetDatosGenerales();
  g.Tiposimulacion = "Simulacion";
  caso.edificio->SetDatosGenerales(g);
  const Mapa v = Variables(caso, VariablesIndicadores);
  for (const char* nombre : {"W_EMI_CAL_CO2", "W__EMI_ACS_CO2", "W_PRIM_CAL", "W_PRIM_REF"})
    EXPECT_EQ(v.at(nombre), "") << nombre;
  EXPECT_EQ(v.at("DEMGLREF"), "7.00");  // ni deja el frío fuera
}

TEST_F(Indicadores, LasSeriesDeEscalasSonDeSuIndicador) {
  caso.Poner(0, "D3", "Existente");
  auto& th = caso.Resultados().escala.th;
  const auto poner = [&](Indicador i, float t) { th[static_cast<std::size_t>(i)].fill(t); };
  poner(Indicador::EmisionesTotales, 10);
  poner(Indicador::EPriNoRTotales, 20);
  poner(Indicador::DemandaCalefaccion, 30);
  poner(Indicador::DemandaRefrigeracion, 40);
  const Mapa v = Variables(caso, VariablesEscalas);
  EXPECT_EQ(v.size(), 11U * 7U);
  const std::pair<const char*, const char*> esperadas[] = {
      {"MINGEPNR", "20.00"}, {"MINGCO2", "10.00"},  {"MIN_G_P1", "10.00"}, {"MIN_G_P2", "20.00"},
      {"MIN_G_P3", "30.00"}, {"MIN_G_P4", "40.00"}, {"LIM_G_M2", "10.00"}, {"MIM_G_M1", "20.00"},
      {"MIM_G_M2", "10.00"}, {"MIM_G_M3", "30.00"}, {"MIM_G_M4", "40.00"}};
  for (const auto& [nombre, t] : esperadas)
    EXPECT_EQ(v.at(nombre), std::string("     G &gt;= ") + t) << nombre;
  EXPECT_EQ(v.at("LIMAEPNR"), "     A &lt; 20.00");
  const Mapa m = Variables(caso, VariablesEscalasMejora);
  EXPECT_EQ(m.size(), 4U * 7U);
  EXPECT_EQ(m.at("LIM_A_M1"), "     A &lt; 20.00");
  EXPECT_EQ(m.at("MIN_G_M2"), "     G &gt;= 10.00");
}

}  // namespace
}  // namespace novex
