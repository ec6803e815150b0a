#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "outputs/CasoPrueba.h"
#include "outputs/documentos/ConsumosServicio.h"
#include "outputs/documentos/FilasEnvolvente.h"
#include "outputs/documentos/VariablesEquipos.h"

namespace novex {
namespace {

using testing::_;
using testing::ElementsAre;
using testing::FieldsAre;
using testing::IsSupersetOf;

constexpr std::size_t kMuro = ranura::MuroExt2;

// Ladrillo o aislante con todos sus datos.
material Capa(const char* nombre, float espesor, float conductividad) {
  material m = pruebas::Capa(nombre, espesor, conductividad, espesor / conductividad);
  m.Densidad = 1000;
  m.CalorEspecifico = 840;
  m.Resisvidad_relativa_vapor = 10;
  return m;
}

class FilasEnvolvente : public testing::Test {
 protected:
  NOVEX_TO_MODELOCERTIFICADO modelo;
  pruebas::CasoDePrueba caso;
};

TEST_F(FilasEnvolvente, UnCerramientoPorOrientacionYUnaComposicion) {
  Edificio& e = *caso.edificio;
  Recinto& r = e.GetRecinto(0);
  r = {};
  r.Muro_ext_m2[1][oeste] = 12.34F;
  r.Muro_ext_m2[1][sur_este] = 5;
  r.Cubierta_incl_m2[0][norte] = 40;
  r.Suelo_vacio_sanitario_m2[1] = 60;
  e.AnadirMaterial(Capa("Ladrillo <1/2 pie>", 0.115F, 0.85F), kMuro);
  e.AnadirMaterial(Capa("Aislante", 0.08F, 0.034F), kMuro);
  e.GetComposicion(kMuro).nombre = "Muro _NIF_";
  e.GetComposicion(ranura::TechoInc1).U = 0.4F;
  e.GetComposicion(ranura::SueloOtro3).nombre = "Doble hoja";
  caso.Resultados().Uefectiva[kMuro] = 0.349F;
  FilasCerramientos(caso.Mostrar(), modelo);

  constexpr const char* kCapas = "En función de su composición";
  constexpr const char* kNombre = "Muro &#95;NIF&#95;";
  EXPECT_THAT(
      modelo.cerramientos,
      ElementsAre(
          FieldsAre("Cubierta Incl. Exterior 30ºN", _, _, "Definido por el usuario", "", _),
          FieldsAre("Muro Exterior O", "12.3", "0.3", kCapas, kNombre, _),
          FieldsAre("Muro Exterior SE", "5.0", "0.3", kCapas, kNombre, _),
          FieldsAre("Suelo a vacio sanitario", "60.0", _, "Defecto existentes. Doble hoja", _, _)));

  ASSERT_EQ(modelo.composiciones.size(), 2U);  // la de la cubierta no tiene nombre ni capas
  ASSERT_EQ(modelo.composiciones[0].capas.size(), 2U);
  EXPECT_THAT(modelo.composiciones[0].capas[0],
              FieldsAre("Ladrillo &lt;1/2 pie&gt;", _, _, "0.84" /* kJ/kgK */, _, _, "0.12"));
  EXPECT_TRUE(modelo.composiciones[1].capas.empty());
}

TEST_F(FilasEnvolvente, DosComposicionesConElMismoNombreNoSonLaMisma) {
  Edificio& e = *caso.edificio;
  Recinto& r = e.GetRecinto(0);
  r = {};
  for (std::size_t i = 0; i < 3; ++i) {
    const std::size_t muro = ranura::MuroExt1 + i;
    r.Muro_ext_m2[i][norte] = 10;
    e.AnadirMaterial(Capa("Ladrillo", i == 1 ? 0.24F : 0.12F, 0.85F), muro);
    e.GetComposicion(muro).nombre = "Fachada";
  }
  FilasCerramientos(caso.Mostrar(), modelo);
  EXPECT_EQ(modelo.cerramientos.size(), 3U);
  ASSERT_EQ(modelo.composiciones.size(), 2U);
  EXPECT_EQ(modelo.composiciones[0].capas.at(0).espesor, "0.12");
  EXPECT_EQ(modelo.composiciones[1].capas.at(0).espesor, "0.24");
}

TEST(ModoDefinicionCerramiento, SinNadaNoEstaDefinido) {
  composicion c;
  EXPECT_EQ(ModoDefinicion(c), "No definido");
  c.nombre = "Defecto existentes. Ventilada";
  EXPECT_EQ(ModoDefinicion(c), "Defecto existentes. Ventilada");
}

TEST_F(FilasEnvolvente, UnHuecoPorGrupoYOrientacion) {
  Edificio& e = *caso.edificio;
  Huecos& ventanas = e.GetHuecos(0);
  ventanas = {};
  ventanas.columnas[este].Anadir(3);
  ventanas.columnas[norte].Anadir(1);
  ventanas.Indice_tipo_cristal = 1;
  ventanas.FS_cristal_tanto_por_uno = 0.75F;
  Huecos lucernario;
  lucernario.Tipo_de_hueco = kLucernario;
  lucernario.columnas[sur].Anadir(1);
  lucernario.columnas[kColumnaHorizontal].Anadir(1);
  lucernario.Indice_tipo_cristal = 5;
  e.AnadirHuecos(lucernario);
  FilasHuecos(e, modelo);
  constexpr const char* kFuncion = "Función de su composición";
  constexpr const char* kUsuario = "Definido por usuario";
  EXPECT_THAT(modelo.huecos,
              ElementsAre(FieldsAre(_, "Ventanas", "Dobles", _, _, _, kFuncion, "N 2.00"),
                          FieldsAre(_, "Ventanas", "Dobles", _, _, _, kFuncion, "E 6.00"),
                          FieldsAre("Grupo 2", _, _, _, _, _, kUsuario, "30ºS 2.00"),
                          FieldsAre("Grupo 2", _, _, _, _, _, kUsuario, "Hz 2.00")));
}

TEST_F(FilasEnvolvente, LosOchoPuentesConSuValorYSuLongitud) {
  Construccion c;
  for (std::size_t i = 0; i < kPuentes; ++i) c.U_L_Puentes[i] = static_cast<float>(i) + 0.5F;
  c.Perimetro_forjados = 10;
  c.Perimetro_huecos = 20;
  c.Longitud_esquinas_sal_menos_ent = 30;
  c.Perimetro_suelo_ext = 35;
  c.Perimetro_cubiertas = 37;
  c.Perimetro_suelo_terreno = 39;
  c.Long_pilares = {1, 2, 3, 4, 5, 6};
  FilasPuentes(c, modelo);
  const auto fila = [](const char* clase, const char* psi, const char* longitud) {
    return FieldsAre("", clase, psi, longitud, "SDINT");
  };
  EXPECT_THAT(modelo.puentes,
              ElementsAre(fila("FRENTE&#95;FORJADO", "1.50", "10.00"),
                          fila("UNION&#95;CUBIERTA", "2.50", "37.00"),
                          fila("ESQUINA&#95;CONVEXA&#95;FORJADO", "3.50", "35.00"),
                          fila("ESQUINA&#95;CONCAVA&#95;CERRAMIENTO", "4.50", "30.00"),
                          fila("ESQUINA&#95;CONVEXA&#95;CERRAMIENTO", "4.50", "30.00"),
                          fila("PILAR", "5.50", "21.00"),
                          fila("UNION&#95;SOLERA&#95;PAREDEXT", "6.50", "39.00"),
                          fila("HUECO&#95;VENTANA", "0.50", "20.00")));
}

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
