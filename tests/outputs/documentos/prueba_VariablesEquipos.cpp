#include "outputs/documentos/VariablesEquipos.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "outputs/CasoPrueba.h"
#include "outputs/documentos/ConsumosServicio.h"

namespace novex {
namespace {

using testing::ElementsAre;
using testing::FieldsAre;
using testing::IsSupersetOf;

// Bomba de calor con caldera de biomasa para los dos servicios de calor.
class Conjunto : public testing::Test {
 protected:
  Conjunto() {
    Instalaciones& i =
        caso.AnadirSistema("ACS+Calefaccion", "1 BC aire-agua + 1 Caldera", "Sala <b>", 2);
    i.QcalorBC1 = 10;
    i.WeCalor1 = 4;
    i.QcalorCaldera2 = 24;
    i.RendCalor2 = 0.92F;
    i.TipoGenerador2 = "Biomasa";
    i.CombCalorBio2 = "Biomasa_Pellet";
    i.CombCalor2 = "GasNatural";
    SumasBloque& s = caso.resultado->sumasBloques[0];
    s.dado[0] = {1000, 3000, 0};
    s.consumo[0] = {400, 1000, 0};
    s.dado[1] = {0, 800, 0};
    s.consumo[1] = {0, 1000, 0};
    s.ambiente = {600, 2000, 0};
    s.auxiliares = {10, 50, 0};
  }
  pruebas::CasoDePrueba caso;
};

TEST_F(Conjunto, LosDosGeneradoresSonDosFilasPorServicio) {
  NOVEX_TO_MODELOCERTIFICADO modelo;
  VariablesEquipos(caso.Mostrar(), FormaRendimiento::TantoPorCiento, modelo);
  ASSERT_EQ(modelo.equiposCalefaccion.size(), 2U);
  ASSERT_EQ(modelo.equiposACS.size(), 2U);
  EXPECT_TRUE(modelo.equiposRefrigeracion.empty());
  EXPECT_THAT(modelo.equiposCalefaccion[0], FieldsAre("Sala &lt;b&gt;", "2x) BC aire-agua", "20.00",
                                                      "250.00", "300.00", "Electricidad"));
  EXPECT_THAT(modelo.equiposCalefaccion[1], FieldsAre("Sala &lt;b&gt;", "2x) Caldera", "48.00",
                                                      "92.00", "80.00", "Biomasa_Pellet"));
  // La caldera no ha hecho agua caliente: no tiene rendimiento del año en ella.
  EXPECT_EQ(modelo.equiposACS[0].rendimientoEstacional, "250.00");
  EXPECT_EQ(modelo.equiposACS[1].rendimientoEstacional, "Definido por usuario");
  // 2 por 10 y 2 por 24.
  EXPECT_THAT(modelo.variables,
              IsSupersetOf({VBLE{"TOTALPOTCAL", "68.00"}, VBLE{"POTNOMCALEF", "68.00"},
                            VBLE{"POTNOMREFRIG", "0.00"}}));

  NOVEX_TO_MODELOCERTIFICADO razones;
  VariablesEquipos(caso.Mostrar(), FormaRendimiento::Razon, razones);
  EXPECT_EQ(razones.equiposCalefaccion[1].rendimientoNominal, "0.92");
  EXPECT_EQ(razones.equiposCalefaccion[1].rendimientoEstacional, "0.80");
}

TEST_F(Conjunto, LosConsumosVanPorVectorConSusBombas) {
  caso.resultado->meses.ventilacion[0] = 123.456F;
  caso.PonerFinal(kACS, VectorEnergetico::Energiasolartermica, 700);
  NOVEX_TO_MODELOCERTIFICADO modelo;
  ListaConsumos(caso.Mostrar(), modelo);
  EXPECT_THAT(
      modelo.consumos,
      ElementsAre(FieldsAre("ELECTRICIDAD", "2x) BC aire-agua", "CAL", "1050.00"),
                  FieldsAre("MEDIOAMBIENTE", "2x) BC aire-agua", "CAL", "2000.00"),
                  FieldsAre("BIOMASA", "2x) Caldera", "CAL", "1000.00"),
                  FieldsAre("ELECTRICIDAD", "2x) BC aire-agua", "ACS", "410.00"),
                  FieldsAre("MEDIOAMBIENTE", "2x) BC aire-agua", "ACS", "600.00"),
                  FieldsAre("BIOMASA", "2x) Caldera", "ACS", "0.00"),
                  FieldsAre("MEDIOAMBIENTE", "Inst.solar termica", "ACS", "700.00"),
                  FieldsAre("ELECTRICIDAD", "EQUIPO EXCLUSIVO VENTILACION", "VEN", "123.46")));
}

TEST(Equipos, CadaClaseTieneSuPotenciaYSuRendimiento) {
  struct Esperado {
    const char* tipo;
    const char* seleccion;
    Servicio servicio;
    const char* etiqueta;
    float potencia, rendimiento;
  };
  const Esperado clases[] = {
      {"ACS", "1 Calentador", kACS, "3x) Calentador", 60, 0.9F},
      {"ACS", "1 BC aire-agua dedicada", kACS, "3x) BC aire-agua dedicada", 36, 2.9F},
      {"ACS", "1 Termo electrico", kACS, "3x) Termo electrico", 6, 1},
      {"ACS+Calefaccion", "1 Caldera Mixta", kCalefaccion, "3x) Caldera Mixta", 60, 0.9F},
      {"Calefaccion", "Radiadores eléctricos", kCalefaccion, "3x) Radiadores eléctricos", 15, 1},
      {"Calefaccion", "Rooftop", kCalefaccion, "3x) Rooftop", 36, 3},
      {"Calefaccion+Refrigeracion", "Equipo Split", kRefrigeracion, "3x) Equipo Split", 24, 4},
      {"Refrigeracion", "Rend. estacional (agua)", kRefrigeracion, "3x) Rend. estacional (agua)", 0,
       2.5F},
      {"ACS+Calefaccion+Refrigeracion", "Rend. estacional conocido", kACS, "3x) Rend. estacional",
       0, 0.7F}};
  for (const Esperado& e : clases) {
    pruebas::CasoDePrueba caso;
    Instalaciones& i = caso.AnadirSistema(e.tipo, e.seleccion, "U", 3);
    i.QcalorCaldera1 = 20;
    i.RendCalor1 = 0.9F;
    i.QcalorBC1 = 12;
    i.WeCalor1 = 4;
    i.SCOP = 2.9F;
    i.QApoyoEquipo = 2;
    i.RadiadorElectrico = 5;
    i.QFrioTot1 = 8;
    i.WeFrio1 = 2;
    i.RendACSEst = 0.7F;
    i.RendCalorEst = 0.8F;
    i.RendFrioEst = 2.5F;
    const auto generadores = GeneradoresDeServicio(caso.Mostrar(), e.servicio);
    ASSERT_EQ(generadores.size(), 1U) << e.seleccion;
    EXPECT_EQ(generadores[0].Etiqueta(), e.etiqueta);
    EXPECT_FLOAT_EQ(generadores[0].potencia, e.potencia) << e.seleccion;
    EXPECT_FLOAT_EQ(generadores[0].rendimientoNominal, e.rendimiento) << e.seleccion;
    EXPECT_FALSE(generadores[0].rendimientoEstacional.has_value());
  }
}

TEST(Equipos, ElEquipoPorDefectoVaElUltimo) {
  pruebas::CasoDePrueba caso;
  caso.Poner(0, "D3", "Nuevo");
  caso.AnadirSistema("Calefaccion", "1 Caldera", "U", 1);
  caso.resultado->meses.defecto[kCalefaccion][0] = 500;
  caso.Resultados().defecto.rendimiento[kCalefaccion] = 0.92F;
  // Sin "SI" nada se le carga al servicio.
  EXPECT_EQ(GeneradoresDeServicio(caso.Mostrar(), kCalefaccion).size(), 1U);
  caso.Generales([](DatosGenerales& g) { g.Equipos_Defecto = "SI"; });
  NOVEX_TO_MODELOCERTIFICADO modelo;
  VariablesEquipos(caso.Mostrar(), FormaRendimiento::TantoPorCiento, modelo);
  ASSERT_EQ(modelo.equiposCalefaccion.size(), 2U);
  EXPECT_THAT(modelo.equiposCalefaccion[1],
              FieldsAre("Sistema sustitución", "Rend. constante", "", "92.00",
                        "Definido por defecto", "GasNatural"));
  ListaConsumos(caso.Mostrar(), modelo);
  EXPECT_THAT(modelo.consumos.back(),
              FieldsAre("GASNATURAL", "Sistema sustitución", "CAL", "500.00"));
}

}  // namespace
}  // namespace novex
