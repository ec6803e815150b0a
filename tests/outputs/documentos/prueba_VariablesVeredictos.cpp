#include "outputs/documentos/VariablesVeredictos.h"

#include <gtest/gtest.h>

#include <map>

#include "outputs/CasoPrueba.h"

namespace novex {
namespace {

class Veredictos : public testing::Test {
 protected:
  Veredictos() {
    caso.Poner(0, "D3", "Nuevo");
    ResultadosCaso& r = caso.Resultados();
    for (const Servicio s : {kCalefaccion, kRefrigeracion, kACS, kVentilacion, kIluminacion}) {
      r.servicio[s].porUnidad[kPrimariaNoRenovable][0] = 10;
      r.servicio[s].porUnidad[kPrimariaTotal][0] = 20;
    }
    r.limites.CepNren = 40;
    r.limites.CepTot = 79;
    r.demandaCalefaccion = 15;
    r.demandaRefrigeracion = 14.9F;
    r.limites.demandaCalefaccion = 15;
    r.horasOcupacion = 1000;
    r.horasFueraCalefaccion = 39;
    r.horasFueraRefrigeracion = 1;
    verificacion.K.K = 0.6;
    verificacion.K.Klimite = 0.59;
  }
  std::map<std::string, std::string> Variables() {
    std::vector<VBLE> variables;
    VariablesVeredictos(caso.Mostrar(), verificacion, variables);
    std::map<std::string, std::string> mapa;
    for (const VBLE& v : variables) EXPECT_TRUE(mapa.emplace(v.nombre, v.valor).second) << v.nombre;
    return mapa;
  }
  pruebas::CasoDePrueba caso;
  VerificacionHE verificacion;
};

TEST_F(Veredictos, LaEnergiaTotalEnsenaTresServiciosYComparaCuatro) {
  auto v = Variables();
  EXPECT_EQ(v.at("CEPNREN"), "40.00");
  EXPECT_EQ(v.at("CEPNRENCUMPLE"), "Si cumple");  // en el límite
  EXPECT_EQ(v.at("CEPSINO"), "Sí cumple");
  EXPECT_EQ(v.at("CEPTOT"), "60.00");
  EXPECT_EQ(v.at("CEPTOTCUMPLE"), "No cumple");  // 80 frente a 79
  caso.Poner(4, "D3", "Nuevo");                  // en terciario cuenta la iluminación
  v = Variables();
  EXPECT_EQ(v.at("CEPNREN"), "50.00");
  EXPECT_EQ(v.at("CEPNRENCUMPLE"), "No cumple");
}

TEST_F(Veredictos, LoQueNoSeExigeNoTieneLimite) {
  caso.Poner(0, "D3", "Existente");
  const auto v = Variables();
  for (const char* nombre : {"CEPNRENCUMPLE", "CEPTOTCUMPLE", "HORASFUERACONSIGNACUMPLE", "KCUMPLE",
                             "QSOLJULCUMPLE", "N50CUMPLE"})
    EXPECT_EQ(v.at(nombre), "No aplicable") << nombre;
  for (const char* nombre : {"CEPNRENLIM", "CEPTOTLIM", "HORASFUERACONSIGNALIM", "KLIM"})
    EXPECT_EQ(v.at(nombre), "") << nombre;
  EXPECT_EQ(v.at("CEPLIM"), "40.00");  // este se enseña siempre
  EXPECT_EQ(v.at("K"), "0.60");
}

// Su valor teórico se calcula siempre: solo se compara donde se exige.
TEST_F(Veredictos, ElCambioDeAireQueNoSeExigeNoIncumple) {
  verificacion.n50.n50 = 6.2;
  verificacion.n50.limite = 4.5;
  auto v = Variables();
  EXPECT_EQ(v.at("N50"), "6.20");
  EXPECT_EQ(v.at("N50LIM"), "4.50");
  EXPECT_EQ(v.at("N50CUMPLE"), "No cumple");
  verificacion.n50.registro.aplica = false;
  v = Variables();
  for (const char* nombre : {"N50", "N50LIM", "N50CUMPLE"})
    EXPECT_EQ(v.at(nombre), "No aplicable") << nombre;
}

TEST_F(Veredictos, HorasYDemandasPequenas) {
  auto v = Variables();
  EXPECT_EQ(v.at("HORASFUERACONSIGNA"), "4.00");
  EXPECT_EQ(v.at("HORASFUERACONSIGNACUMPLE"), "Si cumple");
  EXPECT_EQ(v.at("KCUMPLE"), "No cumple");  // con 15 justos se exige
  EXPECT_EQ(v.at("DCALSINO"), "Sí cumple");
  EXPECT_EQ(v.at("DREFSINO"), "No cumple");
  caso.Resultados().demandaCalefaccion = 14.9F;
  caso.Resultados().horasFueraRefrigeracion = 2;
  v = Variables();
  EXPECT_EQ(v.at("KCUMPLE"), "No aplicable por demanda");
  EXPECT_EQ(v.at("K"), "0.60");
  EXPECT_EQ(v.at("HORASFUERACONSIGNACUMPLE"), "No cumple");
  caso.Resultados().horasOcupacion = 0;
  v = Variables();
  EXPECT_EQ(v.at("HORASFUERACONSIGNA"), "");
  EXPECT_EQ(v.at("HORASFUERACONSIGNACUMPLE"), "No aplicable");
}

TEST(TextoRecuperador, CadaClase) {
  DatosGenerales g;
  EXPECT_EQ(TextoRecuperador(g), "No existe recuperador");
  g.Recuperador = "SensibleConBypass";
  EXPECT_EQ(TextoRecuperador(g), "Recuperador sensbile con by-pass, rendimiento 75.00");
  g.Recuperador = "EntalpicoSinBypass";
  EXPECT_EQ(TextoRecuperador(g), "Recuperador entalpico sin by-pass, sensible 75.00 humedad 25.00");
}

}  // namespace
}  // namespace novex
