#include "outputs/documentos/VariablesEquipos.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "outputs/CasoPrueba.h"
#include "outputs/documentos/ConsumosServicio.h"

namespace novex {
namespace {

// Un sistema con un bloque que se termina de llenar a mano.
Instalaciones& Anadir(pruebas::CasoDePrueba& caso, const std::string& tipo,
                      const std::string& nombre, const std::string& seleccion, int equipos) {
  SistemaResidencial sistema;
  sistema.Tipo_sistema = tipo;
  sistema.Nombre_sistema = nombre;
  sistema.instalaciones.resize(1);
  sistema.instalaciones[0].Seleccion = seleccion;
  sistema.instalaciones[0].NEquipos = equipos;
  caso.edificio->AnadirSistema(std::move(sistema));
  caso.resultado->sumasBloques.emplace_back();
  return caso.edificio->GetSistema(caso.edificio->NumeroSistemas() - 1).instalaciones[0];
}

std::string Valor(const NOVEX_TO_MODELOCERTIFICADO& modelo, const std::string& nombre) {
  const auto v = std::find_if(modelo.variables.begin(), modelo.variables.end(),
                              [&](const VBLE& x) { return x.nombre == nombre; });
  return v == modelo.variables.end() ? "(falta)" : v->valor;
}

// Bomba de calor con caldera de biomasa para los dos servicios de calor.
class Conjunto : public testing::Test {
 protected:
  Conjunto() {
    Instalaciones& i = Anadir(caso, "ACS+Calefaccion", "Sala <b>", "1 BC aire-agua + 1 Caldera", 2);
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
  const EQUIPO& bomba = modelo.equiposCalefaccion[0];
  EXPECT_EQ(bomba.nombre, "Sala &lt;b&gt;");
  EXPECT_EQ(bomba.generador, "2x) BC aire-agua");
  EXPECT_EQ(bomba.potencia, "20.00");
  EXPECT_EQ(bomba.rendimientoNominal, "250.00");
  EXPECT_EQ(bomba.rendimientoEstacional, "300.00");
  EXPECT_EQ(bomba.vector, "Electricidad");
  const EQUIPO& caldera = modelo.equiposCalefaccion[1];
  EXPECT_EQ(caldera.generador, "2x) Caldera");
  EXPECT_EQ(caldera.rendimientoEstacional, "80.00");
  EXPECT_EQ(caldera.vector, "Biomasa_Pellet");
  // La caldera no ha hecho agua caliente: no tiene rendimiento del año en ella.
  EXPECT_EQ(modelo.equiposACS[0].rendimientoEstacional, "250.00");
  EXPECT_EQ(modelo.equiposACS[1].rendimientoEstacional, "Definido por usuario");
  EXPECT_EQ(Valor(modelo, "TOTALPOTCAL"), "68.00");  // 2 por 10 y 2 por 24
  EXPECT_EQ(Valor(modelo, "POTNOMCALEF"), "68.00");
  EXPECT_EQ(Valor(modelo, "POTNOMREFRIG"), "0.00");

  NOVEX_TO_MODELOCERTIFICADO razones;
  VariablesEquipos(caso.Mostrar(), FormaRendimiento::Razon, razones);
  EXPECT_EQ(razones.equiposCalefaccion[1].rendimientoNominal, "0.92");
  EXPECT_EQ(razones.equiposCalefaccion[1].rendimientoEstacional, "0.80");
}

TEST_F(Conjunto, LosConsumosVanPorVectorConSusBombas) {
  caso.resultado->meses.ventilacion[0] = 123.456F;
  caso.Resultados().servicio[kACS].finalPorVector[Indice(VectorEnergetico::Energiasolartermica)]
                                                 [0] = 700;
  NOVEX_TO_MODELOCERTIFICADO modelo;
  ListaConsumos(caso.Mostrar(), modelo);
  std::vector<std::string> filas;
  for (const CONSUMO& c : modelo.consumos)
    filas.push_back(c.servicio + "|" + c.vector + "|" + c.generador + "|" + c.energia);
  const std::vector<std::string> esperadas = {
      "CAL|ELECTRICIDAD|2x) BC aire-agua|1050.00",
      "CAL|MEDIOAMBIENTE|2x) BC aire-agua|2000.00",
      "CAL|BIOMASA|2x) Caldera|1000.00",
      "ACS|ELECTRICIDAD|2x) BC aire-agua|410.00",
      "ACS|MEDIOAMBIENTE|2x) BC aire-agua|600.00",
      "ACS|BIOMASA|2x) Caldera|0.00",
      "ACS|MEDIOAMBIENTE|Inst.solar termica|700.00",
      "VEN|ELECTRICIDAD|EQUIPO EXCLUSIVO VENTILACION|123.46"};
  EXPECT_EQ(filas, esperadas);
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
    Instalaciones& i = Anadir(caso, e.tipo, "U", e.seleccion, 3);
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
  Anadir(caso, "Calefaccion", "U", "1 Caldera", 1);
  caso.resultado->meses.defecto[kCalefaccion][0] = 500;
  caso.Resultados().defecto.rendimiento[kCalefaccion] = 0.92F;
  // Sin "SI" nada se le carga al servicio.
  EXPECT_EQ(GeneradoresDeServicio(caso.Mostrar(), kCalefaccion).size(), 1U);
  DatosGenerales generales = caso.edificio->GetDatosGenerales();
  generales.Equipos_Defecto = "SI";
  caso.edificio->SetDatosGenerales(generales);
  NOVEX_TO_MODELOCERTIFICADO modelo;
  VariablesEquipos(caso.Mostrar(), FormaRendimiento::TantoPorCiento, modelo);
  ASSERT_EQ(modelo.equiposCalefaccion.size(), 2U);
  const EQUIPO& fila = modelo.equiposCalefaccion[1];
  EXPECT_EQ(fila.nombre, "Sistema sustitución");
  EXPECT_EQ(fila.generador, "Rend. constante");
  EXPECT_EQ(fila.potencia, "");
  EXPECT_EQ(fila.rendimientoNominal, "92.00");
  EXPECT_EQ(fila.rendimientoEstacional, "Definido por defecto");
  EXPECT_EQ(fila.vector, "GasNatural");
  ListaConsumos(caso.Mostrar(), modelo);
  const CONSUMO& ultimo = modelo.consumos.back();
  EXPECT_EQ(ultimo.vector, "GASNATURAL");
  EXPECT_EQ(ultimo.generador, "Sistema sustitución");
  EXPECT_EQ(ultimo.energia, "500.00");
}

}  // namespace
}  // namespace novex
