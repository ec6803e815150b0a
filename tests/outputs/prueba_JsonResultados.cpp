#include "outputs/JsonResultados.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "outputs/CasoPrueba.h"

namespace novex {
namespace {

using nlohmann::json;

class JsonResultadosTest : public testing::Test {
 protected:
  json Caso(std::vector<Mensaje> mensajes = {}) {
    CasoCalculado mostrado = caso.Mostrar();
    mostrado.mensajes = std::move(mensajes);
    return json::parse(JsonResultados("casa.xml", {mostrado})).at("casos").at(0);
  }
  pruebas::CasoDePrueba caso;
};

TEST_F(JsonResultadosTest, CincoCifrasSignificativas) {
  auto& anual = caso.Resultados().servicio[kACS].porUnidad;
  const std::pair<float, double> valores[] = {{123456.0F, 123460.0}, {0.0123456F, 0.012346},
                                              {8.0538F, 8.0538},     {-0.0F, 0.0},
                                              {1e-9F, 1e-9},         {99999.6F, 100000.0}};
  for (const auto& [valor, escrito] : valores) {
    anual[kFinal][0] = valor;
    EXPECT_EQ(Caso().at("energia_final").at("acs").get<double>(), escrito) << valor;
  }
  // Un cero no lleva signo.
  anual[kFinal][0] = -0.0F;
  EXPECT_EQ(Caso().at("energia_final").at("acs").dump(), "0.0");
  for (std::size_t s = 0; s < kServicios; ++s)
    for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
      caso.Resultados().servicio[s].porUnidad[u][0] = static_cast<float>(10 * s + u);
  caso.Resultados().total = {90, 91, 92, 93, 94};
  const json j = Caso();
  const char* bloques[] = {"energia_final", "energia_primaria_total",
                           "energia_primaria_no_renovable", "energia_primaria_renovable",
                           "emisiones"};
  const std::pair<const char*, double> servicios[] = {
      {"acs", 0},          {"calefaccion", 10}, {"refrigeracion", 20},
      {"ventilacion", 30}, {"iluminacion", 40}, {"total", 90}};
  for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
    for (const auto& [servicio, base] : servicios)
      EXPECT_EQ(j.at(bloques[u]).at(servicio), base + static_cast<double>(u)) << servicio;
}

TEST_F(JsonResultadosTest, LosMesesVanDeEneroADiciembreYLaCalefaccionEnPositivo) {
  auto& demanda = caso.resultado->meses.demanda;
  for (std::size_t m = 0; m <= 12; ++m) {
    demanda[kCalefaccion][m] = -static_cast<float>(m);
    demanda[kACS][m] = static_cast<float>(m) + 0.5F;
  }
  auto& gas = caso.Resultados().servicio[kCalefaccion].finalPorVector;
  gas[Indice(VectorEnergetico::GasNatural)][12] = 1234.56F;
  // El del año no hace que un vector sin meses se escriba.
  gas[Indice(VectorEnergetico::GLP)][0] = 5;
  const json mensual = Caso().at("mensual");
  for (std::size_t m = 1; m <= 12; ++m) {
    EXPECT_EQ(mensual.at("demanda").at("calefaccion").at(m - 1), static_cast<double>(m));
    EXPECT_EQ(mensual.at("demanda").at("acs").at(m - 1), static_cast<double>(m) + 0.5);
  }
  const json& final = mensual.at("energia_final");
  EXPECT_EQ(final.at("calefaccion").size(), 1U);
  EXPECT_EQ(final.at("calefaccion").at("GasNatural").at(11), 1234.6);
  EXPECT_TRUE(final.at("iluminacion").is_object());
  EXPECT_TRUE(final.at("iluminacion").empty());
}

// Una vivienda no califica la iluminación; una simulación libre, nada.
TEST_F(JsonResultadosTest, SoloLasLetrasQueTiene) {
  caso.Resultados().escala.letra.fill("A");
  caso.Poner(0, "C2", "Nuevo");
  EXPECT_EQ(Caso({}).at("letras").size(), 10U);
  EXPECT_FALSE(Caso({}).at("letras").contains("EmisionesIlu"));
  caso.PonerSimulacionLibre();
  EXPECT_EQ(Caso({}).at("letras").size(), 0U);
}

TEST_F(JsonResultadosTest, DatosLetrasHorasYAvisos) {
  caso.Poner(7, "C2", "Nuevo");
  caso.edificio->GetRecinto(0).Suelo_habitable_m2 = 123.456F;
  caso.Resultados().escala.letra.fill("A");
  caso.Resultados().escala.letra[static_cast<std::size_t>(Indicador::EPriNoRIlu)] = "C";
  caso.Resultados().horasFueraRefrigeracion = 39;
  caso.Resultados().horasOcupacion = 3448;
  const json j = Caso({{"Título", "dos\nlíneas"}, {"mal", "\xE9\xFF"}});
  EXPECT_EQ(j.at("caso"), "Viejo");
  EXPECT_EQ(j.at("zona"), "C2");
  EXPECT_EQ(j.at("perfil_uso"), 7);
  EXPECT_EQ(j.at("superficie_m2"), 123.46);
  EXPECT_EQ(j.at("letras").at("EPriNoRIlu"), "C");
  EXPECT_EQ(j.at("letras").size(), 12U);
  EXPECT_EQ(j.at("horas_fuera_consigna").at("refrigeracion"), 39);
  EXPECT_TRUE(j.at("horas_ocupacion").is_number_integer());
  EXPECT_EQ(j.at("mensajes").at(0).at("titulo"), "Título");
  EXPECT_EQ(j.at("mensajes").at(0).at("texto"), "dos\nlíneas");
  // Un texto que no es UTF-8 no impide leer el resto.
  EXPECT_EQ(j.at("mensajes").size(), 2U);
}

}  // namespace
}  // namespace novex
