#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>

#include "base/FicheroSeguro.h"
#include "outputs/CasoPrueba.h"
#include "outputs/documentos/ConstruirModelo.h"
#include "outputs/documentos/EscribirDocumento.h"
#include "outputs/documentos/RellenoPlantilla.h"
#include "outputs/documentos/VariablesIdentidad.h"

namespace novex {
namespace {

using testing::HasSubstr;
namespace fs = std::filesystem;

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
  // Un valor con su propia marca no cuelga.
  const auto recursivo = ConVariables({{"A", "_A__A_"}, {"B", "b"}});
  const std::string texto = Rellenar(" _A_\n _B_", recursivo);
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

const fs::path kDatos = fs::path(NOVEX_RAIZ_DATOS) / "database";
constexpr int kVivienda = 0, kTerciario = 8;

struct Modelo {
  int perfil;
  TipoDocumento tipo;
  NOVEX_TO_MODELOCERTIFICADO modelo;
  PlantillasDocumento Plantillas() const { return PlantillasDe(kDatos, tipo, perfil == kVivienda); }
};

Modelo ModeloDe(int perfil, TipoDocumento tipo) {
  pruebas::CasoDePrueba caso;
  caso.Poner(perfil, "D3", "Existente");
  DatosDocumento datos;
  datos.tipo = tipo;
  datos.hojaEstilo = LeerHojaEstilo(kDatos);
  MejorasMedidas mejoras;
  mejoras.medidas.resize(1);
  mejoras.medidas[0].codigo = 3;
  const VerificacionHE verificacion =
      VerificarHE(*caso.edificio, *caso.resultado, LeerDocumentosHE(kDatos));
  return {perfil, tipo, ConstruirModelo(caso.MostrarCalificado(), verificacion, mejoras, datos)};
}

const std::vector<Modelo>& Modelos() {
  static const std::vector<Modelo> modelos = [] {
    std::vector<Modelo> todos;
    for (const int perfil : {kVivienda, kTerciario})
      for (const TipoDocumento tipo : {TipoDocumento::Certi, TipoDocumento::HE})
        todos.push_back(ModeloDe(perfil, tipo));
    return todos;
  }();
  return modelos;
}

// Las seis plantillas juntas.
const std::string& TextoPlantillas() {
  static const std::string texto = [] {
    std::string junto;
    std::set<fs::path> vistas;
    for (const Modelo& m : Modelos())
      for (const fs::path& ruta : {m.Plantillas().documento, m.Plantillas().mejora})
        if (vistas.insert(ruta).second) junto += LeerFichero(ruta);
    EXPECT_EQ(vistas.size(), 6U);
    return junto;
  }();
  return texto;
}

// Los nombres que hay entre subrayados en un texto.
std::set<std::string> Marcas(const std::string& texto) {
  static const std::regex marca("_([A-Z][A-Za-z0-9_.]*?)_(?![A-Za-z0-9_.])");
  std::set<std::string> nombres;
  for (std::sregex_iterator it(texto.begin(), texto.end(), marca), fin; it != fin; ++it)
    nombres.insert((*it)[1]);
  return nombres;
}

TEST(Plantillas, TodaMarcaTieneSuValorYTodoValorSuSitio) {
  for (const Modelo& m : Modelos()) {
    const PlantillasDocumento plantillas = m.Plantillas();
    const std::string documento = RellenarPlantilla(LeerFichero(plantillas.documento), m.modelo,
                                                    LeerFichero(plantillas.mejora));
    EXPECT_TRUE(Marcas(documento).empty())
        << plantillas.documento << ": " << *Marcas(documento).begin();
    EXPECT_EQ(documento.find("TAG:"), std::string::npos) << plantillas.documento;
  }
  std::set<std::string> nombres;
  for (const Modelo& m : Modelos()) {
    for (const VBLE& v : m.modelo.variables) nombres.insert(v.nombre);
    for (const MEJORA& mejora : m.modelo.mejoras)
      for (const VBLE& v : mejora.variables) nombres.insert(v.nombre);
  }
  const std::set<std::string> usados = Marcas(TextoPlantillas());
  std::set<std::string> sobran;
  std::set_difference(nombres.begin(), nombres.end(), usados.begin(), usados.end(),
                      std::inserter(sobran, sobran.end()));
  const std::set<std::string> sinUsar = {
      "MARCADO.BMP", "BLANCO.BMP",  // cada casilla tiene la suya
      "ZC_",                        // la misma zona que "ZC"
      "PRIILUWF",                   // la misma cifra que "PRIILUF"
  };
  EXPECT_LE(sinUsar.size(), 10U);
  EXPECT_EQ(sobran, sinUsar);
  for (const char* lista :
       {"LISTADO_CERRAMIENTOS", "LISTADO_HUECOS", "LISTADO_EQUCAL", "LISTADO_EQUREF",
        "LISTADO_EQUACS", "LISTADO_CONSUMOS", "LISTADO_PRODUCCIONES", "LISTADO_PUENTESTERMICOS",
        "LISTADO_FUNCIONAMIENTO", "MEJORAS", "CONDENSACIONES_MUROS", "CERRAMIENTOS_CAPAS"})
    EXPECT_NE(TextoPlantillas().find(std::string("<!--TAG:") + lista), std::string::npos) << lista;
}

// La hoja de estilo esconde una visita sin fecha cuyo "data-linea" está vacío.
TEST(Plantillas, UnaVisitaConSoloSuDecimaLineaSeVe) {
  DatosGenerales g;
  g.Memo[2].resize(10);
  g.Memo[2].back() = "Se midieron los huecos";
  NOVEX_TO_MODELOCERTIFICADO modelo;
  VariablesVisitas(g, modelo.variables);
  for (const bool residencial : {true, false}) {
    const std::string documento = RellenarPlantilla(
        LeerFichero(PlantillasDe(kDatos, TipoDocumento::Certi, residencial).documento), modelo, "");
    const auto visita = [&](const std::string& numero, const std::string& lineas) {
      return documento.find("data-fecha=\"Visita" + numero + ". Fecha: \" data-linea=\"" + lineas +
                            "\"") != std::string::npos;
    };
    EXPECT_TRUE(visita("1", ""));
    EXPECT_TRUE(visita("2", "Se midieron los huecos"));
    EXPECT_TRUE(visita("3", ""));
  }
}

// La primera marca de la lista que se encuentra es la que se cambia, aunque sea el final de otra.
TEST(Plantillas, NingunaMarcaEstaDentroDeOtraPosterior) {
  const auto comprobar = [](const std::vector<VBLE>& variables) {
    for (std::size_t j = 0; j < variables.size(); ++j)
      for (std::size_t i = 0; i < j; ++i) {
        const std::string anterior = "_" + variables[i].nombre + "_";
        const std::string posterior = "_" + variables[j].nombre + "_";
        EXPECT_TRUE(anterior == posterior || posterior.find(anterior) == std::string::npos)
            << anterior << " en " << posterior;
      }
  };
  for (const Modelo& m : Modelos()) {
    comprobar(m.modelo.variables);
    comprobar(m.modelo.mejoras.at(0).variables);
  }
}

}  // namespace
}  // namespace novex
