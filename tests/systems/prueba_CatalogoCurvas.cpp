// El catálogo que se entrega, data/database/Equipos.xml: que sus curvas valgan 1 en las condiciones
// nominales y tengan sentido físico en todo el margen de uso.

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
