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
    {"ACS+Calefaccion", kCombinados, {"Depósito", "Interacumulador"}, 1, {kRed}, true, false,
     false},
    {"ACS+Calefaccion", kCombinados, {"Depósito", "Interacumulador"}, 1, kDirectas, true, true,
     true},
    {"ACS+Calefaccion", {"1 Caldera Mixta"}, kSinLado, 1, {kRed}, false, false, false},
    {"ACS+Calefaccion", {"1 Caldera Mixta"}, kSinLado, 1, kDirectas, false, true, true},
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
      const ResultadoACS a =
          HoraAguaCaliente(generador_, acs_, c_.Hora(h), *c_.caso, 2.0F, r);
      finito = finito && Finito(a, r);
      if (h == 1) {
        T = acs_.Temperaturas();
        S = solar_.actual;
        continue;
      }
      const float retorno = acs_.Arreglo().deposito ? 0.0F : a.perdidaRetorno;
      desajusteGenerador = std::max(
          desajusteGenerador, std::fabs(r.dado[kACS] + r.noDado[kACS] - a.calor - a.resistencia -
                                        a.noDado - retorno));
      demanda += D(c_.caso->zona.DACS[h]);
      dado += D(r.dado[kACS]);
      noDado += D(r.noDado[kACS]);
      consumo += D(r.consumo1[kACS] + r.consumo2[kACS]);
      captada += D(a.captada);
      entra += D(a.calor) + D(a.resistencia) + D(a.captada);
      sale += D(a.perdidaTuberia) + D(a.perdidaSolar) + D(a.perdidaDeposito) - D(a.noDado);
      if (acs_.Arreglo().deposito) sale += D(a.perdidaRetorno);
    }
    const auto energia = [](const Nodos& a, const Nodos& b, float litros) {
      const double dT = std::accumulate(a.begin(), a.end(), 0.0) -
                        std::accumulate(b.begin(), b.end(), 0.0);
      return dT * D(litros) / 5.0 * 0.983 * 4184 / 3.6e6;
    };
    if (acs_.Arreglo().deposito) guardada += energia(acs_.Temperaturas(), T, i_.Volumen);
    if (acs_.Arreglo().depositoSolar)
      guardada += energia(solar_.actual, S, c_.edificio.GetDatosGenerales().Volumen_Dep_ST);
  }
  // Lo que falta para cerrar el balance de los depósitos, kWh.
  double Desajuste() const { return entra - sale - demanda - guardada; }

  double demanda = 0, dado = 0, noDado = 0, consumo = 0, captada = 0;
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

// Una semana de enero de cada combinación, con el retorno en una de cada dos: el generador da o deja
// sin dar lo que los depósitos le piden, y los depósitos cierran.
TEST(ArregloACS, UnaSemanaDeCadaCombinacionCierra) {
  int n = 0;
  RecorrerTabla([&](const Fila& f, Instalaciones i) {
    CasoSistemas c;
    c.Generales(pruebas::PonerSolar);
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
    EXPECT_NEAR(r.Desajuste(), 0, 0.02 * r.demanda);
    EXPECT_GT(r.dado, 0.3 * r.demanda);
    EXPECT_LT(r.noDado, 0.1 * r.demanda);
    EXPECT_GT(r.consumo, 0.2 * r.dado);
    EXPECT_EQ(r.captada > 0.02 * r.demanda, f.captadores) << r.captada / r.demanda;
    EXPECT_TRUE(c.mensajes.recibidos.empty());
  });
}

