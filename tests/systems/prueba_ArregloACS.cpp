#include "systems/ArregloACS.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numeric>
#include <set>

#include "systems/CasoSistemas.h"

namespace novex {
namespace {

using pruebas::BloqueCompleto;
using pruebas::CasoSistemas;
using Textos = std::vector<std::string>;

const std::string kRed = "Alimentación agua red";
const Textos kDirectas = {"Directo solar intercambiador", "Directo solar interacumulador"};
const Textos kRecirculadas = {"Recirculado solar intercambiador",
                              "Recirculado solar interacumulador"};
const Textos kCuatro = {kDirectas[0], kDirectas[1], kRecirculadas[0], kRecirculadas[1]};
const Textos kSerpentin = {"Recirculado solar intercambiadorS",
                           "Recirculado solar interacumuladorS"};
const Textos kCorrientes = {"1 Calentador", "1 Caldera", "1 BC aire-agua",
                            "1 BC aire-agua + 1 Caldera"};
const Textos kCombinados = {"1 Caldera", "1 BC aire-agua", "1 BC aire-agua + 1 Caldera"};
const Textos kConDeposito = {"Depósito", "Intercamb+Depósito", "Interacumu+lado_generador"};
const Textos kSinLado = {""};
const Textos kDeDos = {"Depósito", "Interacumulador"};
constexpr const char* kAC = "ACS+Calefaccion";

// Las filas de la tabla de arreglos. `campo` es el número del campo de alimentación que se lee.
struct Fila {
  const char* tipo;
  Textos selecciones, lados;
  int campo;
  Textos alimentaciones;
  bool deposito, depositoSolar, captadores;
};

const std::vector<Fila> kTabla = {
    {"ACS", {"1 BC aire-agua dedicada"}, kSinLado, 1, {kRed}, false, false, false},
    {"ACS", {"1 BC aire-agua dedicada"}, kSinLado, 1, kDirectas, false, true, true},
    {"ACS", kCorrientes, {"Directo"}, 1, {kRed}, false, false, false},
    {"ACS", kCorrientes, {"Directo"}, 1, kDirectas, false, true, true},
    {"ACS", kCorrientes, kConDeposito, 4, {kRed}, true, false, false},
    {"ACS", kCorrientes, kConDeposito, 4, kCuatro, true, true, true},
    {"ACS", kCorrientes, {"Interacumu+lado_solar"}, 2, {"Recirculado solar"}, true, false, true},
    {"ACS", kCorrientes, {"Interacumu+lado_solar"}, 2, kSerpentin, true, true, true},
    {"ACS", kCorrientes, {"Intercambiador"}, 3, kRecirculadas, false, true, true},
    {"ACS", {"1 Termo electrico"}, kSinLado, 4, {kRed}, true, false, false},
    {"ACS", {"1 Termo electrico"}, kSinLado, 4, kCuatro, true, true, true},
    {"ACS", {"1 Interacumulador electrico"}, kSinLado, 2, {"Recirculado solar"}, true, false, true},
    {"ACS", {"1 Interacumulador electrico"}, kSinLado, 2, kSerpentin, true, true, true},
    {kAC, kCombinados, kDeDos, 1, {kRed}, true, false, false},
    {kAC, kCombinados, kDeDos, 1, kDirectas, true, true, true},
    {kAC, {"1 Caldera Mixta"}, kSinLado, 1, {kRed}, false, false, false},
    {kAC, {"1 Caldera Mixta"}, kSinLado, 1, kDirectas, false, true, true},
};

// Recorre todas las combinaciones de la tabla con un bloque completo de cada una.
template <class Visita>
int RecorrerTabla(Visita visita) {
  int n = 0;
  for (const Fila& f : kTabla)
    for (const std::string& seleccion : f.selecciones)
      for (const std::string& lado : f.lados)
        for (const std::string& alimentacion : f.alimentaciones) {
          Instalaciones i = BloqueCompleto(seleccion);
          i.Distribucion = i.Distribucion2 = lado;
          // Menos de media renovación de un nodo por minuto: el balance es de paso a paso.
          for (BombaCircuito* b : {&i.GEN1, &i.GEN2, &i.DEP, &i.INT}) b->Caudal = 600;
          std::string* campos[] = {&i.Alimentacion, &i.Alimentacion2, &i.Alimentacion3,
                                   &i.Alimentacion4};
          *campos[f.campo - 1] = alimentacion;
          SCOPED_TRACE(std::string(f.tipo) + " / " + seleccion + " / " + lado + " / " +
                       alimentacion);
          visita(f, i);
          ++n;
        }
  return n;
}

bool Finito(const ResultadoACS& a, const RespuestaHora& r) {
  double suma = 0;
  for (const float x : {a.calor, a.consumo, a.resistencia, a.noDado, a.perdidaDeposito,
                        a.perdidaRetorno, a.caudal60, a.caudal, a.temperatura, a.perdidaSolar,
                        a.perdidaTuberia, a.captada, a.irradiacion, r.frioTotal})
    suma += static_cast<double>(x);
  for (const CargasHora& v : {r.noDado, r.dado, r.consumo1, r.consumo2, r.ambiente, r.bombas})
    suma += static_cast<double>(v[0] + v[1] + v[2]);
  return std::isfinite(suma);
}

// Un sistema de agua caliente con su generador, y lo que en las horas recorridas entra y sale.
class Recorrido {
 public:
  Recorrido(CasoSistemas& c, const std::string& tipo, const Instalaciones& i)
      : c_(c),
        i_(i),
        generador_(c.Preparar(tipo, i_)),
        acs_(c.edificio, generador_, solar_, *c.caso, c.mensajes) {}

