#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "outputs/Bateria.h"
#include "outputs/CasoPrueba.h"
#include "outputs/JsonResultados.h"

namespace novex {
namespace {

using nlohmann::json;

TEST(Bateria, LaListaAdmiteCrlfBlancosYCarpetaSinSeparador) {
  const ListaBateria lista =
      LeerListaBateria("/obras de 2026\r\nuna.xml\r\n\r\n  dos.xml \r\n\r\n");
  EXPECT_EQ(lista.carpeta, "/obras de 2026/");
  EXPECT_EQ(lista.ficheros, (std::vector<std::string>{"una.xml", "dos.xml"}));
  EXPECT_EQ(LeerListaBateria("C:\\obras\\\nx.xml").carpeta, "C:\\obras\\");
  EXPECT_TRUE(LeerListaBateria("/obras/\n").ficheros.empty());
  EXPECT_EQ(LeerListaBateria("").carpeta, "");
}

// Tres entradas: una calculada, una que no se abre y otra que se abre y no se puede calcular.
TEST(Bateria, ElTextoVaLetraALetra) {
  std::vector<CasoBateria> casos(3);
  casos[0].proyecto = "/obras/a.xml";
  casos[0].caso = "Viejo";
  ResultadosCaso& r = casos[0].resultados;
  r.demandaCalefaccion = 32.641234F;
  r.demandaACS = 0.00001234F;
  casos[0].ventilacion = 1234567;
  r.servicio[kCalefaccion].porUnidad[kEmisiones][0] = 8.5F;
  r.total[kEmisiones] = 14.636F;
  casos[0].horasExceso = 285;
  casos[1].proyecto = "/obras/no está.xml";
  casos[1].fallo = "no se abre; de verdad";
  casos[2].proyecto = "/obras/c.xml";
  casos[2].caso = "Viejo";
  casos[2].fallo = "falta el fichero de clima";
  EXPECT_EQ(TextoBateria(casos),
            "# Caso = 1  de  3 :\n/obras/a.xml :\nDemanda Calef=32.6412\nDemanda Refri=0\n"
            "Demanda ACS=1.234e-05\nDemanda Iluminacion=0\nDemanda Ventilacion=1.23457e+06\n"
            "Emisiones CO2 Cal=8.5\nEmisiones C02 Refri=0\nEmisiones CO2 ACS=0\n"
            "Emisiones Iluminacion=0\nEmisiones Ventilacion=0\nEmisiones totales=14.636\n"
            "Horas exceso calor (mas de 26 C) en todo el año=285\n"
            "------------------------------------\n"
            "------------------------------------\n"
            "------------------------------------\n");
  const std::string csv = CsvBateria(casos);
  EXPECT_NE(csv.find("/obras/no está.xml;;;;;;;;;;;;;;\"no se abre; de verdad\"\n"),
            std::string::npos);
  EXPECT_NE(JsonBateria(casos).find("\"horas_exceso_calor\": 285"), std::string::npos);
}

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
