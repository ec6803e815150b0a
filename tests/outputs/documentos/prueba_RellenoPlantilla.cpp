#include "outputs/documentos/RellenoPlantilla.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace novex {
namespace {

using testing::HasSubstr;

NOVEX_TO_MODELOCERTIFICADO ConVariables(std::vector<VBLE> variables) {
  NOVEX_TO_MODELOCERTIFICADO modelo;
  modelo.variables = std::move(variables);
  return modelo;
}

std::string Rellenar(std::string_view plantilla, const NOVEX_TO_MODELOCERTIFICADO& modelo,
                     std::string_view mejora = "") {
  return RellenarPlantilla(plantilla, modelo, mejora);
}

TEST(RellenoPlantilla, LasVariablesDeUnaLinea) {
  const auto modelo = ConVariables({{"CP", "50001"},
                                    {"CPCERT", "28001"},
                                    {"CP", "nunca"},
                                    {"ENLACE", "<B>_CP_</B>"},
                                    {"VACIA", ""}});
  EXPECT_EQ(Rellenar("_CP_ y _CP_", modelo), "_CP_ y 50001\n");  // al comienzo no se mira
  EXPECT_EQ(Rellenar("a _CP_-_CPCERT_-_CP_", modelo), "a 50001-28001-50001\n");
  EXPECT_EQ(Rellenar("x_ENLACE_", modelo), "x<B>50001</B>\n");
  EXPECT_EQ(Rellenar("x_OTRA_ _VACIA_y\r\n\r\nfin", modelo), "x_OTRA_ y\n\nfin\n");
  EXPECT_EQ(Rellenar("", modelo), "");
}

TEST(RellenoPlantilla, UnValorConSuPropiaMarcaNoCuelga) {
  const auto modelo = ConVariables({{"A", "_A__A_"}, {"B", "b"}});
  const std::string texto = Rellenar(" _A_\n _B_", modelo);
  EXPECT_THAT(texto, HasSubstr("_A_"));
  EXPECT_LT(texto.size(), 2000U);
  EXPECT_THAT(texto, testing::EndsWith("\n b\n"));
}

TEST(RellenoPlantilla, UnaListaOcupaElLugarDeSuBloque) {
  NOVEX_TO_MODELOCERTIFICADO modelo;
  modelo.consumos = {{"GASNATURAL", "1x) Caldera", "CAL", "100.00"}};
  const std::string plantilla =
      "<TABLE>\nse pierde <!--TAG:LISTADO_CONSUMOS\n<TR>muestra</TR>\nfin --> y esto\n</TABLE>\n";
  EXPECT_EQ(Rellenar(plantilla, modelo),
            "<TABLE>\n"
            "\t<TR VALIGN=MIDDLE>\n"
            "\t\t<TD>\n\t\t\t<P CLASS=\"western\" ALIGN=CENTER>GASNATURAL</P>\n\t\t</TD>\n"
            "\t\t<TD>\n\t\t\t<P CLASS=\"western\" ALIGN=CENTER>1x) Caldera</P>\n\t\t</TD>\n"
            "\t\t<TD>\n\t\t\t<P CLASS=\"western\" ALIGN=CENTER>CAL</P>\n\t\t</TD>\n"
            "\t\t<TD>\n\t\t\t<P CLASS=\"western\" ALIGN=CENTER>100.00</P>\n\t\t</TD>\n"
            "\t</TR>\n"
            "</TABLE>\n");
  // Sin filas el bloque desaparece igual; en una línea acaba en ella; sin final, con el fichero.
  EXPECT_EQ(Rellenar("a\n<!--TAG:LISTADO_HUECOS -->\nb\n", modelo), "a\nb\n");
  EXPECT_EQ(Rellenar("a\n<!--TAG:LISTADO_HUECOS\nb\n", modelo), "a\n");
}

TEST(RellenoPlantilla, CadaListaTieneSusCeldas) {
  NOVEX_TO_MODELOCERTIFICADO modelo;
  modelo.cerramientos.resize(1);
  modelo.huecos.resize(1);
  modelo.equiposCalefaccion.resize(1);
  modelo.equiposRefrigeracion.resize(1);
  modelo.equiposACS.resize(1);
  modelo.consumos.resize(1);
  modelo.producciones.resize(1);
  modelo.puentes.resize(1);
  modelo.funcionamiento.resize(1);
  const std::pair<const char*, int> esperadas[] = {
      {"LISTADO_CERRAMIENTOS", 5}, {"LISTADO_HUECOS", 8},          {"LISTADO_EQUCAL", 6},
      {"LISTADO_EQUREF", 6},       {"LISTADO_EQUACS", 6},          {"LISTADO_CONSUMOS", 4},
      {"LISTADO_PRODUCCIONES", 4}, {"LISTADO_PUENTESTERMICOS", 5}, {"LISTADO_FUNCIONAMIENTO", 6}};
  for (const auto& [marca, celdas] : esperadas) {
    const std::string texto = Rellenar(std::string("<!--TAG:") + marca + " -->", modelo);
    int cuenta = 0;
    for (std::size_t i = texto.find("<TD>"); i != std::string::npos; i = texto.find("<TD>", i + 1))
      ++cuenta;
    EXPECT_EQ(cuenta, celdas) << marca;
  }
}

TEST(RellenoPlantilla, ComposicionesYCondensaciones) {
  NOVEX_TO_MODELOCERTIFICADO modelo;
  modelo.composiciones = {{"", "", "", "", "Muro A", {{"Yeso", "0.57", "", "", "", "", "0.015"}}},
                          {"", "", "", "", "Muro B", {}}};
  const std::string capas = Rellenar("<!--TAG:CERRAMIENTOS_CAPAS -->", modelo);
  EXPECT_THAT(capas, testing::StartsWith("Composici&oacute;n: Muro A\n<TABLE BORDER=1"));
  EXPECT_THAT(capas, HasSubstr(">Yeso<"));
  EXPECT_THAT(capas.substr(capas.find("Muro B")), HasSubstr("No definido"));

  CONDENSACION_COMPO vapor{"Muro A", "MuroExt1", "fRsi", "0.90", {"700", "800"}, ""};
  CONDENSACION_COMPO saturacion{"", "", "fRsi,min", "0.61", {"900", "950", "1200"}, "Cumple"};
  modelo.condensaciones = {vapor, saturacion, vapor};  // la suelta no tiene pareja
  const std::string tabla = Rellenar("<!--TAG:CONDENSACIONES_MUROS -->", modelo);
  EXPECT_THAT(tabla,
              HasSubstr("<TD rowspan=\"2\">MuroExt1</TD>\n\t\t<TD rowspan=\"2\">Muro A</TD>\n"
                        "\t\t<TD>FRsi</TD>\n\t\t<TD>0.90</TD>\n\t\t<TD>700</TD>\n"
                        "\t\t<TD>800</TD>\n\t\t<TD></TD>\n\t\t<TD></TD>\n\t</TR>"));
  EXPECT_THAT(tabla, HasSubstr("<TD>FRsi,min</TD>\n\t\t<TD>0.61</TD>\n\t\t<TD>900</TD>\n"
                               "\t\t<TD>950</TD>\n\t\t<TD>1200</TD>\n\t\t<TD>Cumple</TD>"));
  EXPECT_EQ(tabla.find("MuroExt1"), tabla.rfind("MuroExt1"));
}

TEST(RellenoPlantilla, CadaMejoraSoloTieneLoSuyo) {
  auto modelo = ConVariables({{"NOMBRE", "documento"}, {"MEJORAS", "documento"}});
  modelo.mejoras = {{"", {{"MEJORAS", "Aislar"}}}, {"Título", {{"MEJORAS", "Ventanas"}}}};
  const std::string texto =
      Rellenar("x\n<!--TAG:MEJORAS\n-->\n", modelo, "<P>_MEJORAS_ _NOMBRE_</P>\n");
  EXPECT_THAT(texto, HasSubstr("> MEJORA 1</P>\n"));
  EXPECT_THAT(texto, HasSubstr("<P>Aislar _NOMBRE_</P>\n"));
  EXPECT_THAT(texto, HasSubstr("> MEJORA 2</P>\n<P CLASS=\"western\" ALIGN=CENTER "
                               "STYLE=\"margin-bottom: 0cm\"><B>Título</B></P>\n"
                               "<P>Ventanas _NOMBRE_</P>\n"));
}

TEST(TextoHtml, LoEscritoNoEsNiEtiquetaNiMarca) {
  EXPECT_EQ(TextoHtml("<b>Calle \"A\" & 'B'</b> ñ"),
            "&lt;b&gt;Calle &quot;A&quot; &amp; &#39;B&#39;&lt;/b&gt; ñ");
  const auto modelo = ConVariables({{"NOMBRE", TextoHtml("_NIF_")}, {"NIF", "secreto"}});
  EXPECT_EQ(Rellenar("x_NOMBRE_", modelo), "x&#95;NIF&#95;\n");
}

}  // namespace
}  // namespace novex