  // Corre de la hora 1 a `fin`; el balance empieza tras la primera, que lleva la puesta en marcha.
  void Correr(int fin) {
    Nodos T{}, S{};
    for (int h = 1; h <= fin; ++h) {
      RespuestaHora r;
      r.noDado = {0, 2, 0};
      const ResultadoACS a = HoraAguaCaliente(generador_, acs_, c_.Hora(h), *c_.caso, 2.0F, r);
      finito = finito && Finito(a, r);
      if (h == 1) {
        T = acs_.Temperaturas();
        S = solar_.actual;
        continue;
      }
      const float retorno = acs_.Arreglo().deposito ? 0.0F : a.perdidaRetorno;
      desajusteGenerador = std::max(
          desajusteGenerador,
          std::fabs(r.dado[kACS] + r.noDado[kACS] - a.calor - a.resistencia - a.noDado - retorno));
      demanda += D(c_.caso->zona.DACS[h]);
      dado += D(r.dado[kACS]);
      noDado += D(r.noDado[kACS]);
      consumo += D(r.consumo1[kACS] + r.consumo2[kACS]);
      ambiente += D(r.ambiente[kACS]);
      captada += D(a.captada);
      entra += D(a.calor) + D(a.resistencia) + D(a.captada);
      sale += D(a.perdidaTuberia) + D(a.perdidaSolar) + D(a.perdidaDeposito) - D(a.noDado);
      if (acs_.Arreglo().deposito) sale += D(a.perdidaRetorno);
    }
    const auto energia = [](const Nodos& a, const Nodos& b, float litros) {
      const double dT =
          std::accumulate(a.begin(), a.end(), 0.0) - std::accumulate(b.begin(), b.end(), 0.0);
      return dT * D(litros) / 5.0 * 0.983 * 4184 / 3.6e6;
    };
    if (acs_.Arreglo().deposito) guardada += energia(acs_.Temperaturas(), T, i_.Volumen);
    if (acs_.Arreglo().depositoSolar)
      guardada += energia(solar_.actual, S, c_.edificio.GetDatosGenerales().Volumen_Dep_ST);
  }
  // Lo que falta para cerrar el balance de los depósitos, kWh.
  double Desajuste() const { return entra - sale - demanda - guardada; }