// Datos que faltan o no caben: ni se cuelga ni da algo que no sea un número, y no da lo que no
// tiene.
TEST(ArregloACS, DatosDegenerados) {
  using Cambio = std::function<void(Instalaciones&, DatosGenerales&)>;
  const std::vector<std::pair<const char*, Cambio>> cambios = {
      {"potencia 0",
       [](Instalaciones& i, DatosGenerales&) {
         i.QcalorCaldera1 = i.QcalorCaldera2 = i.QcalorBC1 = i.QApoyoEquipo = i.SCOP = 0;
       }},
      {"rendimiento 0",
       [](Instalaciones& i, DatosGenerales&) {
         i.RendCalor1 = i.RendCalor2 = i.EfiIntercamb = i.SCOP = 0;
         i.curvas = {};
       }},
      {"volumen 0",
       [](Instalaciones& i, DatosGenerales& g) { i.Volumen = g.Volumen_Dep_ST = 0; }},
      {"equipos 0", [](Instalaciones& i, DatosGenerales&) { i.NEquipos = 0; }},
      {"caudales 0",
       [](Instalaciones& i, DatosGenerales& g) {
         i.GEN1.Caudal = i.GEN2.Caudal = i.DEP.Caudal = i.INT.Caudal = i.RET.Caudal = 0;
         i.Retorno = "Con retorno";
         g.Caudal_Col_ST = g.Caudal_Dep_ST = g.Caudal_Rec_ST = 0;
       }},
      {"sin aislar ni serpentines",
       [](Instalaciones& i, DatosGenerales& g) {
         i.UA_deposito = i.LD_deposito = i.AintermbD = i.AintermbD2 = 0;
         g.UA_Dep_ST = g.LD_Dep_ST = g.Area_Serp_ST = 0;
       }},
      {"consignas 0",
       [](Instalaciones& i, DatosGenerales&) { i.TimpACS = i.TaltaD = i.TbajaD = 0; }},
      {"volumen minimo",
       [](Instalaciones& i, DatosGenerales& g) { i.Volumen = g.Volumen_Dep_ST = 0.5F; }},
      {"sin captadores",
       [](Instalaciones&, DatosGenerales& g) { g.N_colec_term = 0; }},
      {"textos desconocidos",
       [](Instalaciones& i, DatosGenerales&) {
         i.TipoInstalacionesG = i.TipoBC1 = i.CombCalor1 = i.Retorno = i.Fabricante = "Otro";
         i.GEN1.control = i.DEP.control = "Otro";
       }},
  };
  for (const auto& [nombre, cambio] : cambios) {
    int n = 0;
    RecorrerTabla([&, &cambio = cambio, &nombre = nombre](const Fila& f, Instalaciones i) {
      if (n++ % 3 != 0 && f.selecciones.size() > 1) return;
      SCOPED_TRACE(nombre);
      CasoSistemas c;
      c.Generales([&](DatosGenerales& g) {
        pruebas::PonerSolar(g);
        cambio(i, g);
      });
      Recorrido r(c, f.tipo, i);
      r.Correr(30);
      EXPECT_TRUE(r.finito);
      const std::string_view cual = nombre;
      if (cual == "potencia 0" || cual == "rendimiento 0" || cual == "equipos 0") {
        if (cual != "rendimiento 0" || i.Seleccion.find("electrico") == std::string::npos) {
          EXPECT_EQ(r.dado, 0);
          EXPECT_EQ(r.consumo, 0);
        }
      }
      const std::size_t nulos = cual == "volumen 0" ? f.deposito + f.depositoSolar : 0;
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

// Un depósito que el generador no calienta deja el agua a la red: casi todo queda sin dar.
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
    EXPECT_NEAR(r.noDado, r.demanda * 45 / 50, 0.06 * r.demanda) << lado;
    EXPECT_EQ(r.dado, 0);
  }
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
  const std::pair<const char*, std::string> casos[] = {{"Intercamb+Depósito", kDirectas[0]},
                                                       {"Intercamb+Depósito", kDirectas[1]},
                                                       {"Depósito", kRecirculadas[0]},
                                                       {"Interacumu+lado_solar", kSerpentin[1]},
                                                       {"Interacumu+lado_solar",
                                                        "Recirculado solar"},
                                                       {"Directo", kDirectas[0]}};
  for (const auto& [lado, feed] : casos) {
    SCOPED_TRACE(lado + feed);
    CasoSistemas c;
    c.Generales(pruebas::PonerSolar);
    Instalaciones i = BloqueCompleto("1 Caldera");
    i.Distribucion = lado;
    pruebas::Alimentar(i, feed);
    Recorrido r(c, "ACS", i);
    r.Correr(kHorasAno);
    EXPECT_TRUE(r.finito);
    EXPECT_NEAR(r.Desajuste(), 0, 0.01 * r.entra);
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
