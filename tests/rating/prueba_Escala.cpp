#include "rating/Escala.h"

#include <gtest/gtest.h>

#include <cmath>

#include "rating/EdificioPrueba.h"

namespace novex {
namespace {

using pruebas::CambiarGenerales;
using pruebas::EdificioDe100;
using pruebas::PonerLugar;

constexpr auto Fila(Indicador i) {
  return static_cast<std::size_t>(i);
}

std::unique_ptr<Edificio> Vivienda(const std::string& modo, const std::string& zona = "D3") {
  auto edificio = EdificioDe100(0, "SI");
  CambiarGenerales(*edificio, [&](DatosGenerales& g) { g.Modo_trabajo = modo; });
  PonerLugar(*edificio, zona);
  return edificio;
}

EscalaCaso EscalaDe(Indicador indicador, const std::array<float, 6>& th) {
  EscalaCaso escala;
  escala.th[Fila(indicador)] = th;
  return escala;
}

TEST(Letra, UnValorIgualAlUmbralTomaLaPeor) {
  const auto edificio = Vivienda("Existente");
  const auto escala = EscalaDe(Indicador::EmisionesACS, {1, 2, 3, 4, 5, 6});
  const std::pair<float, const char*> casos[] = {{-1, "A"}, {0.999F, "A"}, {1, "B"}, {2, "C"},
                                                 {3, "D"},  {3.999F, "D"}, {4, "E"}, {4.999F, "E"},
                                                 {5, "F"},  {6, "G"},      {99, "G"}};
  for (const auto& [valor, letra] : casos)
    EXPECT_EQ(Letra("EmisionesACS", valor, *edificio, escala), letra) << valor;
  // El más cercano por debajo no llega al umbral.
  EXPECT_EQ(Letra("EmisionesACS", std::nextafter(1.0F, 0.0F), *edificio, escala), "A");
  // La obra nueva y la fila sin escala completa no pasan de "E".
  const auto completa = EscalaDe(Indicador::EmisionesACS, {1, 2, 3, 4, 5, 6});
  const auto incompleta = EscalaDe(Indicador::EmisionesACS, {1, 2, 3, 4, 5, 0});
  for (const float valor : {4.0F, 5.0F, 6.0F, 100.0F}) {
    EXPECT_EQ(Letra("EmisionesACS", valor, *Vivienda("Nuevo"), completa), "E") << valor;
    EXPECT_EQ(Letra("EmisionesACS", valor, *Vivienda("Existente"), incompleta), "E") << valor;
  }
  EXPECT_EQ(Letra("EmisionesACS", 3.5F, *Vivienda("Existente"), incompleta), "D");
  EXPECT_EQ(Letra("EmisionesACS", 0, *Vivienda("Existente"), EscalaCaso{}), "E");
}

TEST(Letra, SinRefrigeracionCalificadaEnTresZonasYSoloEnViviendas) {
  auto terciario = EdificioDe100(7, "NO");
  PonerLugar(*terciario, "D1");
  const EscalaCaso escala;
  for (const char* clave :
       {"DemandaRefrigeracion", "EmisionesRefrigeracion", "EPriNoRRefrigeracion"}) {
    for (const char* zona : {"C1", "D1", "E1"})
      EXPECT_EQ(Letra(clave, 1, *Vivienda("Nuevo", zona), escala), "( - )") << clave << zona;
    EXPECT_EQ(Letra(clave, 1, *Vivienda("Nuevo", "D1c"), escala), "E") << clave;
    EXPECT_EQ(Letra(clave, 1, *terciario, escala), "E") << clave;
  }
  EXPECT_EQ(Letra("DemandaCalefaccion", 1, *Vivienda("Nuevo", "C1"), escala), "E");
  // Una clave desconocida es la de emisiones totales.
  const auto deTotales = EscalaDe(Indicador::EmisionesTotales, {10, 20, 30, 40, 50, 60});
  EXPECT_EQ(Letra("CEPtotal", 15, *Vivienda("Nuevo"), deTotales), "B");
  for (std::size_t i = 0; i < kIndicadores; ++i)
    EXPECT_EQ(IndicadorDeClave(ClaveIndicador(static_cast<Indicador>(i))),
              static_cast<Indicador>(i));
}

TEST(ClaveLocalidad, DeCadaClaseDeZona) {
  const std::pair<const char*, const char*> zonas[] = {{"D3", "D3_peninsular"},
                                                       {"alfa1c", "alpha1_extrapeninsular"},
                                                       {"A1c", "A1_extrapeninsular"},
                                                       {"E1c", "E1_extrapeninsular"},
                                                       {"A1", ""},
                                                       {"", ""},
                                                       {"D3_peninsular", ""},
                                                       {"alfa3", ""}};
  for (const auto& [zona, clave] : zonas) EXPECT_EQ(ClaveLocalidad(zona), clave) << zona;
}

// Un tipo con referencias y límites; los de cada indicador empiezan en `base` más su posición.
std::string Tipo(const std::string& nombre, int base) {
  static constexpr const char* kNombres[] = {"DemandaCalefaccion",
                                             "DemandaRefrigeracion",
                                             "EmisionesCalefaccion",
                                             "EmisionesRefrigeracion",
                                             "EmisionesACS",
                                             "CEPcalefaccion",
                                             "CEPrefrigeracion",
                                             "CEPACS",
                                             "CEPtotal",
                                             "EmisionesTotales"};
  std::string texto = "<Tipo nombre=\"" + nombre + "\">";
  for (const auto& [referencia, mas] : {std::pair{"Nuevo", 500}, std::pair{"Existente", 600}}) {
    texto += std::string("<Referencia nombre=\"") + referencia + "\">";
    for (const char* n : kNombres)
      texto += std::string("<") + n + ">" + std::to_string(base + mas) + "</" + n + ">";
    texto +=
        "<DemandaACS>30</DemandaACS><DemandaACS_solar_minima>12</DemandaACS_solar_minima>"
        "</Referencia>";
  }
  for (const char* n : kNombres) {
    texto += std::string("<Limites nombre=\"") + n + "\">";
    for (int k = 0; k < 6; ++k) texto += "<t>" + std::to_string(base + k) + ".5</t>";
    texto += "</Limites>";
    base += 10;
  }
  return texto + "</Tipo>";
}

XMLNode Localidades() {
  std::string texto =
      "<Base_Datos><Localidad nombre=\"C4_peninsular\"/>"
      "<Localidad nombre=\"D3_peninsular\">" +
      Tipo("Unifamiliar", 1000) + Tipo("Bloque", 2000) + "</Localidad>";
  // Una zona sin escala de refrigeración ni referencias.
  texto +=
      "<Localidad nombre=\"D1_peninsular\"><Tipo nombre=\"Unifamiliar\">"
      "<Limites nombre=\"DemandaRefrigeracion\"><t/><t>7</t></Limites>"
      "<Limites nombre=\"DemandaCalefaccion\"><t/><t>7</t></Limites></Tipo></Localidad>";
  return XMLNode::parseString(texto + "</Base_Datos>", "Base_Datos", "Localidades.xml");
}

EscalaCaso Cargar(const Edificio& edificio, EscalaCaso escala = {}) {
  RegistroMensajes mensajes;
  CargarEscala(Localidades(), edificio, escala, mensajes);
  EXPECT_TRUE(mensajes.recibidos.empty());
  return escala;
}

TEST(CargarEscala, LeeLaZonaYElTipoEnSuFila) {
  const EscalaCaso unifamiliar = Cargar(*Vivienda("Nuevo"));
  EXPECT_FLOAT_EQ(unifamiliar.th[Fila(Indicador::DemandaCalefaccion)][0], 1000.5F);
  EXPECT_FLOAT_EQ(unifamiliar.th[Fila(Indicador::EPriNoRTotales)][5], 1085.5F);
  EXPECT_FLOAT_EQ(unifamiliar.th[Fila(Indicador::EmisionesTotales)][2], 1092.5F);
  EXPECT_EQ(unifamiliar.th[Fila(Indicador::EmisionesIlu)][5], 0);

  auto bloque = Vivienda("Nuevo");
  for (const int perfil : {1, 2}) {
    CambiarGenerales(*bloque, [&](DatosGenerales& g) { g.PerfilUso = perfil; });
    EXPECT_FLOAT_EQ(Cargar(*bloque).th[Fila(Indicador::DemandaCalefaccion)][0], 2000.5F);
  }
  // La referencia es la de lo nuevo también en una ampliación.
  EscalaCaso escala = Cargar(*Vivienda("Nuevo"));
  EXPECT_FLOAT_EQ(escala.referencia[Fila(Indicador::EmisionesACS)], 1500);
  EXPECT_FLOAT_EQ(escala.DemandaACS, 30);
  EXPECT_FLOAT_EQ(escala.DemandaACS_solar_minima, 12);

  escala = Cargar(*Vivienda("Existente"));
  EXPECT_FLOAT_EQ(escala.referencia[Fila(Indicador::EmisionesACS)], 1600);
  EXPECT_FLOAT_EQ(escala.DemandaACS_solar_minima, 30);

  auto ampliacion = Vivienda("Existente");
  CambiarGenerales(*ampliacion, [](DatosGenerales& g) { g.Reforma = "Ampliación "; });
  escala = Cargar(*ampliacion);
  EXPECT_FLOAT_EQ(escala.referencia[Fila(Indicador::EmisionesACS)], 1500);
  EXPECT_FLOAT_EQ(escala.DemandaACS_solar_minima, 30);
  EXPECT_EQ(Letra("EmisionesACS", 1e6F, *ampliacion, escala), "G");
}

TEST(CargarEscala, LoQueFaltaQuedaComoEstaba) {
  EscalaCaso previa;
  for (auto& fila : previa.th) fila.fill(3);
  previa.referencia.fill(4);
  // Zona sin elemento, zona sin tipo y zona desconocida.
  for (const char* zona : {"B3", "C4", "X9"}) {
    const EscalaCaso escala = Cargar(*Vivienda("Nuevo", zona), previa);
    EXPECT_EQ(escala.th, previa.th) << zona;
    EXPECT_EQ(escala.referencia, previa.referencia) << zona;
  }
  // Sin escala de refrigeración la fila se salta; en otra fila el texto que falta es 0.
  const EscalaCaso escala = Cargar(*Vivienda("Nuevo", "D1"), previa);
  EXPECT_FLOAT_EQ(escala.th[Fila(Indicador::DemandaRefrigeracion)][1], 3);
  EXPECT_FLOAT_EQ(escala.th[Fila(Indicador::DemandaCalefaccion)][0], 0);
  EXPECT_FLOAT_EQ(escala.th[Fila(Indicador::DemandaCalefaccion)][1], 7);
  EXPECT_FLOAT_EQ(escala.referencia[Fila(Indicador::EmisionesACS)], 4);
}

TEST(CargarEscala, TerciarioPorRazonesDelEdificioDeReferencia) {
  EscalaCaso escala;
  for (std::size_t i = 0; i < kIndicadores; ++i) escala.referencia[i] = static_cast<float>(10 * i);
  escala = Cargar(*EdificioDe100(7, "NO"), escala);
  const auto& calefaccion = escala.th[Fila(Indicador::DemandaCalefaccion)];
  const float razones[] = {4, 6.5F, 10, 13, 16, 20};
  for (std::size_t k = 0; k < 6; ++k) EXPECT_FLOAT_EQ(calefaccion[k], razones[k]) << k;
  // Total de emisiones: 30 + 40 + 50 de los servicios y 100 de la iluminación.
  EXPECT_FLOAT_EQ(escala.th[Fila(Indicador::EmisionesTotales)][2], 220);
  EXPECT_FLOAT_EQ(escala.th[Fila(Indicador::EPriNoRTotales)][2], 90);
  EXPECT_FLOAT_EQ(escala.th[Fila(Indicador::EPriNoRIlu)][5], 220);
}

class Calificar : public testing::Test {
 protected:
  Calificar() {
    // Emisiones y primaria no renovable de cada servicio, con potencias de 2 que se ven en la suma.
    const float valores[] = {1, 2, 4, 8, 16};
    for (std::size_t s = 0; s < kServicios; ++s)
      for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
        caso->resultados.servicio[s].porUnidad[u][0] =
            valores[s] * (u == kPrimariaNoRenovable ? 10.0F : 1.0F);
  }
  float Total(const Edificio& edificio, UnidadEnergia unidad = kEmisiones) {
    CalificarCaso(edificio, *caso);
    return caso->resultados.total[unidad];
  }
  std::unique_ptr<calculo> caso = std::make_unique<calculo>();
};

TEST_F(Calificar, LosTotalesCuentanLosServiciosDeSuUso) {
  EXPECT_FALSE(caso->resultados.calificado);
  EXPECT_FLOAT_EQ(Total(*Vivienda("Nuevo")), 1 + 2 + 4 + 8);
  EXPECT_TRUE(caso->resultados.calificado);
  EXPECT_FLOAT_EQ(Total(*EdificioDe100(3, "NO")), 31);
  EXPECT_FLOAT_EQ(Total(*EdificioDe100(3, "NO"), kPrimariaNoRenovable), 310);

  auto sinFrio = Vivienda("Nuevo", "E1");
  EXPECT_FLOAT_EQ(Total(*sinFrio), 1 + 2 + 8);
  EXPECT_FLOAT_EQ(Total(*sinFrio, kPrimariaTotal), 1 + 2 + 8);
  CambiarGenerales(*sinFrio, [](DatosGenerales& g) { g.Tiposimulacion = "Simulacion"; });
  EXPECT_FLOAT_EQ(Total(*sinFrio), 15);
  caso->resultados.demandaCalefaccion = 50;
  caso->resultados.demandaRefrigeracion = 60;
  // El valor de cada indicador, y un umbral th2 justo por encima: todos han de dar "C".
  const float valores[kIndicadores] = {31, 50, 60, 2, 4, 1, 20, 40, 10, 310, 16, 160};
  for (std::size_t i = 0; i < kIndicadores; ++i) {
    const float v = valores[i];
    caso->resultados.escala.th[i] = {v * 0.98F, v * 0.99F, v * 1.01F, v * 1.1F, v * 2, v * 3};
  }
  CalificarCaso(*EdificioDe100(7, "NO"), *caso);
  for (std::size_t i = 0; i < kIndicadores; ++i)
    EXPECT_EQ(caso->resultados.escala.letra[i], "C") << ClaveIndicador(static_cast<Indicador>(i));
}

}  // namespace
}  // namespace novex
