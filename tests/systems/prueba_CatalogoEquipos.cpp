#include "systems/CatalogoEquipos.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace novex {
namespace {

using testing::ElementsAre;

// Modelo cuyos coeficientes llevan, cada uno, un valor propio.
std::string Modelo(const std::string& nombre, const std::string& potencias) {
  return "<equipo name=\"" + nombre + "\" modelo=\"" + nombre + "\" " + potencias +
         "><CapTotRef_T Ra0=\"1.1\" Ra5=\"0.15\"/><CapSenRef_T Re0=\"1.2\" Re6=\"0.26\"/>"
         "<ConRef_T Rb0=\"1.3\" Rb5=\"0.35\"/><ConRef_F Rc0=\"0.4\" Rc3=\"0.43\"/>"
         "<CapCal_T Qaa0=\"1.5\" Qaa5=\"0.55\" Qab0=\"1.6\" Qab5=\"0.65\" Tecamb=\"-7.5\"/>"
         "<ConCal_T Qba0=\"1.7\" Qba5=\"0.75\" Qbb0=\"1.8\" Qbb5=\"0.85\"/>"
         "<ConCal_F Qc0=\"0.9\" Qc3=\"0.93\"/><ren_F Cc0=\"2\" Cc3=\"2.3\"/>"
         "<ren_T Cg0=\"3\" Cg3=\"3.3\"/></equipo>";
}

class Catalogo : public testing::Test {
 protected:
  Catalogo() {
    const std::string potencias =
        "PotTotRef=\"10\" PotSenRef=\"7\" ConRef=\"4\" PotCal=\"12\" ConCal=\"3\"";
    std::string texto = "<EquiposNovex>";
    for (const char* fabricante : {"Defecto", "Marca"}) {
      texto += "<fabricante name=\"" + std::string(fabricante) + "\"><familia name=\"EquipoAA\">";
      for (const char* tipo : {"Equipo_Split", "Equipo_MultiSplit", "Caudal_refrigerante_variable"})
        texto += "<tipo name=\"" + std::string(tipo) + "\">" + Modelo("uno", potencias) +
                 Modelo("dos", "PotTotRef=\"20\"") + "</tipo>";
      texto += "</familia><familia name=\"EquipoAW\"><tipo name=\"BC_aire_agua\">" +
               Modelo("agua", potencias) + "</tipo></familia></fabricante>";
    }
    texto +=
        "<fabricante name=\"Calderas\"><familia name=\"Generadores\"><tipo name=\"Generadores\">" +
        Modelo("gas", potencias) + "</tipo></familia></fabricante></EquiposNovex>";
    raiz = XMLNode::parseString(texto, "EquiposNovex", "Equipos.xml");
    bloque.QFrioTot1 = 1;
    bloque.QFrioSen1 = 2;
    bloque.WeFrio1 = 3;
    bloque.QcalorBC1 = 4;
    bloque.WeCalor1 = 5;
    bloque.QcalorCaldera1 = 6;
  }
  std::array<float, 5> Nominales() const {
    return {bloque.QFrioTot1, bloque.QFrioSen1, bloque.WeFrio1, bloque.QcalorBC1, bloque.WeCalor1};
  }

