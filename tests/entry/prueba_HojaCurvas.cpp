#include "entry/HojaCurvas.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace novex {
namespace {

std::string Paginas(const char* tipo, const char* clase) {
  std::string texto;
  for (const PaginaCurvas& p : PaginasDeCurvas(tipo, clase)) {
    texto += std::string(p.familia) + ":";
    for (const GrupoCurvas& g : p.grupos) texto += " " + std::string(g.nombre);
    texto += ";";
  }
  return texto;
}

TEST(HojaCurvas, LasPaginasSonLasDelEquipoYSusServicios) {
  EXPECT_EQ(Paginas("ACS", "1 Caldera"), "Generadores: ren_F ren_T;");
  EXPECT_EQ(Paginas("Refrigeracion", "Equipo Split"),
            "EquiposAA: CapTotRef_T CapSenRef_T ConRef_T ConRef_F;");
  EXPECT_EQ(Paginas("Calefaccion+Refrigeracion", "1 BC aire-agua"),
            "EquiposAW: CapCal_T ConCal_T ConCal_F CapTotRef_T ConRef_T ConRef_F;");
  EXPECT_EQ(Paginas("ACS+Calefaccion", "1 BC aire-agua + 1 Caldera"),
            "EquiposAW: CapCal_T ConCal_T ConCal_F;Generadores: ren_F ren_T;");
  EXPECT_EQ(Paginas("Calefaccion", "Rend. estacional"), "");
}

float En(const LineaCurva& linea, float x) {
  const auto it = std::find_if(linea.puntos.begin(), linea.puntos.end(),
                               [x](const auto& p) { return std::abs(p.first - x) < 1e-4F; });
  if (it == linea.puntos.end()) {
    ADD_FAILURE() << "no llega a " << x;
    return 0;
  }
  return it->second;
}

TEST(HojaCurvas, LasLineasSonLasCurvasConSuParametro) {
  CurvasEquipo c;
  c.aaQ = {1, 0.1F, 0, 0.01F, 0, 0};  // 1 + 0,1 x + 0,01 y
  c.abQ = {2, 0, 0, 0, 0, 0};
  c.TeCambio = 3;
  const auto calor = LineasDeGrupo("CapCal_T", "EquiposAW", c);
  ASSERT_EQ(calor.size(), 4U);
  EXPECT_EQ(calor[1].rotulo, "Tws=45ºC");
  EXPECT_NEAR(En(calor[1], 4), 1 + 4.5 + 0.04, 1e-5);
  EXPECT_FLOAT_EQ(En(calor[1], 3), 2);  // en la de cambio vale la de debajo
  EXPECT_EQ(LineasDeGrupo("CapCal_T", "EquiposAA", c)[1].rotulo, "Ti=20ºC");
  EXPECT_EQ(LineasDeGrupo("CapTotRef_T", "EquiposAA", c)[2].rotulo, "Thi=19ºC");
  c.eR = {0, 0.1F, 0, 0.01F, 0, 0.001F, 0};  // 0,1 × 19 + 0,01 y + 0,001 z
  const auto sensible = LineasDeGrupo("CapSenRef_T", "EquiposAA", c);
  EXPECT_EQ(sensible[2].rotulo, "Ti=27ºC");
  EXPECT_NEAR(En(sensible[2], 35), 1.9 + 0.27 + 0.035, 1e-5);
  c.cR = {0.5F, 0.5F, 0, 0};
  const auto carga = LineasDeGrupo("ConRef_F", "EquiposAA", c);
  ASSERT_EQ(carga.size(), 1U);
  EXPECT_EQ(carga[0].rotulo, "");
  EXPECT_FLOAT_EQ(En(carga[0], 0), 0);  // sin carga no consume
  EXPECT_FLOAT_EQ(En(carga[0], 1), 1);
  EXPECT_TRUE(LineasDeGrupo("Otro", "EquiposAA", c).empty());
}

// En las condiciones nominales, con la curva total a 1, la potencia es la nominal.
TEST(HojaCurvas, LaPotenciaRealParteDeLasNominales) {
  CurvasEquipo c;
  c.aR = {1, 0, 0, 0, 0, 0};
  const PotenciaReal r = PotenciaEnCondiciones(5, 3.7F, c, 27, 19, 35);
  EXPECT_FLOAT_EQ(r.total, 5);
  EXPECT_NEAR(r.sensible, 3.7, 0.02);
  EXPECT_NEAR(r.razonNominal, 0.74, 1e-6);
  EXPECT_GT(r.tadp, 6);
  EXPECT_LT(r.tadp, 14.8);  // rocío del aire de 27 ºC con bulbo húmedo de 19 ºC
  // Con el aire más seco la batería condensa menos.
  EXPECT_GT(PotenciaEnCondiciones(5, 3.7F, c, 27, 17, 35).razon, r.razon);
  EXPECT_FLOAT_EQ(PotenciaEnCondiciones(0, 0, c, 27, 19, 35).total, 0);
}

}  // namespace
}  // namespace novex
