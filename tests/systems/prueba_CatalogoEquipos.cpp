#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "systems/CatalogoEquipos.h"
#include "systems/Curvas.h"

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

constexpr float kNominal = 0.02F;  // desvío admitido del 1 en el punto nominal
constexpr float kPaso = 0.5F;      // °C entre puntos
constexpr float kBulboNominal = 6.0F, kBulboMinimo = -15.0F, kBulboMaximo = 20.0F;
constexpr float kExteriorNominal = 35.0F, kExteriorMinimo = 15.0F, kExteriorMaximo = 45.0F;
constexpr float kConsignaCalor = 20.0F, kAguaCaliente = 45.0F, kAguaFria = 7.0F;
constexpr float kHumedoInterior = 19.0F, kSecoInterior = 27.0F;

constexpr std::string_view kAireAire = "EquipoAA", kAireAgua = "EquipoAW";
constexpr std::string_view kEnfriadora = "Enfriadora_agua_cond_aire";
constexpr std::string_view kComercial = "Genérico comercial";

struct Entrada {
  std::string_view fabricante, familia, tipo;
  ModeloEquipo modelo;
};

auto Entre(float minimo, float maximo) {
  return testing::AllOf(testing::Gt(minimo), testing::Lt(maximo));
}

// El catálogo que se entrega, data/database/Equipos.xml: que sus curvas valgan 1 en las condiciones
// nominales y tengan sentido físico en todo el margen de uso.
class CatalogoEntregado : public testing::Test {
 protected:
  static CatalogoEquipos Abrir(Mensajes& mensajes) {
    return {XMLNode::loadFile(std::filesystem::path(NOVEX_RAIZ_DATOS) / "database" / "Equipos.xml",
                              "EquiposNovex"),
            mensajes};
  }

  CatalogoEntregado() {
    for (const char* seleccion : kClases) {
      const TipoCatalogo t = TipoDeCatalogo(seleccion);
      const auto repetido = [&t](const Entrada& e) {
        return e.familia == t.familia && e.tipo == t.tipo;
      };
      if (std::any_of(entradas.begin(), entradas.end(), repetido)) continue;
      for (std::string_view fabricante : {std::string_view(kFabricanteDefecto), kComercial})
        for (ModeloEquipo& m : catalogo.Modelos(fabricante, t.familia, t.tipo))
          entradas.push_back({fabricante, t.familia, t.tipo, std::move(m)});
    }
  }

  static constexpr const char* kClases[] = {
      "1 Calentador",      "1 Caldera",        "1 Caldera Mixta",
      "1 BC aire-agua",    "Equipo Split",     "1 BC aire-agua + 1 Caldera",
      "Equipo de Ventana", "Equipo Conductos", "Enfriadora agua cond.aire",
      "Equipo MultiSplit", "Rooftop",          "Caudal refrigerante variable"};

  RegistroMensajes mensajes;
  CatalogoEquipos catalogo = Abrir(mensajes);
  std::vector<Entrada> entradas;
};

// 1 en el nominal, dentro de los límites y monótona: con `signo` 1 crece, con -1 baja y con 0 da
// igual.
void Comprobar(const std::string& nombre, const std::function<float(float)>& cociente,
               float nominal, float desde, float hasta, int signo) {
  SCOPED_TRACE(nombre);
  EXPECT_NEAR(cociente(nominal), 1.0F, kNominal);
  for (float t = desde; t <= hasta; t += kPaso) {
    EXPECT_THAT(cociente(t), Entre(0.3F, 1.6F)) << "a " << t << " °C";
    if (signo == 0 || t + kPaso > hasta) continue;
    EXPECT_GT(static_cast<float>(signo) * (cociente(t + kPaso) - cociente(t)), 0.0F)
        << "a " << t << " °C";
  }
}

TEST_F(CatalogoEntregado, CadaClaseTieneModelosGenericosYComerciales) {
  for (const char* seleccion : kClases) {
    const TipoCatalogo t = TipoDeCatalogo(seleccion);
    EXPECT_THAT(catalogo.Fabricantes(t.familia, t.tipo),
                testing::ElementsAre(kFabricanteDefecto, std::string(kComercial)))
        << seleccion;
    EXPECT_FALSE(catalogo.Modelos(kFabricanteDefecto, t.familia, t.tipo).empty()) << seleccion;
    EXPECT_FALSE(catalogo.Modelos(kComercial, t.familia, t.tipo).empty()) << seleccion;
  }
  EXPECT_TRUE(mensajes.recibidos.empty()) << mensajes.recibidos.front().texto;
}

// La capacidad y la eficiencia de una bomba de calor suben con el bulbo húmedo exterior.
TEST_F(CatalogoEntregado, CalorSubeConLaTemperaturaExterior) {
  int comprobados = 0;
  for (const Entrada& e : entradas) {
    if (e.familia == "Generadores" || e.tipo == kEnfriadora) continue;
    ++comprobados;
    SCOPED_TRACE(e.modelo.modelo);
    const CurvasEquipo& c = e.modelo.curvas;
    const float x = e.familia == kAireAire ? kConsignaCalor : kAguaCaliente;
    const auto capacidad = [&](float t) { return curvas::CapacidadCalor(c, x, t); };
    const auto consumo = [&](float t) { return curvas::ConsumoCalor(c, x, t); };
    Comprobar("capacidad", capacidad, kBulboNominal, kBulboMinimo, kBulboMaximo, 1);
    Comprobar("consumo", consumo, kBulboNominal, kBulboMinimo, kBulboMaximo, 0);
    // Al pasar por la temperatura de cambio la eficiencia puede perder una centésima.
    float anterior = 0.0F;
    for (float t = kBulboMinimo; t <= kBulboMaximo; t += kPaso) {
      const float eficiencia = capacidad(t) / consumo(t);
      EXPECT_GE(eficiencia, anterior - 0.01F) << "a " << t << " °C";
      anterior = eficiencia;
    }
    // Las dos ramas se juntan.
    const float cambio = c.TeCambio;
    EXPECT_NEAR(capacidad(cambio), capacidad(cambio + 1e-3F), 1e-3F);
    EXPECT_NEAR(consumo(cambio), consumo(cambio + 1e-3F), 1e-3F);
  }
  EXPECT_GT(comprobados, 0);
}

