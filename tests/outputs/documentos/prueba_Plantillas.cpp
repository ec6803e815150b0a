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

namespace fs = std::filesystem;

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

TEST(Plantillas, NingunaMarcaQuedaSinValor) {
  for (const Modelo& m : Modelos()) {
    const PlantillasDocumento plantillas = m.Plantillas();
    const std::string documento = RellenarPlantilla(LeerFichero(plantillas.documento), m.modelo,
                                                    LeerFichero(plantillas.mejora));
    EXPECT_TRUE(Marcas(documento).empty())
        << plantillas.documento << ": " << *Marcas(documento).begin();
    EXPECT_EQ(documento.find("TAG:"), std::string::npos) << plantillas.documento;
  }
}

TEST(Plantillas, CadaVariableTieneSuSitio) {
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
}

TEST(Plantillas, CadaListaTieneSuSitio) {
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
