#include "entry/DimensionadoSistema.h"

#include <gtest/gtest.h>

#include <cmath>

#include "entry/BloqueSistema.h"
#include "entry/CreacionSistema.h"
#include "entry/EdificioSistemas.h"

namespace novex {
namespace {

using pruebas::EdificioD3;
using pruebas::ExpectNumeros;
using pruebas::PonerBloque;
using pruebas::PonerViviendas;

const char* const kC = "Centralizada/Bloque";
const char* const kI = "Individual/Vivienda";

Instalaciones Nuevo(const Edificio& edificio, const std::string& tipo, const std::string& clase,
                    const std::string& tipologia, const std::string& emisor = "",
                    const std::string& tipoBC1 = "") {
  const PeticionSistema p{tipo, clase, tipologia, "", emisor, tipoBC1, "", "", {}};
  return NuevoSistema(edificio, p, nullptr).instalaciones.at(0);
}

void ExpectCerca(double valor, double esperado) {
  EXPECT_NEAR(valor, esperado, 1e-5 * std::max(1.0, std::abs(esperado)));
}

TEST(PuntasZona, LetraYNumero) {
  for (const auto& [zona, calor, frio] : {std::tuple{"alfa1c", 10, 40},
                                          {"A3c", 35, 50},
                                          {"B4", 45, 60},
                                          {"C1", 50, 40},
                                          {"E1", 60, 40}}) {
    EXPECT_EQ(PuntaCalefaccionZona(zona), calor) << zona;
    EXPECT_EQ(PuntaRefrigeracionZona(zona), frio) << zona;
  }
}

// 100 m2 y 112 l: 5,5 kW de calor, 5 de frío (7,142857 totales) y 112 × 0,026125 = 2,926 de agua.
TEST(PotenciaDimensionado, PorServicio) {
  const CargasPunta c = CargasPuntaDe(*EdificioD3(0, 100, 112), kI);
  ExpectCerca(PotenciaDimensionado(TipoSistema::Calefaccion, c), 5.5);
  ExpectCerca(PotenciaDimensionado(TipoSistema::Refrigeracion, c), 7.142857);
  ExpectCerca(PotenciaDimensionado(TipoSistema::CaleRefri, c), 7.142857);
  ExpectCerca(PotenciaDimensionado(TipoSistema::ACS, c), 2.926);
  ExpectCerca(PotenciaDimensionado(TipoSistema::ACSCalefaccion, c), 8.426);
}

TEST(CargasPunta, SeRepartenEntreViviendasOSumanElBloque) {
  auto edificio = EdificioD3(1, 500, 560);
  PonerViviendas(*edificio, 3, 2);
  PonerBloque(*edificio, 7);
  ExpectCerca(CargasPuntaDe(*edificio, kI).calefaccion, 5.5);  // 27,5 / 5
  ExpectCerca(CargasPuntaDe(*edificio, kI).acs, 2.926);        // 14,63 / 5
  ExpectCerca(CargasPuntaDe(*edificio, kC).calefaccion, 27.5);
  edificio = EdificioD3(2, 100, 112);
  PonerBloque(*edificio, 10);
  ExpectCerca(CargasPuntaDe(*edificio, kI).refrigeracion, 5);
  ExpectCerca(CargasPuntaDe(*edificio, kC).refrigeracion, 50);
}

// 5,5 kW: 19800/20,9 = 947,368 l/h con 5 °C; 19800/62,7 = 315,789 con 15; 19800/83,6 = 236,842 con
// 20. Consumo de la bomba 5,5 / 3; altura 0,12 √100 + 2.
TEST(DimensionarBloque, CalderaPorEmisorYModo) {
  struct Caso {
    const char *modo, *emisor;
    double TimpCalor, saltoGenerador, saltoZona, GEN1, SBZ, SaltoPVent;
  };
  const Caso casos[] = {
      {"Nuevo", "", 50, 15, 5, 315.7895, 947.3684, 125},
      {"Nuevo", "Radiadores", 60, 15, 15, 315.7895, 315.7895, 125},
      {"Existente", "Radiadores + Sist.Vent.", 70, 20, 20, 236.8421, 236.8421, 125},
      {"Existente", "Conductos + Sist.Vent.", 50, 20, 5, 236.8421, 947.3684, 250},
      {"Nuevo", "Suelo radiante", 40, 15, 5, 315.7895, 947.3684, 125}};
  for (const Caso& c : casos) {
    SCOPED_TRACE(std::string(c.modo) + " " + c.emisor);
    const auto edificio = EdificioD3(0, 100, 112, c.modo);
    const Instalaciones b = Nuevo(*edificio, "Calefaccion", "1 Caldera", kI, c.emisor);
    ExpectNumeros({b.TimpCalor, b.saltoGenerador, b.GEN1.DT, b.saltoZona, b.GEN1.Caudal,
                   b.SBZ.Caudal, b.SaltoPVent},
                  {c.TimpCalor, c.saltoGenerador, c.saltoGenerador, c.saltoZona, c.GEN1, c.SBZ,
                   c.SaltoPVent});
    ExpectNumeros({b.QcalorCaldera1, b.WeCalor1, b.SBZ.P, b.GEN2.P, b.CaudalVent, b.DEP.Caudal},
                  {16, 1.833333, 3.2, 2, 1375, 0});
    EXPECT_EQ(b.CombCalor1 + b.Distribucion, "GasNaturalCon colector");
  }
}

TEST(DimensionarBloque, BombasDeCalorPorAgua) {
  const auto edificio = EdificioD3(0, 100, 112, "Existente");
  Instalaciones b = Nuevo(*edificio, "Calefaccion", "1 BC aire-agua + 1 Caldera", kI);
  // 0,4 × 5,5, su tercio, y 0,12 √50 + 2.
  ExpectNumeros({b.QcalorBC1, b.WeCalor1, b.SBZ.P, b.QcalorCaldera2, b.saltoGenerador},
                {2.2, 0.733333, 2.848528, 16, 5});
  b = Nuevo(*edificio, "Calefaccion+Refrigeracion", "1 BC aire-agua", kI, "", "Partida");
  ExpectNumeros({b.Distanciaext_int, b.WeCalor1, b.RendFrioEst}, {10, 2.857143, 3.6});
  EXPECT_EQ(Nuevo(*edificio, "Calefaccion", "1 BC aire-agua", kI).Distanciaext_int, 1);
}

// 70 m2: frío 3,5 / 0,7 = 5 kW, calor 3,85. Unidades: parte entera de 0,5 × 5 + 1.
TEST(DimensionarBloque, EquiposPorRefrigerante) {
  const auto edificio = EdificioD3(0, 70, 112);
  for (const auto& [clase, distancia] :
       {std::pair{"Equipo de Ventana", 1.0}, std::pair{"Equipo Split", 4.0}}) {
    const Instalaciones b = Nuevo(*edificio, "Calefaccion+Refrigeracion", clase, kI);
    EXPECT_EQ(b.NEquipos, 3);
    EXPECT_EQ(b.Emisor, "Unid.Interior");
    ExpectNumeros(
        {b.Distanciaext_int, b.QcalorBC1, b.WeCalor1, b.QFrioSen1, b.QFrioTot1, b.WeFrio1},
        {distancia, 2, 1, 1.5, 2, 0.9});
  }
  const Instalaciones b = Nuevo(*edificio, "Refrigeracion", "Rooftop", kI);
  ExpectNumeros({b.QcalorBC1, b.WeCalor1, b.QFrioTot1, b.QFrioSen1, b.WeFrio1, b.Distanciaext_int,
                 b.RendFrioEst},
                {1.5, 0.6, 1.5, 1.05, 0.6, 0, 3});
  EXPECT_EQ(b.Emisor, "Sist.Vent.");
}

// 500 m2 entre 5 viviendas: 25 / 5 / 0,7 kW.
TEST(DimensionarBloque, UnEquipoPorVivienda) {
  auto edificio = EdificioD3(1, 500, 560);
  PonerViviendas(*edificio, 3, 2);
  const char* const tipo = "Calefaccion+Refrigeracion";
  for (const auto& [clase, distancia] :
       {std::pair{"Equipo Conductos", 10.0}, std::pair{"Equipo MultiSplit", 25.0},
        std::pair{"Caudal refrigerante variable", 25.0}, std::pair{"1 BC aire-agua", 1.0}}) {
    const Instalaciones b = Nuevo(*edificio, tipo, clase, kI);
    EXPECT_EQ(b.NEquipos, 5) << clase;
    ExpectNumeros({b.Distanciaext_int, b.QFrioTot1}, {distancia, 7.142857});
  }
  EXPECT_EQ(Nuevo(*edificio, tipo, "Rend. estacional (agua)", kI).NEquipos, 1);
  EXPECT_EQ(Nuevo(*edificio, tipo, "1 BC aire-agua", kC).NEquipos, 1);
}

// Depósito de 112 l: r = ∛(0,112 × 0,07961783) = 0,207368 m, UA = 1,01 × 31,4 r²; serpentín
// −0,0051 × 1,2544 + 0,3569 × 1,12 + 0,2701; caudal 10533,6 / (4,18 × 20).
TEST(DimensionarBloque, CalderaDeAguaCaliente) {
  const Instalaciones b = Nuevo(*EdificioD3(0, 100, 112), "ACS", "1 Caldera", kI);
  EXPECT_NEAR(b.UA_deposito, 1.36375, 1e-4);
  ExpectNumeros({b.Volumen, b.AintermbD, b.AintermbD2, b.Long_tuberias, b.TaltaD, b.TbajaD},
                {112, 0.6634306, 0.6634306, 30, 60, 45});
  ExpectNumeros({b.TimpCalor, b.GEN1.Caudal, b.DEP.Caudal, b.INT.Caudal, b.RET.Caudal},
                {60, 126, 63, 126, 250});
  EXPECT_EQ(b.Distribucion, "Intercamb+Depósito");
  EXPECT_EQ(b.Alimentacion4, "Alimentación agua red");
}

// 8,426 kW: un tercio de consumo y 30333,6 / 20,9 l/h.
TEST(DimensionarBloque, BombaDeCalorConDeposito) {
  const Instalaciones b = Nuevo(*EdificioD3(0, 100, 112), "ACS+Calefaccion", "1 BC aire-agua", kI);
  EXPECT_EQ(b.Distribucion, "Depósito");
  ExpectNumeros({b.TaltaD, b.TimpCalor, b.WeCalor1, b.GEN1.Caudal, b.DEP.Caudal, b.INT.Caudal},
                {53, 55, 2.808667, 1451.3684, 725.6842, 725.6842});
}

// Bloque de 40 viviendas: 112 × 40 / 2 l; 3 √4000 m; retorno 3600 × 189,7367 × 0,2 × 0,001 × 30 ×
// 0,1196172 l/h.
TEST(DimensionarBloque, AguaCalienteDeVariasViviendas) {
  auto edificio = EdificioD3(2, 100, 112);
  PonerBloque(*edificio, 40);
  Instalaciones b = Nuevo(*edificio, "ACS", "1 Caldera", kC);
  EXPECT_NEAR(b.RET.Caudal, 490.228, 0.01);
  ExpectNumeros({b.Volumen, b.Long_tuberias, b.QcalorCaldera1, b.QApoyoEquipo, b.SBZ.P},
                {2240, 189.73666, 117.04, 3, 3.2});
  EXPECT_EQ(Nuevo(*edificio, "ACS", "1 Caldera", kI).Volumen, 112);
  edificio = EdificioD3(1, 500, 560);
  PonerViviendas(*edificio, 5, 0);
  EXPECT_EQ(Nuevo(*edificio, "ACS", "1 Caldera", kC).Volumen, 280);
  b = Nuevo(*edificio, "ACS", "1 Termo electrico", kI);
  // 3 √500 / 5 = 13,4 m, que no llega al mínimo.
  ExpectNumeros({b.Volumen, b.Long_tuberias, b.QApoyoEquipo}, {112, 15, 2});
}

TEST(DimensionarBloque, SinViviendasNiAreaNiConsumoNoHayInfinitos) {
  auto edificio = EdificioD3(1, 0, 0);
  PonerViviendas(*edificio, 0, 0);
  for (const float area : {0.0F, 100.0F}) {
    edificio->GetRecinto(0).Suelo_habitable_m2 = area;
    for (const char* clase : {"1 BC aire-agua", "Equipo de Ventana", "Equipo MultiSplit"}) {
      const Instalaciones b = Nuevo(*edificio, "ACS+Calefaccion+Refrigeracion", clase, kI);
      for (const float x : pruebas::Numeros(b)) EXPECT_TRUE(std::isfinite(x) && x >= 0);
      EXPECT_EQ(b.GEN1.Caudal, 0);
      EXPECT_EQ(b.Volumen, 0);
      EXPECT_EQ(b.AintermbD, 0);
      EXPECT_EQ(b.NEquipos, 1);
    }
  }
  EXPECT_EQ(AreaSerpentin(1e5), 0);
  EXPECT_EQ(CaudalDeAgua(10, 0), 0);
}

}  // namespace
}  // namespace novex
