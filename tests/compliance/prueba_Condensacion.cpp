#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/FicheroSeguro.h"
#include "compliance/DocumentosCondensacion.h"
#include "files/CarpetaTemporal.h"
#include "files/xmlParser.h"
#include "model/Cambios.h"

namespace novex {
namespace {

using namespace ranura;

constexpr float kInfinito = std::numeric_limits<float>::infinity();
constexpr const char* kVentilada = "Cámara de aire ligeramente ventilada";

struct Capa {
  float e, lambda, R, mu;
  bool camara = false;
};

void Poner(Edificio& edificio, std::size_t posicion, const std::string& nombre, float U,
           const std::vector<Capa>& capas) {
  edificio.GetComposicion(posicion).nombre = nombre;
  edificio.GetComposicion(posicion).U = U;
  for (const Capa& capa : capas) {
    material m;
    m.Material = "capa " + std::to_string(edificio.NumeroMateriales());
    m.Nombre_material = capa.camara ? kVentilada : m.Material;
    m.Espesor = capa.e;
    m.Conductividad = capa.lambda;
    m.Resistencia_termica = capa.R;
    m.Resisvidad_relativa_vapor = capa.mu;
    edificio.AnadirMaterial(std::move(m), posicion);
  }
}

void PonerSitio(Edificio& edificio, int clase, float Te, float Pe) {
  DatosClimaticosSitio sitio;
  sitio.Tproyecto = Te;
  sitio.Pvproyecto = Pe;
  edificio.SetDatosClimaticosSitio(sitio);
  pruebas::CambiarConstruccion(edificio, [&](Construccion& c) { c.Clase_de_higrometria = clase; });
}

void PonerPuentes(Edificio& edificio, const std::array<float, kPuentes>& fi, int sinPilares) {
  pruebas::CambiarConstruccion(edificio, [&](Construccion& c) {
    c.fi_Puentes = fi;
    c.Existencia_pilares = sinPilares;
  });
}

// Te = 0 °C, Pe = 550 Pa, HR = 70 %: Pi = 0,7 × 2338,8 = 1637,2 Pa. Película exterior 0,04 e
// interior 1/7,69 = 0,130039 m2K/W; con las capas, RT = 0,8 y 25 K por m2K/W. De fuera adentro:
//   θ = 20 × 0,04/0,8 = 1; 20 × 0,20/0,8 = 5; 20 × 0,40/0,8 = 10; 20 × 0,669961/0,8 = 16,749 °C
//   Psat (tablas de vapor) = 657,1; 872,6; 1228,0; 1907 (1818 a 16 °C y 1938 a 17 °C)
constexpr float kRInterior = 0.269961F;
std::vector<Capa> MuroDensoFuera() {  // sd 1,2 + 0,1 + 0,2 = 1,5 m
  return {{0.12F, 0.75F, 0, 10}, {0.05F, 0.25F, 0, 2}, {0.1F, 0, kRInterior, 2}};
}
std::vector<Capa> MuroDensoDentro() {  // sd 0,2 + 0,1 + 1,2 = 1,5 m
  return {{0.1F, 0.625F, 0, 2}, {0.05F, 0.25F, 0, 2}, {0.12F, 0, kRInterior, 10}};
}

TEST(CondicionesCondensacion, PorClaseDeHigrometriaYTemperatura) {
  struct Caso {
    int clase;
    float Te;
    double HR, theta, fRsiMin;
  };
  // Pmin = HR × 23,37 × 1,25 = 1606,7, 1811,2 y 2044,9 Pa; x = ln(Pmin/610,5) = 0,96765, 1,08745 y
  // 1,20881; θ = 237,3 x/(17,269 − x); fRsi,min = (θ − Te)/(20 − Te).
  const Caso casos[] = {{0, 0, 55, 14.0862, 0.70431},
                        {1, 0, 62, 15.9473, 0.79737},
                        {2, 0, 70, 17.8610, 0.89305},
                        {2, 10, 70, 17.8610, 0.78610},
                        {7, 0, 55, 14.0862, 0.70431},
                        {-1, -5, 55, 14.0862, 0.76345},
                        {0, 16, 55, 14.0862, 0},
                        {2, 20, 70, 17.8610, 0},
                        {0, kInfinito, 55, 14.0862, 0.70431}};
  for (const Caso& caso : casos) {
    Edificio edificio;
    PonerSitio(edificio, caso.clase, caso.Te, 550);
    const auto c = CondicionesDeCondensacion(edificio);
    EXPECT_EQ(c.HR, caso.HR);
    EXPECT_NEAR(c.Pi, caso.HR * 23.388, 0.5);
    EXPECT_NEAR(c.theta, caso.theta, 5e-4);
    EXPECT_NEAR(c.fRsiMin, caso.fRsiMin, 5e-5) << caso.clase << " " << caso.Te;
  }
}

TEST(CondensacionElementos, MuroQueCondensaYMuroQueNo) {
  Edificio edificio;
  PonerSitio(edificio, 2, 0, 550);
  Poner(edificio, MuroExt1, "Denso fuera", 1.25F, MuroDensoFuera());
  Poner(edificio, MuroExt2, "Denso dentro", 0.4F, MuroDensoDentro());
  const auto c = CondicionesDeCondensacion(edificio);
  const auto e = CondensacionElementos(edificio, c);
  ASSERT_EQ(e.size(), 2U);
  // P = 550 + 1087,2 × s/1,5, con s = 1,2; 1,3; 1,5 y con s = 0,2; 0,3; 1,5.
  const double T[] = {1, 5, 10, 16.749}, Psat[] = {657.1, 872.6, 1228.0, 1907};
  const double P[2][4] = {{550, 1419.8, 1492.2, 1637.2}, {550, 695.0, 767.4, 1637.2}};
  const double x[2][4] = {{0, 0.12, 0.17, 0.27}, {0, 0.1, 0.15, 0.27}};
  for (std::size_t m = 0; m < 2; ++m) {
    ASSERT_EQ(e[m].interfaces.size(), 4U);
    for (std::size_t k = 0; k < 4; ++k) {
      EXPECT_NEAR(e[m].interfaces[k].T, T[k], 1e-3);
      EXPECT_NEAR(e[m].interfaces[k].Psat, Psat[k], k < 3 ? 0.6 : 3.0);
      EXPECT_NEAR(e[m].interfaces[k].P, P[m][k], 0.6);
      EXPECT_NEAR(e[m].interfaces[k].x, x[m][k], 1e-6);
    }
  }
  EXPECT_FALSE(e[0].cumpleIntersticial);
  EXPECT_EQ(e[0].InterfazPeor(), 1U);  // 547 Pa de más; en la segunda, 264
  EXPECT_NEAR(e[0].fRsi, 0.6875, 1e-9);
  EXPECT_FALSE(e[0].cumpleSuperficial);
  EXPECT_EQ(e[1].InterfazPeor(), 1U);  // quedan 178 Pa; en las otras, 461 y 270
  EXPECT_TRUE(e[1].Cumple());          // 0,9 frente a 0,893

  // En la cara exterior no se comprueba: 700 Pa pasan de los 657,1 de 1 °C.
  PonerSitio(edificio, 2, 0, 700);
  EXPECT_TRUE(CondensacionElementos(edificio, CondicionesDeCondensacion(edificio))[1].Cumple());
}

TEST(CondensacionElementos, ElSueloAlExteriorSeRecorreDesdeSuUltimaCapa) {
  Edificio edificio;
  PonerSitio(edificio, 2, 0, 550);
  // Películas 1/5,88 = 0,170068 fuera y 0,04 dentro; RT = 0,8. Desde fuera θ = 20 × 0,170068/0,8 =
  // 4,2517; 20 × 0,6/0,8 = 15; 20 × 0,76/0,8 = 19 °C. La primera tiene 1,3 m de los 1,5.
  Poner(edificio, SueloExt1, "Suelo", 0.5F, {{0.1F, 0.625F, 0, 2}, {0.13F, 0, 0.429932F, 10}});
  const auto e = CondensacionElementos(edificio, CondicionesDeCondensacion(edificio)).at(0);
  const double T[] = {4.2517, 15, 19}, P[] = {550, 1492.2, 1637.2}, x[] = {0, 0.13, 0.23};
  for (std::size_t k = 0; k < 3; ++k) {
    EXPECT_NEAR(e.interfaces.at(k).T, T[k], 1e-3);
    EXPECT_NEAR(e.interfaces.at(k).P, P[k], 0.6);
    EXPECT_NEAR(e.interfaces.at(k).x, x[k], 1e-6);
  }
  // La conductividad y la resistencia de una capa se suman: 0,04 + 0,2/2 + 0,1 + 0,130039 =
  // 0,370039; θ1 = 20 × 0,24/0,370039 = 12,9716 °C.
  Poner(edificio, MuroExt1, "Muro", 1, {{0.2F, 2, 0.1F, 5}});
  const auto muro = CondensacionElementos(edificio, CondicionesDeCondensacion(edificio)).at(0);
  EXPECT_NEAR(muro.interfaces.at(1).T, 12.9716, 1e-3);
}

TEST(CondensacionElementos, UnaCamaraVentiladaDaAlInteriorTodoElVapor) {
  struct Caso {
    std::size_t posicion;
    std::vector<std::pair<float, bool>> capas;  // sd y si es la cámara, en el orden guardado
    std::vector<double> f;                      // (P − Pe)/(Pi − Pe), de fuera adentro
  };
  // La cámara suma en el total, 2,05 o 3,05 m, y no en lo recorrido.
  const Caso casos[] = {
      {MuroExt1, {{1, false}, {0.05F, false}, {2, false}}, {1 / 3.05, 1.05 / 3.05, 1}},
      {MuroExt1, {{1, false}, {0.05F, true}, {2, false}}, {0, 0, 2 / 2.05}},
      {MuroExt1, {{0.05F, true}, {1, false}, {2, false}}, {0, 1 / 3.05, 3 / 3.05}},
      {MuroExt1, {{0.05F, true}, {0.05F, true}, {2, false}}, {0, 0, 2 / 2.05}},
      {MuroExt1, {{1, false}, {2, false}, {0.05F, true}}, {0, 0, 0}},
      {SueloExt1, {{2, false}, {0.05F, true}, {1, false}}, {0, 0, 2 / 2.05}},
      {SueloExt1, {{2, false}, {1, false}, {0.05F, true}}, {0, 1 / 3.05, 3 / 3.05}},
      {SueloExt1, {{0.05F, true}, {2, false}, {1, false}}, {0, 0, 0}}};
  for (std::size_t n = 0; n < std::size(casos); ++n) {
    Edificio edificio;
    PonerSitio(edificio, 2, 0, 550);
    std::vector<Capa> capas;
    for (const auto& [sd, camara] : casos[n].capas) capas.push_back({sd, 1, 0, 1, camara});
    Poner(edificio, casos[n].posicion, "Con cámara", 0.5F, capas);
    const auto c = CondicionesDeCondensacion(edificio);
    const auto e = CondensacionElementos(edificio, c).at(0);
    for (std::size_t k = 0; k < 3; ++k)
      EXPECT_NEAR((e.interfaces.at(k + 1).P - c.Pe) / (c.Pi - c.Pe), casos[n].f[k], 1e-6)
          << "caso " << n << ", interfaz " << k + 1;
  }
}

TEST(CondensacionElementos, EligeLasPosicionesYNoRepiteNombresEnUnGrupo) {
  Edificio edificio;
  const std::pair<std::size_t, const char*> puestos[] = {
      {MuroExt1, "A"},   {MuroExt2, "A"},   {MuroExt3, "B"},   {MuroExt5, "B"},  {MuroTerr1, "C"},
      {MuroExt6, "D"},   {TechoExt1, "A"},  {TechoInc1, "A"},  {TechoInc3, "B"}, {TechoTerr1, "A"},
      {TechoTerr2, "A"}, {TechoVent2, "E"}, {SueloTerr1, "F"}, {SueloExt1, "A"}, {SueloExt2, "B"}};
  for (const auto& [posicion, nombre] : puestos)
    Poner(edificio, posicion, nombre, 1, {{0.1F, 1, 0, 1}});
  edificio.GetComposicion(MuroExt4).nombre = "Sin capas";
  std::vector<std::string> claves;
  for (const auto& e : CondensacionElementos(edificio, CondicionesDeCondensacion(edificio)))
    claves.push_back(e.clave);
  EXPECT_EQ(claves, (std::vector<std::string>{"MuroExt1", "MuroExt3", "TechoExt1", "TechoInc3",
                                              "TechoTerr1", "SueloExt1", "SueloExt2"}));
}

TEST(CondensacionElementos, MasDeNueveCapasYDatosQueNoDividen) {
  Edificio edificio;
  PonerSitio(edificio, 2, 0, 550);
  Poner(edificio, MuroExt1, "Doce", 1, std::vector<Capa>(12, {0.1F, 1, 0, 1}));
  Poner(edificio, MuroExt2, "Sin vapor", 1, {{0.1F, 1, 0, 0}});
  Poner(edificio, MuroExt3, "Infinito", kInfinito, {{kInfinito, 0, kInfinito, kInfinito}});
  // -0,04 - 1/7,69 deja RT cerca de 0.
  Poner(edificio, MuroExt4, "Negativo", -1, {{0.17F, -1, -0.000039F, -1}});
  const auto c = CondicionesDeCondensacion(edificio);
  const auto e = CondensacionElementos(edificio, c);
  ASSERT_EQ(e.size(), 4U);
  // Las doce cuentan en los totales: 1,2 m y RT = 1,370039.
  ASSERT_EQ(e[0].interfaces.size(), 10U);
  EXPECT_NEAR(e[0].interfaces[9].P, 550 + 1087.2 * 9 / 12, 0.6);
  EXPECT_NEAR(e[0].interfaces[9].T, 20 * 0.94 / 1.370039, 1e-3);
  EXPECT_DOUBLE_EQ(e[1].interfaces[1].P, c.Pe);
  for (const auto& elemento : e)
    for (const auto& i : elemento.interfaces)
      EXPECT_TRUE(std::isfinite(i.P) && std::isfinite(i.Psat) && std::isfinite(i.T) &&
                  std::isfinite(i.x) && std::isfinite(i.sd) && std::isfinite(elemento.fRsi))
          << elemento.nombre;
  EXPECT_EQ(ComprobarCondensacion(TechoExt1, composicion{}, c).interfaces.size(), 1U);
}

TEST(VerificarCondensaciones, IgualarElMinimoLeBastaAUnPuenteYNoAUnCerramiento) {
  Edificio edificio;
  PonerSitio(edificio, 2, 20, 550);  // fRsi,min = 0
  Poner(edificio, MuroExt1, "Igual", 4, MuroDensoDentro());
  PonerPuentes(edificio, {}, 0);
  const auto v = VerificarCondensaciones(edificio);
  EXPECT_FALSE(v.elementos.at(0).cumpleSuperficial);
  EXPECT_EQ(v.textoCerramientos, "No Cumple condensaciones cerramientos");
  EXPECT_EQ(v.textoPuentes, "Cumple condensaciones puentes térmicos");
  EXPECT_TRUE(!v.cumpleCerramientos && v.cumplePuentes);
}

TEST(VerificarCondensaciones, PuentesConPilaresYSinEllos) {
  Edificio edificio;
  PonerSitio(edificio, 0, 0, 550);  // fRsi,min = 0,7043
  // Ventanas, forjados, cubiertas, suelo_exterior, esquina_saliente, pilares, suelo_terreno.
  std::array<float, kPuentes> fi = {0.71F, 0.72F, 0.73F, 0.74F, 0.75F, 0.6F, 0.77F};
  const auto verificar = [&](int sinPilares) {
    PonerPuentes(edificio, fi, sinPilares);
    return VerificarCondensaciones(edificio);
  };
  const auto conPilares = verificar(0);
  EXPECT_FALSE(conPilares.cumplePuentes);
  std::string factores;
  for (const auto& fila : conPilares.tablaPuentes.filas) factores += fila.at(2).texto + " ";
  EXPECT_EQ(factores, "0.72 0.73 0.74 0.75 0.71 0.60 0.77 ");

  const auto v = verificar(1);
  EXPECT_TRUE(v.cumplePuentes);
  std::string textos;
  for (const Celda& celda : v.tablaPuentes.filas.at(5)) textos += celda.texto + "|";
  EXPECT_EQ(textos, "pilares|Puente pilares|-|-|No aplicable|");
  // Sin cerramientos definidos lo dice, y no se exige nada de ellos.
  ASSERT_EQ(v.veredictos.size(), 8U);
  EXPECT_TRUE(!v.veredictos[0].aplica && !v.veredictos[6].aplica);
  EXPECT_EQ(v.veredictos[0].nota, "Sólo se comprueban los cerramientos definidos por el usuario");
  EXPECT_EQ(v.textoCerramientos, "Cumple condensaciones cerramientos");

  // Un puente que falla antes que el de pilares sigue fallando.
  fi[puente_forjados] = 0.7F;
  EXPECT_EQ(verificar(1).textoPuentes, "No Cumple condensaciones puentes térmicos");
}

TEST(VerificarCondensaciones, VeredictosYGrafico) {
  Edificio edificio;
  PonerSitio(edificio, 2, 0, 550);
  Poner(edificio, MuroExt1, "Denso fuera", 0.4F, MuroDensoFuera());
  const auto v = VerificarCondensaciones(edificio);
  ASSERT_EQ(v.veredictos.size(), 9U);
  EXPECT_TRUE(v.veredictos[0].pasa);
  EXPECT_NEAR(v.veredictos[0].limite.value(), 0.89305, 5e-5);
  EXPECT_EQ(v.veredictos[1].veredicto + v.veredictos[1].unidad, "No CumplePa");
  ASSERT_EQ(v.graficos.size(), 1U);
  EXPECT_EQ(v.graficos[0].x.size(), 4U);
  const auto& series = v.graficos[0].series;
  for (const double P : {v.veredictos[1].valor.value(), series.at(0).valores.at(1)})
    EXPECT_NEAR(P, 1419.8, 0.6);
  for (const double Psat : {v.veredictos[1].limite.value(), series.at(1).valores.at(1)})
    EXPECT_NEAR(Psat, 872.6, 0.6);
}

using Atributos = std::vector<std::pair<const char*, const char*>>;
void EsperarAtributos(const XMLNode& nodo, const Atributos& esperados) {
  for (const auto& [nombre, valor] : esperados)
    EXPECT_EQ(nodo.attributeValue(nombre).value_or("falta"), valor) << nombre;
}

TEST(DocumentosCondensacion, SeHaceDeNuevoConDosFilasPorCerramiento) {
  const pruebas::CarpetaTemporal carpeta;
  Edificio edificio;
  PonerSitio(edificio, 2, 0, 550);
  Poner(edificio, MuroExt1, "Ladrillo & \"lana\"", 0.4F, MuroDensoFuera());
  for (int vez = 0; vez < 2; ++vez)
    ASSERT_EQ(EscribirDocumentosCondensacion(carpeta / "", VerificarCondensaciones(edificio)), 0);
  const XMLNode raiz = XMLNode::loadFile(carpeta / "Condensacion.xml", "CONDENSACION");
  ASSERT_EQ(raiz.childCount(), 2U);
  const XMLNode valor = raiz.childAt(0), limite = raiz.childAt(1);
  EXPECT_EQ(valor.nameOf(), "L");
  EXPECT_EQ(valor.attributeCount() + limite.attributeCount(), 32U);
  EsperarAtributos(valor, {{"Tipo", "MuroExt1"},
                           {"Nombre", "Ladrillo & \"lana\""},
                           {"F1", "fRsi"},
                           {"F2", "0.90"},
                           {"CAPA0", "550.00"},
                           {"CAPA4", ""},
                           {"CAPA10", ""},
                           {"Cumplimiento", ""}});
  EsperarAtributos(limite, {{"F1", "fRsi,min"}, {"F2", "0.89"}, {"Cumplimiento", "No Cumple"}});
  EXPECT_EQ(limite.attributeValue("CAPA0").value_or("").substr(0, 3), "657");
}

TEST(DocumentosCondensacion, LosPuentesConservanLosTextosQueHaya) {
  const pruebas::CarpetaTemporal carpeta;
  Edificio edificio;
  PonerSitio(edificio, 0, 0, 550);
  std::array<float, kPuentes> fi;
  fi.fill(0.75F);
  PonerPuentes(edificio, fi, 1);
  const auto v = VerificarCondensaciones(edificio);
  const auto fila = [&](std::size_t k) {
    return XMLNode::loadFile(carpeta / "PuentesTermicos.xml", "PUENTESTERMICOS").childAt(k);
  };
  // Sin fichero, o con uno que no se entiende, los textos propios.
  for (const char* contenido : {"", "<PUENTESTERMICOS><L"}) {
    if (*contenido) EscribirFichero(carpeta / "PuentesTermicos.xml", contenido);
    ASSERT_EQ(EscribirDocumentosCondensacion(carpeta / "", v), 0);
    EsperarAtributos(fila(0), {{"FRSIMIN", "FRSIMIN"}});
    EsperarAtributos(fila(4), {{"TIPO", "esquina_saliente"}});
    EsperarAtributos(fila(7), {{"Nombre", "Puente suelo_terreno"}});
    EXPECT_TRUE(fila(8).isEmpty());
  }
  // Con uno corto, los suyos hasta donde llega.
  EscribirFichero(carpeta / "PuentesTermicos.xml",
                  "<PUENTESTERMICOS><L TIPO=\"Clase\"/>"
                  "<L TIPO=\"canto\" Nombre=\"Canto de forjado\" FRSI=\"9\" Cumplimiento=\"?\"/>"
                  "</PUENTESTERMICOS>");
  ASSERT_EQ(EscribirDocumentosCondensacion(carpeta / "", v), 0);
  EsperarAtributos(fila(0), {{"TIPO", "Clase"}});
  EsperarAtributos(fila(1), {{"TIPO", "canto"},
                             {"Nombre", "Canto de forjado"},
                             {"FRSI", "0.75"},
                             {"FRSIMIN", "0.70"},
                             {"Cumplimiento", "Cumple"}});
  EsperarAtributos(fila(2), {{"TIPO", "cubiertas"}});
  EsperarAtributos(fila(6), {{"FRSI", "-"}, {"Cumplimiento", "No aplicable"}});
  EXPECT_NE(EscribirDocumentosCondensacion(carpeta / "no" / "existe", v), 0);
}

}  // namespace
}  // namespace novex