  double demanda = 0, dado = 0, noDado = 0, consumo = 0, ambiente = 0, captada = 0;
  double entra = 0, sale = 0, guardada = 0;
  float desajusteGenerador = 0;
  bool finito = true;

 private:
  static double D(float x) { return static_cast<double>(x); }
  CasoSistemas& c_;
  Instalaciones i_;
  GeneradorPreparado generador_;
  EstadoSolarCaso solar_;
  HoraACS acs_;
};

TEST(ArregloACS, LaTablaYNadaMas) {
  std::set<std::string> listadas;
  const int n = RecorrerTabla([&](const Fila& f, const Instalaciones& i) {
    const ArregloACS a = ResolverArreglo(TipoSistemaDe(f.tipo), i);
    EXPECT_EQ(a.deposito, f.deposito);
    EXPECT_EQ(a.depositoSolar, f.depositoSolar);
    EXPECT_EQ(a.captadores, f.captadores);
    const std::string feed = i.Alimentacion + i.Alimentacion2 + i.Alimentacion3 + i.Alimentacion4;
    if (f.deposito || f.captadores)
      listadas.insert(f.tipo + i.Seleccion + "|" + i.Distribucion + "|" + feed);
  });
  EXPECT_EQ(kTabla.size(), 17U);
  EXPECT_EQ(n, 124);
  // Cualquier otra combinación no tiene nada.
  Textos feeds = kCuatro;
  feeds.insert(feeds.end(), {kRed, kSerpentin[0], kSerpentin[1], "Recirculado solar", "", "Pozo"});
  int conAlgo = 0;
  for (const char* tipo : {"ACS", "ACS+Calefaccion", "Calefaccion", "Refrigeracion", "Otro"})
    for (const char* seleccion :
         {"1 Calentador", "1 Caldera", "1 Caldera Mixta", "1 BC aire-agua",
          "1 BC aire-agua + 1 Caldera", "1 BC aire-agua dedicada", "1 Termo electrico",
          "1 Interacumulador electrico", "Rend. estacional (agua)", "Equipo Split", "Otra"})
      for (const char* lado :
           {"", "Depósito", "Interacumulador", "Intercamb+Depósito", "Interacumu+lado_generador",
            "Interacumu+lado_solar", "Intercambiador", "Directo", "Con colector"})
        for (const std::string& feed : feeds) {
          Instalaciones i = BloqueCompleto(seleccion);
          i.Distribucion = i.Distribucion2 = lado;
          pruebas::Alimentar(i, feed);
          const ArregloACS a = ResolverArreglo(TipoSistemaDe(tipo), i);
          const std::string clave = std::string(tipo) + seleccion + "|";
          const bool listada = listadas.count(clave + lado + "|" + feed) > 0 ||
                               listadas.count(clave + "|" + feed) > 0;
          EXPECT_EQ(a.deposito || a.depositoSolar || a.captadores, listada)
              << tipo << " " << seleccion << " " << lado << " " << feed;
          conAlgo += listada;
        }
  EXPECT_GT(conAlgo, 100);
}

// Una semana de enero de cada combinación, con el retorno en una de cada dos: el generador da o
// deja sin dar lo que los depósitos le piden, y los depósitos cierran.
TEST(ArregloACS, UnaSemanaDeCadaCombinacionCierra) {
  int n = 0;
  CasoSistemas c;
  c.Generales(pruebas::PonerSolar);
  const int recorridas = RecorrerTabla([&](const Fila& f, Instalaciones i) {
    if (n++ % 2 == 1) {
      i.Retorno = "Con retorno";
      i.Long_tuberias = 20;
      i.Pot_perdida_m_tub = 0.2F;
      i.NHretorno = n % 4 == 0;
    }
    Recorrido r(c, f.tipo, i);
    r.Correr(168);
    EXPECT_TRUE(r.finito);
    EXPECT_LT(r.desajusteGenerador, 1e-3);
    EXPECT_NEAR(r.Desajuste(), 0, 0.03 * r.demanda);
    EXPECT_GT(r.dado, 0.3 * r.demanda);
    EXPECT_LT(r.noDado, 0.1 * r.demanda);
    EXPECT_GT(r.consumo, 0.2 * r.dado);
    EXPECT_EQ(r.captada > 0.02 * r.demanda, f.captadores) << r.captada / r.demanda;
    if (i.Seleccion == "1 BC aire-agua" || i.Seleccion == "1 BC aire-agua dedicada") {
      EXPECT_NEAR(r.ambiente, r.dado - r.consumo, 1e-3 * r.dado);
    } else if (i.Seleccion != "1 BC aire-agua + 1 Caldera") {
      EXPECT_EQ(r.ambiente, 0);
    }
    EXPECT_TRUE(c.mensajes.recibidos.empty());
  });
  EXPECT_EQ(recorridas, 124);
}

// Datos que faltan o no caben: ni se cuelga ni da algo que no sea un número, y no da lo que no
// tiene.
TEST(ArregloACS, DatosDegenerados) {
  using I = Instalaciones;
  using G = DatosGenerales;
  const std::vector<std::pair<std::string_view, std::function<void(I&, G&)>>> cambios = {
      {"potencia 0",
       [](I& i, G&) { i.QcalorCaldera1 = i.QcalorCaldera2 = i.QcalorBC1 = i.QApoyoEquipo = 0; }},
      {"rendimiento 0",
       [](I& i, G&) { i.RendCalor1 = i.RendCalor2 = i.EfiIntercamb = i.SCOP = i.QcalorBC1 = 0; }},
      {"curvas 0", [](I& i, G&) { i.curvas = {}; }},
      {"volumen 0", [](I& i, G& g) { i.Volumen = g.Volumen_Dep_ST = 0; }},
      {"equipos 0", [](I& i, G&) { i.NEquipos = 0; }},
      {"caudales 0",
       [](I& i, G& g) {
         i.GEN1 = i.GEN2 = i.DEP = i.INT = i.RET = {};
         i.Retorno = "Con retorno";
         g.Caudal_Col_ST = g.Caudal_Dep_ST = g.Caudal_Rec_ST = 0;
       }},
      {"sin aislar", [](I& i, G& g) { i.UA_deposito = i.LD_deposito = g.UA_Dep_ST = 0; }},
      {"sin serpentin", [](I& i, G& g) { i.AintermbD = i.AintermbD2 = g.Area_Serp_ST = 0; }},
      {"consignas 0", [](I& i, G&) { i.TimpACS = i.TaltaD = i.TbajaD = 0; }},
      {"volumen minimo", [](I& i, G& g) { i.Volumen = g.Volumen_Dep_ST = 0.5F; }},
      {"sin captadores", [](I&, G& g) { g.N_colec_term = 0; }},
      {"textos", [](I& i, G&) { i.TipoInstalacionesG = i.TipoBC1 = i.GEN1.control = "Otro"; }},
  };
  CasoSistemas c;
  for (const auto& [nombre, cambio] : cambios) {
    int n = 0;
    RecorrerTabla([&, &cambio = cambio, &nombre = nombre](const Fila& f, Instalaciones i) {
      if (n++ % 3 != 0 && f.selecciones.size() > 1) return;
      SCOPED_TRACE(nombre);
      c.mensajes.recibidos.clear();
      c.Generales([&](DatosGenerales& g) {
        pruebas::PonerSolar(g);
        cambio(i, g);
      });
      Recorrido r(c, f.tipo, i);
      r.Correr(30);
      EXPECT_TRUE(r.finito);
      const bool electrico = EsElectricoACS(ClaseGeneradorDe(i.Seleccion));
      const bool dedicada = i.Seleccion == "1 BC aire-agua dedicada";
      if (nombre == "equipos 0" || (nombre == "potencia 0" && !dedicada) ||
          (nombre == "rendimiento 0" && !electrico)) {
        EXPECT_EQ(r.dado + r.consumo, 0);
      }
      const std::size_t nulos = nombre == "volumen 0" ? f.deposito + f.depositoSolar : 0;
      EXPECT_EQ(c.Avisos("volumen nulo"), nulos);
      if (nulos > 0) {
        EXPECT_EQ(r.dado + r.noDado, 0);
      }
    });
  }
}

TEST(ArregloACS, AvisaDelTermoCortoUnaVez) {
  CasoSistemas c;
  Instalaciones i = BloqueCompleto("1 Termo electrico");
  pruebas::Alimentar(i, kRed);
  i.QApoyoEquipo = 0.3F;
  Recorrido r(c, "ACS", i);
  r.Correr(100);
  EXPECT_EQ(c.Avisos("no se consigue la temperatura"), 1U);
  EXPECT_EQ(r.noDado, 0);
}

// Un depósito que nadie calienta: todo queda sin dar menos lo que toma de un cuarto a 17,5 °C, 2
// W/K durante la semana por unos 6 K.
TEST(ArregloACS, LoQueElDepositoNoAlcanzaQuedaSinDar) {
  for (const std::string& lado : kConDeposito) {
    CasoSistemas c;
    Instalaciones i = BloqueCompleto("1 Caldera");
    i.Distribucion = lado;
    pruebas::Alimentar(i, kRed);
    i.QcalorCaldera1 = 0;
    i.DEP.Caudal = i.GEN1.Caudal = 0;
    Recorrido r(c, "ACS", i);
    r.Correr(168);
    EXPECT_NEAR(r.noDado, 0.97 * r.demanda, 0.025 * r.demanda) << lado;
    EXPECT_EQ(r.dado, 0);
  }
}

// Con la bomba de calor sin potencia, la resistencia de apoyo hace lo que puede ella sola; con
// ella, suma lo suyo a lo dado y a lo consumido.
TEST(ArregloACS, ResistenciaDeApoyoDelDeposito) {
  for (const float kW : {0.0F, 1.0F}) {
    CasoSistemas c;
    Instalaciones i = BloqueCompleto("1 BC aire-agua");
    i.Distribucion = "Intercamb+Depósito";
    pruebas::Alimentar(i, kRed);
    i.QcalorBC1 = kW;
    i.WeCalor1 = kW / 4;
    i.QApoyoTermo = 2;
    Recorrido r(c, "ACS", i);
    r.Correr(168);
    EXPECT_NEAR(r.Desajuste(), 0, 0.03 * r.demanda);
    EXPECT_GT(r.dado, 0.7 * r.demanda);
    EXPECT_NEAR(r.ambiente, r.dado - r.consumo, 1e-3);
    EXPECT_EQ(r.ambiente > 0.1 * r.dado, kW > 0);
    EXPECT_GT(r.consumo, 0.35 * r.dado);  // por encima de la cuarta parte de la bomba sola
  }
}

// 600 l/h por los dos lados y efectividad 0,75: 523 W/K. De 40 a 65 °C caben 13,075 kW, y el agua
// entra a 40 + 13075/697,3 = 58,75 °C. El serpentín de 2 m2 cede 304,4 W/K a 40 °C.
TEST(PasoGenerador, AMano) {
  CasoSistemas c;
  const double m = 600.0 / 3600;
  const Nodos T = {60, 55, 40, 40, 40};
  Instalaciones i = BloqueCompleto("1 BC aire-agua");
  i.TipoBC1 = "Partida";
  i.Distanciaext_int = 10;
  i.Perdida_m_tub_ext_int = 1;
  const auto paso = [&](const std::string& seleccion, LadoAgua lado) {
    i.Seleccion = seleccion;
    return CalcularPasoGenerador(c.Preparar("ACS", i), lado, 1, m, m, 40, T, 5);
  };
  PasoGenerador p = paso("1 BC aire-agua", LadoAgua::IntercambDeposito);
  EXPECT_NEAR(p.calor, 13075, 1);
  EXPECT_NEAR(p.temperatura, 58.75, 1e-3);
  EXPECT_NEAR(p.consumo, 5000 * 13075 / 18000.0, 1);
  p = paso("1 Caldera", LadoAgua::IntercambDeposito);
  EXPECT_NEAR(p.consumo, 13075 / 0.9, 1);
  p = paso("1 Caldera", LadoAgua::InteracumuGenerador);
  EXPECT_NEAR(p.calor, 7610, 1);
  EXPECT_NEAR(p.temperatura, 65, 1e-6);
  // Sin llegar al tope da toda su potencia, menos la línea.
  i.QcalorBC1 = 10;
  p = paso("1 BC aire-agua", LadoAgua::IntercambDeposito);
  EXPECT_NEAR(p.calor, 9000, 1e-2);
  EXPECT_NEAR(p.temperatura, 40 + 9000 / 523.0 - 9000 / 697.333, 1e-3);
  EXPECT_NEAR(p.consumo, 5000, 1);
  // A media capacidad en la hora: el intercambiador mira el agua con lo que de verdad da, y el
  // serpentín, con lo nominal.
  i.QcalorBC1 = 20;
  i.curvas.aaQ[0] = i.curvas.abQ[0] = 0.5F;
  EXPECT_NEAR(paso("1 BC aire-agua", LadoAgua::IntercambDeposito).calor, 9000, 1e-2);
  EXPECT_NEAR(paso("1 BC aire-agua", LadoAgua::InteracumuGenerador).consumo, 5000 * 7610 / 9000.0,
              2);
  i.QcalorCaldera1 = 5;
  EXPECT_NEAR(paso("1 Caldera", LadoAgua::InteracumuGenerador).temperatura, 40 + 5000 / 304.4,
              0.01);
}

// Los caudales de un minuto. A 60 °C, 10 % de 200 l; a TimpACS de 45 °C, 50/35 veces más.
TEST(ArregloACS, CaudalesDeLaHora) {
  CasoSistemas c;
  c.caso->carga.CCAC[1] = 10;
  Instalaciones i = BloqueCompleto("1 Calentador");
  i.Distribucion2 = "Directo";
  i.TimpACS = 45;
  pruebas::Alimentar(i, kRed);
  const GeneradorPreparado g = c.Preparar("ACS", i);
  EstadoSolarCaso solar;
  HoraACS acs(c.edificio, g, solar, *c.caso, c.mensajes);
  ResultadoACS r = acs.Hora(1);
  EXPECT_NEAR(r.caudal60, 20, 1e-3);
  EXPECT_NEAR(r.caudal, 20 * 50.0 / 35.0, 1e-3);
  EXPECT_EQ(r.temperatura, 45.0F);
  EXPECT_NEAR(r.calor, 20 * 50 * 4.184 / 3600, 1e-4);
  c.caso->carga.CCAC[2] = 0;
  r = acs.Hora(2);
  EXPECT_EQ(r.caudal, 0.0F);
  EXPECT_EQ(r.temperatura, 60.0F);
  EXPECT_EQ(r.calor, 0.0F);
}

// Un piso de un bloque de cuatro: con la instalación central ve la cuarta parte de la del bloque,
// que consume por los cuatro; con la suya, lo mismo que una vivienda sola.
TEST(ArregloACS, PisoDeBloque) {
  const auto semana = [](int perfil, const char* instalacion) {
    CasoSistemas c;
    c.Generales([&](DatosGenerales& g) {
      g.PerfilUso = perfil;
      g.NVBloqueF = 4;
      if (perfil == 0) g.ConsumoAgua_litros_dia = 800;
    });
    Instalaciones i = BloqueCompleto("1 Caldera", instalacion);
    i.Distribucion = "Intercamb+Depósito";
    pruebas::Alimentar(i, kRed);
    Recorrido r(c, "ACS", i);
    r.Correr(168);
    return r.dado;
  };
  const double bloque = semana(0, "Centralizada/Bloque");
  EXPECT_NEAR(semana(2, "Centralizada/Bloque"), bloque / 4, 1e-4 * bloque);
  EXPECT_NEAR(semana(2, "Individual/Vivienda"), semana(1, "Individual/Vivienda"), 0.02 * bloque);
}

// Un año con sol: lo captado menos tuberías y depósito solar es lo que llega al uso, al 1 %.
TEST(AnoSolar, LoCaptadoCierra) {
  // Con serpentín de consumo, la primera vuelta de cada hora parte del nodo de abajo: al 2 %.
  const std::tuple<const char*, std::string, double> casos[] = {
      {"Intercamb+Depósito", kDirectas[0], 0.01},
      {"Intercamb+Depósito", kDirectas[1], 0.01},
      {"Depósito", kRecirculadas[0], 0.01},
      {"Interacumu+lado_solar", kSerpentin[1], 0.02},
      {"Interacumu+lado_solar", "Recirculado solar", 0.02},
      {"Directo", kDirectas[0], 0.01}};
  for (const auto& [lado, feed, margen] : casos) {
    SCOPED_TRACE(lado + feed);
    CasoSistemas c;
    c.Generales(pruebas::PonerSolar);
    Instalaciones i = BloqueCompleto("1 Caldera");
    i.Distribucion = lado;
    pruebas::Alimentar(i, feed);
    Recorrido r(c, "ACS", i);
    r.Correr(kHorasAno);
    EXPECT_TRUE(r.finito);
    EXPECT_NEAR(r.Desajuste(), 0, margen * r.entra);
    EXPECT_GT(r.captada, 0.3 * r.demanda);
    EXPECT_LT(r.captada, 1.2 * r.demanda);
    EXPECT_EQ(c.Avisos("estancamiento"), 0U);
  }
}

TEST(AnoSolar, ElEstancamientoSeAvisaUnaVez) {
  CasoSistemas c;
  c.Generales([](DatosGenerales& g) {
    pruebas::PonerSolar(g);
    g.N_colec_term = 15;
  });
  Instalaciones i = BloqueCompleto("1 Caldera");
  i.Distribucion = "Depósito";
  pruebas::Alimentar(i, kDirectas[0]);
  c.Anadir("ACS", i);
  c.Anadir("ACS", i);
  Despacho d(c.edificio, c.ajustes, *c.caso, c.mensajes);
  for (int h = 1; h <= 5000; ++h) d.Hora(c.Hora(h));
  EXPECT_EQ(c.Avisos("estancamiento"), 1U);
}

// Dos sistemas iguales sobre la misma instalación solar: se cuenta una vez, el segundo sigue las
// temperaturas que guarda el primero, y al primero no le cambia nada.
TEST(AnoSolar, DosSistemasLaComparten) {
  const auto correr = [](int sistemas) {
    auto c = std::make_unique<CasoSistemas>();
    c->Generales(pruebas::PonerSolar);
    Instalaciones i = BloqueCompleto("1 Caldera");
    i.Distribucion = "Intercamb+Depósito";
    pruebas::Alimentar(i, kDirectas[0]);
    for (int n = 0; n < sistemas; ++n) c->Anadir("ACS", i);
    Despacho d(c->edificio, c->ajustes, *c->caso, c->mensajes);
    for (int h = 1; h <= kUltimaHoraMes[1]; ++h) d.Hora(c->Hora(h));
    return std::pair{d.Sumas(), c->caso->meses};
  };
  const auto [una, mesesUna] = correr(1);
  const auto [dos, mesesDos] = correr(2);
  EXPECT_GT(mesesUna.solarCaptada[1], 10);
  EXPECT_EQ(mesesDos.solarCaptada[1], mesesUna.solarCaptada[1]);
  EXPECT_EQ(mesesDos.perdidaDepositoSolar[1], mesesUna.perdidaDepositoSolar[1]);
  EXPECT_EQ(mesesDos.irradiacionCaptadores[1], mesesUna.irradiacionCaptadores[1]);
  EXPECT_EQ(dos[0].dado[0][kACS], una[0].dado[0][kACS]);
  EXPECT_EQ(dos[1].dado[0][kACS], una[0].dado[0][kACS]);
}

}  // namespace
}  // namespace novex