  RegistroMensajes mensajes;
  XMLNode raiz;
  Instalaciones bloque;
};

TEST_F(Catalogo, FabricantesYModelos) {
  const CatalogoEquipos c(raiz, mensajes);
  EXPECT_THAT(c.Fabricantes("EquipoAA", "Equipo_Split"), ElementsAre("Defecto", "Marca"));
  EXPECT_THAT(c.Fabricantes("Generadores", "Generadores"), ElementsAre("Calderas"));
  EXPECT_TRUE(c.Fabricantes("EquipoAA", "Rooftop").empty());
  const auto modelos = c.Modelos("Marca", "EquipoAA", "Equipo_Split");
  ASSERT_EQ(modelos.size(), 2U);
  EXPECT_EQ(modelos[0].EER(), 2.5F);
  EXPECT_EQ(modelos[0].COP(), 4.0F);
  EXPECT_EQ(modelos[1].EER(), 0.0F);  // sin consumo
  EXPECT_EQ(modelos[1].COP(), 0.0F);
  EXPECT_TRUE(c.Modelos("Nadie", "EquipoAA", "Equipo_Split").empty());
  const Instalaciones antes = bloque;
  for (const std::size_t fila : {std::size_t{0}, std::size_t{3}, static_cast<std::size_t>(-1)})
    EXPECT_FALSE(c.Aplicar("Marca", "EquipoAA", "Equipo_Split", fila, bloque));
  EXPECT_FALSE(c.Aplicar("Marca", "EquipoAA", "Rooftop", 1, bloque));
  EXPECT_FALSE(c.Aplicar("Nadie", "EquipoAA", "Equipo_Split", 1, bloque));
  EXPECT_FALSE(
      CatalogoEquipos(XMLNode{}, mensajes).Aplicar("Marca", "EquipoAA", "Equipo_Split", 1, bloque));
  EXPECT_EQ(bloque, antes);
}

TEST_F(Catalogo, ElGenericoPoneSoloLasCurvas) {
  const CatalogoEquipos c(raiz, mensajes);
  const auto antes = Nominales();
  ASSERT_TRUE(c.Aplicar("Defecto", "EquipoAA", "Equipo_Split", 1, bloque));
  EXPECT_EQ(Nominales(), antes);
  EXPECT_EQ(bloque.Fabricante, "Defecto");
  EXPECT_EQ(bloque.Modelo, "uno");
  const CurvasEquipo& k = bloque.curvas;
  EXPECT_THAT(k.aR, ElementsAre(1.1F, 0, 0, 0, 0, 0.15F));
  EXPECT_THAT(k.eR, ElementsAre(1.2F, 0, 0, 0, 0, 0, 0.26F));
  EXPECT_THAT(k.bR, ElementsAre(1.3F, 0, 0, 0, 0, 0.35F));
  EXPECT_THAT(k.cR, ElementsAre(0.4F, 0, 0, 0.43F));
  EXPECT_THAT(k.aaQ, ElementsAre(1.5F, 0, 0, 0, 0, 0.55F));
  EXPECT_THAT(k.abQ, ElementsAre(1.6F, 0, 0, 0, 0, 0.65F));
  EXPECT_THAT(k.baQ, ElementsAre(1.7F, 0, 0, 0, 0, 0.75F));
  EXPECT_THAT(k.bbQ, ElementsAre(1.8F, 0, 0, 0, 0, 0.85F));
  EXPECT_THAT(k.cQ, ElementsAre(0.9F, 0, 0, 0.93F));
  EXPECT_THAT(k.cC, ElementsAre(2, 0, 0, 2.3F));
  EXPECT_THAT(k.gC, ElementsAre(3, 0, 0, 3.3F));
  EXPECT_EQ(k.TeCambio, -7.5F);
  ASSERT_TRUE(c.Aplicar("Marca", "EquipoAA", "Equipo_MultiSplit", 1, bloque));
  EXPECT_THAT(Nominales(), ElementsAre(10, 7, 4, 12, 3));
  bloque.QFrioSen1 = 2;  // el de caudal variable y el de agua no traen la sensible
  for (const auto& [familia, tipo] :
       {std::pair{"EquipoAA", "Caudal_refrigerante_variable"}, {"EquipoAW", "BC_aire_agua"}}) {
    bloque.QFrioTot1 = bloque.WeCalor1 = 0;
    ASSERT_TRUE(c.Aplicar("Marca", familia, tipo, 1, bloque));
    EXPECT_THAT(Nominales(), ElementsAre(10, 2, 4, 12, 3)) << tipo;
  }
  // Una caldera solo trae curvas.
  ASSERT_TRUE(c.Aplicar("Calderas", "Generadores", "Generadores", 1, bloque));
  EXPECT_EQ(bloque.QcalorCaldera1, 6.0F);
  EXPECT_EQ(bloque.Modelo, "gas");
}

TEST_F(Catalogo, TiposYCurvasGenericasDeUnCaso) {
  EXPECT_EQ(TipoDeCatalogo("Equipo MultiSplit").tipo, "Equipo_MultiSplit");
  EXPECT_EQ(TipoDeCatalogo("1 BC aire-agua + 1 Caldera").tipo, "BC_aire_agua");
  EXPECT_EQ(TipoDeCatalogo("1 Caldera Mixta").familia, "Generadores");
  EXPECT_TRUE(TipoDeCatalogo("Radiadores eléctricos").familia.empty());
  Edificio edificio;
  SistemaResidencial s;
  s.instalaciones.resize(3);
  for (Instalaciones& i : s.instalaciones) {
    i.Seleccion = "Equipo MultiSplit";
    i.Fabricante = "Defecto";
    i.Modelo = "dos";
  }
  s.instalaciones[1].Fabricante = "Marca";  // lo de un fabricante va en el proyecto
  s.instalaciones[2].Modelo = "ninguno";
  edificio.AnadirSistema(s);
  CatalogoEquipos(raiz, mensajes).PonerCurvasGenericas(edificio);
  const auto& bloques = edificio.GetSistema(0).instalaciones;
  EXPECT_EQ(bloques[0].curvas.aR[0], 1.1F);
  EXPECT_EQ(bloques[0].QFrioTot1, 0.0F);
  EXPECT_EQ(bloques[1].curvas.aR[0], 0.0F);
  EXPECT_EQ(bloques[2].curvas.aR[0], 0.0F);
}

}  // namespace
}  // namespace novex
