#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "systems/Calefaccion.h"
#include "systems/CasoSistemas.h"
#include "systems/Refrigeracion.h"

namespace novex {
namespace {

using pruebas::BloqueCompleto;
using pruebas::CasoSistemas;

// Una clase con lo que a mano da: rendimientos y capacidad por servicio. Con curvas iguales a 1 y
// consumo proporcional a la carga, el rendimiento es el cociente de las potencias nominales.
struct ClaseProbada {
  const char* nombre;
  const char* tipo;
  const char* seleccion;
  CargasHora rendimiento;  // 0: no da el servicio
  CargasHora capacidad;    // kW
  bool bomba;              // toma calor del ambiente
};

constexpr float kInf = 1e6F;                      // sin límite de potencia
constexpr float kCal = 3.6F, kFrio = 2.52F;       // 20/5 y 14/5, menos el 10 % de la línea
constexpr CargasHora kConLinea = {0, 18, 12.6F};  // kW
constexpr const char* kAC = "ACS+Calefaccion";
constexpr const char* kCR = "Calefaccion+Refrigeracion";
constexpr const char* kACR = "ACS+Calefaccion+Refrigeracion";

const ClaseProbada kClases[] = {
    {"calentador", "ACS", "1 Calentador", {0.9F}, {20}, false},
    {"caldera", kAC, "1 Caldera", {0.9F, 0.9F}, {20, 20}, false},
    {"calderaMixta", kAC, "1 Caldera Mixta", {0.9F, 0.9F}, {20, 20}, false},
    {"calderaSola", "Calefaccion", "1 Caldera", {0, 0.9F}, {0, 20}, false},
    {"bomba", kAC, "1 BC aire-agua", {kCal, kCal}, {18, 18}, true},
    {"bombaSola", "Calefaccion", "1 BC aire-agua", {0, kCal}, {0, 18}, true},
    {"bombaReversible", kCR, "1 BC aire-agua", {0, kCal}, {0, 18}, true},
    {"radiadores", "Calefaccion", "Radiadores eléctricos", {0, 1}, {0, 20}, false},
    {"agua", kAC, "Rend. estacional (agua)", {2.5F, 2.5F}, {kInf, kInf}, true},
    {"frigo", kCR, "Rend. estacional (refrigerante)", {0, 2.5F, 1.75F}, {0, kInf, kInf}, true},
    {"estacional", "Calefaccion", "Rend. estacional", {0, 2.5F}, {0, kInf}, true},
    {"tres", kACR, "Rend. estacional conocido", {2.5F, 2.5F, 1.75F}, {kInf, kInf, kInf}, true},
    {"ventana", kCR, "Equipo de Ventana", {0, 4, 2.8F}, {0, 20, 14}, true},
    {"split", kCR, "Equipo Split", {0, kCal, kFrio}, kConLinea, true},
    {"conductos", kCR, "Equipo Conductos", {0, kCal, kFrio}, kConLinea, true},
    {"multisplit", kCR, "Equipo MultiSplit", {0, kCal, kFrio}, kConLinea, true},
    {"variable", kCR, "Caudal refrigerante variable", {0, kCal}, {0, 18}, true},
    {"rooftop", kCR, "Rooftop", {0, kCal, kFrio}, kConLinea, true},
    {"rooftopSoloCalor", "Calefaccion", "Rooftop", {0, kCal}, {0, 18}, true},
};

class AnoDeGenerador : public testing::TestWithParam<ClaseProbada> {};

// Cada hora: dado más no dado es lo pedido, el consumo es lo dado entre el rendimiento, el ambiente
// es la diferencia en las bombas de calor, y el agua caliente va antes que la calefacción.
TEST_P(AnoDeGenerador, Cierra) {
  const ClaseProbada& p = GetParam();
  CasoSistemas c;
  Instalaciones i = BloqueCompleto(p.seleccion);
  i.TipoBC1 = "Partida";
  i.Distanciaext_int = 10;
  i.Perdida_m_tub_ext_int = 1;
  // En calefacción sola el consumo ya va con lo dado entre la capacidad: sin más carga parcial.
  const bool soloCalor = std::string_view(p.nombre).substr(0, 5) == "bomba" && p.capacidad[0] == 0;
  if (soloCalor) i.curvas.cQ = {1, 0, 0, 0};
  const GeneradorPreparado g = c.Preparar(p.tipo, i);
  double dado = 0, consumo = 0;
  int parciales = 0, plenas = 0;
  for (int h = 1; h <= kHorasAno; ++h) {
    const HoraSistemas hora = c.Hora(h);
    CargasHora carga = {8.0F * c.caso->zona.DACS[h], -c.caso->zona.cargaCalefaccion[h],
                        c.caso->zona.cargaRefrigeracion[h]};
    for (const std::size_t s : {kACS, kCalefaccion, kRefrigeracion})
      if (p.rendimiento[s] == 0.0F) carga[s] = 0;
    RespuestaHora r;
    r.noDado = carga;
    HoraCalor(g, hora, carga[kACS], carga[kCalefaccion], r);
    if (DaRefrigeracion(g.tipo)) HoraFrio(g, hora, carga[kRefrigeracion], r);
    float libre = std::max(p.capacidad[kACS], p.capacidad[kCalefaccion]);
    for (const std::size_t s : {kACS, kCalefaccion, kRefrigeracion}) {
      if (s == kRefrigeracion) libre = p.capacidad[s];
      const float debe = std::min(carga[s], libre);
      libre -= debe;
      ASSERT_NEAR(r.dado[s], debe, 1e-4 * (1 + debe)) << h << " " << s;
      ASSERT_NEAR(r.dado[s] + r.noDado[s], carga[s], 1e-5 * (1 + carga[s])) << h << " " << s;
      const float e = p.rendimiento[s];
      const float debeConsumir = e > 0 ? debe / e : 0.0F;
      ASSERT_NEAR(r.consumo1[s], debeConsumir, 2e-4 * (1 + debeConsumir)) << h << " " << s;
      const float ambiente = p.bomba && s != kRefrigeracion ? debe - debeConsumir : 0.0F;
      ASSERT_NEAR(r.ambiente[s], ambiente, 3e-4 * (1 + debe)) << h << " " << s;
      ASSERT_EQ(r.consumo2[s], 0.0F);
      if (carga[s] == 0.0F) {
        ASSERT_EQ(r.ventiladores[s], 0.0F) << h;
      }
      dado += static_cast<double>(r.dado[s]);
      consumo += static_cast<double>(r.consumo1[s]);
      parciales += debe > 0 && debe == carga[s];
      plenas += debe < carga[s];
    }
    ASSERT_GE(r.frioTotal, r.dado[kRefrigeracion]);
    if (carga[kCalefaccion] == 0.0F) {
      ASSERT_EQ(r.bombas[kCalefaccion], 0.0F) << h;
    }
  }
  EXPECT_GT(parciales, 500);
  if (p.capacidad[kACS] + p.capacidad[kCalefaccion] < kInf) {
    EXPECT_GT(plenas, 20);
  }
  EXPECT_GT(dado, 5000);
  EXPECT_GT(consumo, 0);
}

INSTANTIATE_TEST_SUITE_P(Todas, AnoDeGenerador, testing::ValuesIn(kClases),
                         [](const auto& clase) { return std::string(clase.param.nombre); });

class UnaHora : public testing::Test {
 protected:
  RespuestaHora Correr(const std::string& tipo, float acs, float cal, float ref = 0) {
    const GeneradorPreparado g = c.Preparar(tipo, i);
    RespuestaHora r;
    r.noDado = {acs, cal, ref};
    r.bombaYaContada = yaContada;
    HoraCalor(g, hora, acs, cal, r);
    if (DaRefrigeracion(g.tipo)) HoraFrio(g, hora, ref, r);
    return r;
  }
  static void EsperaPar(const CargasHora& v, double acs, double cal) {
    EXPECT_NEAR(v[kACS], acs, 2e-4);
    EXPECT_NEAR(v[kCalefaccion], cal, 2e-4);
  }