// En frío la capacidad baja con la temperatura exterior y el consumo sube.
TEST_F(CatalogoEntregado, FrioBajaConLaTemperaturaExterior) {
  int comprobados = 0;
  for (const Entrada& e : entradas) {
    if (e.familia == "Generadores") continue;
    ++comprobados;
    SCOPED_TRACE(e.modelo.modelo);
    const CurvasEquipo& c = e.modelo.curvas;
    const float x = e.familia == kAireAire ? kHumedoInterior : kAguaFria;
    const auto comprobar = [](const char* nombre, const std::function<float(float)>& f, int signo) {
      Comprobar(nombre, f, kExteriorNominal, kExteriorMinimo, kExteriorMaximo, signo);
    };
    comprobar(
        "capacidad", [&](float t) { return curvas::Bicuadratica(c.aR, x, t); }, -1);
    comprobar(
        "consumo", [&](float t) { return curvas::Bicuadratica(c.bR, x, t); }, 1);
    if (e.familia != kAireAire) continue;
    comprobar(
        "sensible", [&](float t) { return curvas::SieteTerminos(c.eR, x, kSecoInterior, t); }, -1);
  }
  EXPECT_GT(comprobados, 0);
}

// Menos carga, menos consumo; a plena carga, el nominal.
TEST_F(CatalogoEntregado, CargaParcialDeCeroAUnoYCalderasCercaDelNominal) {
  const auto comprobar = [](const std::array<float, 4>& c) {
    EXPECT_NEAR(curvas::CargaParcial(c, 1.0F), 1.0F, kNominal);
    EXPECT_EQ(curvas::CargaParcial(c, 0.0F), 0.0F);
    for (float p = 0.0F; p < 0.995F; p += 0.01F)
      EXPECT_LT(curvas::CargaParcial(c, p), curvas::CargaParcial(c, p + 0.01F)) << "a " << p;
  };
  for (const Entrada& e : entradas) {
    if (e.familia == "Generadores") continue;
    SCOPED_TRACE(e.modelo.modelo);
    comprobar(e.modelo.curvas.cR);
    if (e.tipo != kEnfriadora) comprobar(e.modelo.curvas.cQ);
  }
  // El generador recibe la carga parcial sin limitar y, cuando está solo, la temperatura 0.
  int comprobados = 0;
  for (const Entrada& e : entradas) {
    if (e.familia != "Generadores") continue;
    ++comprobados;
    SCOPED_TRACE(e.modelo.modelo);
    const CurvasEquipo& c = e.modelo.curvas;
    EXPECT_NEAR(curvas::RendimientoCaldera(c, 1.0F, 0.0F), 1.0F, kNominal);
    for (float p = 0.0F; p <= 8.0F; p += 0.05F)
      EXPECT_THAT(curvas::RendimientoCaldera(c, p, 0.0F), Entre(0.8F, 1.1F)) << p;
    // El agua más caliente nunca mejora el rendimiento, ni lo hunde.
    for (float t = 5.0F; t <= 80.0F; t += 5.0F)
      EXPECT_LE(curvas::RendimientoCaldera(c, 1.0F, t),
                curvas::RendimientoCaldera(c, 1.0F, t - 5.0F))
          << t;
    EXPECT_GT(curvas::RendimientoCaldera(c, 1.0F, 80.0F), 0.9F);
  }
  EXPECT_GT(comprobados, 0);
}

TEST_F(CatalogoEntregado, PotenciasComercialesCreibles) {
  for (const Entrada& e : entradas) {
    if (e.fabricante != kComercial) continue;
    SCOPED_TRACE(e.modelo.modelo);
    const ModeloEquipo& m = e.modelo;
    const auto mismasCurvas = [&](const ModeloEquipo& g) { return g.curvas == m.curvas; };
    const std::vector<ModeloEquipo> genericos =
        catalogo.Modelos(kFabricanteDefecto, e.familia, e.tipo);
    EXPECT_TRUE(std::any_of(genericos.begin(), genericos.end(), mismasCurvas));
    if (e.familia == "Generadores") {
      EXPECT_THAT(m.COP(), Entre(0.85F, 1.05F));  // rendimiento sobre PCI
      continue;
    }
    if (m.PotTotRef > 0.0F) {
      EXPECT_THAT(m.EER(), Entre(2.4F, 4.2F));
    }
    if (e.tipo != kEnfriadora) {
      EXPECT_THAT(m.COP(), Entre(2.6F, 4.6F));
    }
    if (e.familia == kAireAire && e.tipo != "Caudal_refrigerante_variable") {
      EXPECT_THAT(m.PotSenRef / m.PotTotRef, Entre(0.65F, 0.85F));
    }
  }
}

}  // namespace
}  // namespace novex
