#include "outputs/Bateria.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

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

}  // namespace
}  // namespace novex