  CasoSistemas c;
  Instalaciones i = BloqueCompleto("1 Caldera");
  HoraSistemas hora = c.Hora(4000);
  float yaContada = 0;
};

// Con p = 1,5, cC no se limita y es 1,025: con gC(0) = 0,95 el rendimiento es 0,876375.
TEST_F(UnaHora, CalderaDeBiomasaConCurvas) {
  i.curvas.cC = {0.8F, 0.3F, -0.1F, 0};
  i.curvas.gC = {0.95F, 0.001F, 0, 0};
  i.TipoGenerador1 = "Biomasa";
  const RespuestaHora r = Correr("ACS+Calefaccion", 5, 25);
  EsperaPar(r.dado, 5, 15);
  EsperaPar(r.consumo1, 5.705320, 17.115961);
  EXPECT_NEAR(r.calorBiomasa, 5, 1e-4);
  EXPECT_EQ(c.Preparar("ACS", i).vector1, VectorEnergetico::Biomasa_Pellet);
}

TEST_F(UnaHora, SinRendimientoOSinPotenciaNadaSeDaNiSeConsume) {
  for (const char* seleccion :
       {"1 Caldera", "1 BC aire-agua", "1 BC aire-agua + 1 Caldera", "Radiadores eléctricos",
        "Rend. estacional (agua)", "Rooftop", "Equipo de Ventana", "Una que no existe"}) {
    i = BloqueCompleto(seleccion);
    i.RendCalor1 = i.RendCalor2 = i.RendCalorEst = i.RendFrioEst = 0;
    i.QcalorBC1 = i.RadiadorElectrico = i.QFrioTot1 = i.QFrioSen1 = 0;
    for (const char* tipo : {"ACS+Calefaccion", "Calefaccion+Refrigeracion"}) {
      const RespuestaHora r = Correr(tipo, 3, 5, 4);
      for (const std::size_t s : {kACS, kCalefaccion, kRefrigeracion}) {
        EXPECT_EQ(r.dado[s], 0.0F) << seleccion;
        EXPECT_EQ(r.consumo1[s] + r.consumo2[s], 0.0F) << seleccion;
        EXPECT_EQ(r.ambiente[s], 0.0F) << seleccion;
      }
      EsperaPar(r.noDado, 3, 5);
      EXPECT_EQ(r.noDado[kRefrigeracion], 4.0F) << seleccion;
    }
  }
}

// A 6 °C: capacidad relativa 1,035 con agua a 45 °C y 0,96 a 60; consumo 1,0 y 1,12.
class UnaHoraDeBomba : public UnaHora {
 protected:
  UnaHoraDeBomba() {
    i = BloqueCompleto("1 BC aire-agua");
    i.QcalorBC1 = 10;
    i.WeCalor1 = 3;
    i.TaltaD = 55;
    i.curvas.aaQ = {1.2F, -0.005F, 0, 0.01F, 0, 0};
    i.curvas.baQ = {0.7F, 0.008F, 0, -0.01F, 0, 0};
    i.curvas.cQ = {0.1F, 0.9F, 0, 0};
    i.curvas.TeCambio = 0;
    hora.THE = 6;
    hora.TSE = 8;
  }
};

TEST_F(UnaHoraDeBomba, AguaCalienteYCalefaccion) {
  RespuestaHora r = Correr("ACS+Calefaccion", 2, 4);  // p = 0,625
  EsperaPar(r.consumo1, 0.7, 1.484);
  EsperaPar(r.ambiente, 1.3, 2.516);
  r = Correr("ACS+Calefaccion", 3, 9);
  EsperaPar(r.dado, 3, 6.6);
  EsperaPar(r.noDado, 0, 2.4);
  EsperaPar(r.consumo1, 1.05, 2.31);
  // Solo calefacción va a 45 °C y cabe; solo agua caliente, a 60 °C.
  EsperaPar(Correr("ACS+Calefaccion", 0, 10.35F).consumo1, 0, 3);
  EsperaPar(Correr("ACS+Calefaccion", 4.8F, 0).consumo1, 1.12 * 3 * 0.5, 0);
  // Con línea, el 10 % de la capacidad.
  i.TipoBC1 = "Partida";
  i.Distanciaext_int = 10;
  i.Perdida_m_tub_ext_int = 1;
  EsperaPar(Correr("ACS+Calefaccion", 3, 9).dado, 3, 5.64);
}

TEST_F(UnaHoraDeBomba, LaResistenciaAyudaAlAguaCaliente) {
  RespuestaHora r = Correr("ACS+Calefaccion", 12, 4);
  EsperaPar(r.dado, 9.6, 0);
  EsperaPar(r.noDado, 2.4, 4);
  i.QApoyoTermo = 2;
  r = Correr("ACS+Calefaccion", 12, 4);
  EsperaPar(r.dado, 11.6, 0);
  EsperaPar(r.noDado, 0.4, 4);
  EsperaPar(r.consumo1, 5.36, 0);
  EsperaPar(r.ambiente, 6.24, 0);
  i.QApoyoTermo = 5;
  r = Correr("ACS+Calefaccion", 12, 4);
  EsperaPar(r.dado, 12, 0);
  EsperaPar(r.consumo1, 5.76, 0);
  EXPECT_NEAR(r.resistencia, 2.4, 1e-4);
}

TEST_F(UnaHoraDeBomba, SoloCalefaccion) {
  EsperaPar(Correr("Calefaccion", 0, 4.14F).consumo1, 0, 0.552);  // p = 0,4: 0,4·3·0,46
  // La línea quita aquí de la nominal: 10,35 - 1.
  i.TipoBC1 = "Partida";
  i.Distanciaext_int = 10;
  i.Perdida_m_tub_ext_int = 1;
  EsperaPar(Correr("Calefaccion", 0, 12).dado, 0, 9.35);
  // A la temperatura de cambio o por debajo rigen las otras curvas.
  i.TipoBC1 = "Monoblock";
  i.curvas.TeCambio = 6;
  i.curvas.abQ[0] = 0.5F;
  i.curvas.bbQ[0] = 0.8F;
  const RespuestaHora r = Correr("Calefaccion", 0, 12);
  EsperaPar(r.dado, 0, 5);
  EsperaPar(r.consumo1, 0, 2.4);
}

TEST_F(UnaHoraDeBomba, ConCaldera) {
  i.Seleccion = "1 BC aire-agua + 1 Caldera";
  i.QcalorCaldera2 = 2;
  i.RendCalor2 = 0.8F;
  i.TipoGenerador2 = "Biomasa";
  i.curvas.gC = {0.7F, 0.005F, 0, 0};  // 1,0 a 60 °C
  i.EControlTe = 7.9F;
  // La bomba da 9,6 y la caldera 2 de los 3,4 que faltan.
  RespuestaHora r = Correr("ACS+Calefaccion", 3, 10);
  EsperaPar(r.dado, 3, 8.6);
  EsperaPar(r.dado2, 0, 2);
  EsperaPar(r.noDado, 0, 1.4);
  EsperaPar(r.consumo2, 0, 2.5);
  EsperaPar(r.ambiente, 1.95, 4.29);
  EXPECT_EQ(c.Preparar("ACS+Calefaccion", i).vector2, VectorEnergetico::Biomasa_Pellet);
  // El agua caliente, también tras la bomba, va primero.
  r = Correr("ACS+Calefaccion", 11, 10);
  EsperaPar(r.dado2, 1.4, 0.6);
  EXPECT_NEAR(r.calorBiomasa, 1.4, 1e-4);
  // A la temperatura de control justa, o por debajo, solo la caldera, que ve el agua a 0 °C.
  for (const float control : {8.0F, 9.0F}) {
    i.EControlTe = control;
    r = Correr("ACS+Calefaccion", 0, 10);
    EsperaPar(r.consumo1, 0, 0);
    EsperaPar(r.dado, 0, 2);
    EsperaPar(r.dado2, 0, 2);
    EsperaPar(r.consumo2, 0, 2 / (0.8 * 0.7));
    EsperaPar(r.ambiente, 0, 0);
  }
}

TEST_F(UnaHora, ViviendaDeBloque) {
  i.NEquipos = 2;
  i.QcalorCaldera1 = 10;
  i.TipoInstalacionesG = "Centralizada/Bloque";
  EsperaPar(Correr("Calefaccion", 0, 100).dado, 0, 20);
  c.Generales([](DatosGenerales& g) {
    g.PerfilUso = 2;
    g.NVBloqueF = 4;
  });
  EsperaPar(Correr("Calefaccion", 0, 100).dado, 0, 5);
  EXPECT_NEAR(c.Preparar("Calefaccion", i).GEN1.Potencia(1),
              c.Preparar("Calefaccion", BloqueCompleto("1 Caldera")).GEN1.Potencia(1) * 0.5, 1e-4);
  i.TipoInstalacionesG = "Individual/Vivienda";
  EsperaPar(Correr("Calefaccion", 0, 100).dado, 0, 20);
}

// La primera hora no sabe del aire y es el 70 % sensible; con aire más seco que la batería lo es
// todo, y con el muy húmedo no baja de ahí. El estacional de agua reparte igual.
TEST_F(UnaHora, ParteSensibleDelFrioPorAgua) {
  i = BloqueCompleto("Enfriadora agua cond.aire");
  i.QFrioTot1 = 10;
  const auto sensible = [&](int h, float W) {
    hora.h = h;
    hora.Wanterior = W;
    const RespuestaHora r = Correr("Refrigeracion", 0, 0, 20);
    EXPECT_NEAR(r.frioTotal, 10, 1e-4);
    return r.dado[kRefrigeracion];
  };
  EXPECT_NEAR(sensible(1, 0.004F), 7, 1e-4);
  EXPECT_NEAR(sensible(2, 0.004F), 10, 1e-4);
  EXPECT_NEAR(sensible(2, 0.02F), 7, 1e-4);
  i.TipoBC1 = "Partida";  // la línea quita de la nominal
  i.Distanciaext_int = 10;
  i.Perdida_m_tub_ext_int = 1;
  EXPECT_NEAR(Correr("Refrigeracion", 0, 0, 20).dado[kRefrigeracion], 7 - 1, 1e-4);
  i.Seleccion = "Rend. estacional (agua)";
  const RespuestaHora r = Correr("Refrigeracion", 0, 0, 7);
  EXPECT_NEAR(r.frioTotal, 10, 1e-4);
  EXPECT_NEAR(r.consumo1[kRefrigeracion], 4, 1e-4);
}

// Con las curvas de un fabricante la razón sensible es la de la batería: en las condiciones
// nominales la nominal, y con aire a 25 °C y 17 °C de bulbo y 30 °C fuera, 1,0417 (calculado
// aparte). Con las genéricas, un polinomio.
TEST_F(UnaHora, AireAAireEnFrio) {
  i = BloqueCompleto("Equipo Split");
  i.QFrioSen1 = 7;
  i.QFrioTot1 = 10;
  i.curvas.eR = {0.1F, 0.01F, 0.001F, 0.002F, 0.0001F, 0.003F, 0.0002F};
  hora.humedoInterior = 17;
  hora.consigna = 25;
  hora.TSE = 30;
  // 0,1 + 0,17 + 0,289 + 0,05 + 0,0625 + 0,09 + 0,18 = 0,9415.
  EXPECT_NEAR(Correr("Refrigeracion", 0, 0, 100).dado[kRefrigeracion], 7 * 0.9415, 1e-3);
  i.Distanciaext_int = 10;
  i.Perdida_m_tub_ext_int = 1;
  const RespuestaHora conLinea = Correr("Refrigeracion", 0, 0, 100);
  EXPECT_NEAR(conLinea.dado[kRefrigeracion], 7 * 0.8415, 1e-3);
  EXPECT_NEAR(conLinea.frioTotal, 10 * 0.9, 1e-4);
  i.Distanciaext_int = 0;

  for (const bool variable : {false, true}) {
    i.Seleccion = variable ? "Caudal refrigerante variable" : "Equipo Split";
    i.Fabricante = variable ? kFabricanteDefecto : "Otro";
    if (variable) i.QFrioSen1 = 0;  // no tiene: es el 70 % de la total
    hora.humedoInterior = 19;
    hora.consigna = 27;
    hora.TSE = 35;
    EXPECT_NEAR(Correr("Refrigeracion", 0, 0, 100).dado[kRefrigeracion], 7, 0.02);
    hora.humedoInterior = 17;
    hora.consigna = 25;
    hora.TSE = 30;
    EXPECT_NEAR(Correr("Refrigeracion", 0, 0, 100).dado[kRefrigeracion], 7 * 1.04171, 0.01);
  }
}

// 1000 l/h contra 5 m con rendimiento 0,5 son 27,222 W; a media carga la curva vale 0,599921.
TEST(Bombas, LosCuatroControles) {
  BombaCircuito b;
  b.Caudal = 1000;
  b.P = 5;
  b.Rend = 0.5F;
  const std::pair<const char*, std::array<double, 3>> casos[] = {
      {"Cte", {1, 1, 1}},
      {"Vble P=Cte", {0.833443, 1.002258, 1.002258}},
      {"Vble Po=P/2", {0.625082, 1.002258, 1.002258}},
      {"Vble DT=Cte", {0.625082, 1.002258, 1.002258}}};
  for (const auto& [control, k] : casos) {
    b.control = control;
    const BombaPreparada p = PrepararBomba(b, 3);
    const float x[] = {0.5F, 1, 2};
    for (std::size_t n = 0; n < 3; ++n)
      EXPECT_NEAR(p.Potencia(x[n]), 3 * 27.2222 * k[n], 1e-2) << control;
  }
  b.Rend = 0;
  EXPECT_EQ(PrepararBomba(b, 1).Potencia(1), 0.0F);
}

// Cada bomba del bloque son 40,833 W, y los dos ventiladores de 0,1 m3/s contra 50 Pa, 20 W.
TEST_F(UnaHora, BombasYVentiladores) {
  const double bomba = 9800 * 5 * 1500 / 3.6e6 / 0.5;
  i.SBZ.control = "Vble P=Cte";
  const auto parcial = [&](double x) {
    return bomba * x / (0.088065 + 1.137742 * x - 0.22806 * x * x);
  };
  RespuestaHora r = Correr("Calefaccion", 0, 5);
  EXPECT_NEAR(r.bombas[kCalefaccion], bomba + parcial(0.25), 1e-3);
  EXPECT_NEAR(r.ventiladores[kCalefaccion], 20, 1e-4);
  r = Correr("ACS+Calefaccion", 10, 40);  // se da la cuarta parte de lo pedido
  EXPECT_NEAR(r.bombas[kCalefaccion], bomba + parcial(0.25), 1e-3);
  i.Seleccion = "1 BC aire-agua";  // y con la bomba de calor, de su capacidad
  EXPECT_NEAR(Correr("Calefaccion", 0, 5).bombas[kCalefaccion], bomba + parcial(0.25), 1e-3);
  i.Seleccion = "1 Caldera";
  yaContada = 30;  // lo que el depósito ya ha contado de la bomba 1
  EXPECT_NEAR(Correr("ACS+Calefaccion", 10, 40).bombas[kCalefaccion], bomba - 30 + parcial(0.25),
              1e-3);
  yaContada = 0;
  i.Emisor = "Radiadores";
  i.Distribucion = "Directo";
  r = Correr("Calefaccion", 0, 5);
  EXPECT_NEAR(r.bombas[kCalefaccion], bomba, 1e-3);
  EXPECT_EQ(r.ventiladores[kCalefaccion], 0.0F);

  // El conjunto: la bomba 1 parada cuando solo va la caldera, y la 2 a medias con el agua caliente.
  i = BloqueCompleto("1 BC aire-agua + 1 Caldera");
  hora.TSE = 0;
  r = Correr("Calefaccion", 0, 5);
  EXPECT_NEAR(r.bombas[kCalefaccion], 2 * bomba, 1e-3);  // generador 2 y zona
  r = Correr("ACS+Calefaccion", 0, 5);
  EXPECT_NEAR(r.bombas[kCalefaccion], 1.5 * bomba, 1e-3);
  EXPECT_NEAR(r.bombas[kACS], 0.5 * bomba, 1e-3);

  // De los tres servicios, la bomba de calor lleva la de zona como el de dos.
  i = BloqueCompleto("1 BC aire-agua");
  i.Distribucion = "Depósito";
  r = Correr("ACS+Calefaccion+Refrigeracion", 0, 5);
  EXPECT_NEAR(r.bombas[kCalefaccion], 2 * bomba, 1e-3);

  // En frío, las de agua; el multisplit solo si añade el ventilador interior; el resto, nada.
  i.Distribucion = "Con colector";
  r = Correr("Refrigeracion", 0, 0, 5);
  EXPECT_NEAR(r.bombas[kRefrigeracion], 2 * bomba, 1e-3);
  EXPECT_NEAR(r.ventiladores[kRefrigeracion], 20, 1e-4);
  for (const char* seleccion : {"Equipo MultiSplit", "Equipo Split"}) {
    i = BloqueCompleto(seleccion);
    i.Emisor = "Unid.Interior";
    EXPECT_EQ(Correr("Refrigeracion", 0, 0, 5).ventiladores[kRefrigeracion], 0.0F);
    i.ConsumoEmisor = "Añadir consumo ventilador interior";
    r = Correr("Calefaccion+Refrigeracion", 0, 0, 5);
    EXPECT_NEAR(r.ventiladores[kRefrigeracion],
                std::string_view(seleccion) == "Equipo MultiSplit" ? 20 : 0, 1e-4);
    EXPECT_EQ(r.bombas[kRefrigeracion], 0.0F);
    EXPECT_EQ(Correr("Calefaccion+Refrigeracion", 0, 5).ventiladores[kCalefaccion], 0.0F);
  }
}

}  // namespace
}  // namespace novex
