#include "systems/Despacho.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "systems/CasoSistemas.h"
#include "systems/RepartoSuperficies.h"

namespace novex {
namespace {

using pruebas::BloqueCompleto;
using pruebas::CasoSistemas;
using Textos = std::vector<std::string>;

bool Finitas(const TablasMensuales& meses) {
  static_assert(sizeof(TablasMensuales) % sizeof(float) == 0);
  std::vector<float> valores(sizeof(TablasMensuales) / sizeof(float));
  std::memcpy(valores.data(), &meses, sizeof meses);
  for (const float v : valores)
    if (!std::isfinite(v)) return false;
  return true;
}

const Textos kSoloFrio = {"Equipo de Ventana", "Equipo Split", "Equipo Conductos",
                          "Equipo MultiSplit", "Caudal refrigerante variable"};

Textos Mas(Textos a, const Textos& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

// Lo que ofrece cada tipo de sistema, central e individual.
struct Oferta {
  const char* tipo;
  Textos central, individual;
};
const std::vector<Oferta> kOferta = {
    {"ACS",
     {"1 Caldera", "1 BC aire-agua", "1 BC aire-agua + 1 Caldera"},
     {"1 Calentador", "1 Caldera", "1 BC aire-agua", "1 BC aire-agua + 1 Caldera",
      "1 BC aire-agua dedicada", "1 Termo electrico", "1 Interacumulador electrico"}},
    {"ACS+Calefaccion",
     {"1 Caldera", "1 BC aire-agua", "1 BC aire-agua + 1 Caldera"},
     {"1 Caldera", "1 BC aire-agua", "1 BC aire-agua + 1 Caldera", "1 Caldera Mixta"}},
    {"Calefaccion",
     {"1 Caldera", "1 BC aire-agua", "1 BC aire-agua + 1 Caldera", "Rend. estacional (agua)",
      "Rend. estacional (refrigerante)"},
     {"1 Caldera", "1 BC aire-agua", "1 BC aire-agua + 1 Caldera", "Radiadores eléctricos",
      "Rooftop", "Rend. estacional (agua)", "Rend. estacional"}},
    {"Refrigeracion",
     {"1 BC aire-agua", "Enfriadora agua cond.aire", "Rend. estacional (agua)",
      "Rend. estacional (refrigerante)"},
     Mas(kSoloFrio, {"1 BC aire-agua", "Enfriadora agua cond.aire", "Rooftop",
                     "Rend. estacional (agua)", "Rend. estacional (refrigerante)"})},
    {"Calefaccion+Refrigeracion",
     {"1 BC aire-agua", "Rend. estacional (agua)", "Rend. estacional (refrigerante)"},
     Mas(kSoloFrio, {"1 BC aire-agua", "Rooftop", "Rend. estacional (agua)",
                     "Rend. estacional (refrigerante)"})},
    {"ACS+Calefaccion+Refrigeracion",
     {"1 BC aire-agua", "Rend. estacional conocido"},
     {"1 BC aire-agua", "Rend. estacional conocido"}}};

struct Semanas {
  CargasHora dado{}, consumo{}, pedido{}, defecto{}, ambiente{}, auxiliares{};
};

// Una semana de enero y otra de julio de los sistemas del caso.
Semanas CorrerSemanas(CasoSistemas& c) {
  Despacho d(c.edificio, c.ajustes, *c.caso, c.mensajes);
  Semanas s;
  for (const int inicio : {1, 4801})
    for (int h = inicio; h < inicio + 168; ++h) {
      const ResultadoDespacho r = d.Hora(c.Hora(h));
      for (std::size_t k = 0; k < kServiciosDemanda; ++k) s.defecto[k] += r.defecto[k];
      s.pedido[kACS] += c.caso->zona.DACS[h];
      s.pedido[kCalefaccion] -= c.caso->zona.cargaCalefaccion[h];
      s.pedido[kRefrigeracion] += c.caso->zona.cargaRefrigeracion[h];
    }
  for (const SumasBloque& b : d.Sumas())
    for (std::size_t k = 0; k < kServiciosDemanda; ++k) {
      s.dado[k] += b.dado[0][k] + b.dado[1][k];
      s.consumo[k] += b.consumo[0][k] + b.consumo[1][k];
      s.ambiente[k] += b.ambiente[k];
      s.auxiliares[k] += b.auxiliares[k];
    }
  return s;
}

float DelAno(TablaMensual tabla) {
  SumarAno(tabla);
  return tabla[0];
}

Instalaciones BloqueDeOferta(const std::string& tipo, const std::string& seleccion,
                             const std::string& instalacion) {
  Instalaciones i = BloqueCompleto(seleccion, instalacion);
  if (tipo == "ACS") i.Distribucion = "Intercamb+Depósito";
  if (tipo.rfind("ACS+", 0) == 0) i.Distribucion = "Depósito";
  pruebas::Alimentar(i, seleccion == "1 Interacumulador electrico" ? "Recirculado solar"
                                                                   : "Alimentación agua red");
  return i;
}

// Todas las casillas de tipo, instalación y clase dan los servicios que dicen y ninguno más, y lo
// dado y lo que toma el equipo por defecto suman lo pedido.
TEST(Despacho, TodasLasCasillas) {
  int n = 0;
  CasoSistemas c;
  c.Generales(pruebas::PonerSolar);
  c.ajustes.aire = SistemaAire::UTA;  // sin etapa de aire previa
  for (const Oferta& o : kOferta)
    for (const bool central : {true, false})
      for (const std::string& seleccion : central ? o.central : o.individual) {
        SCOPED_TRACE(std::string(o.tipo) + " / " + seleccion + (central ? " central" : ""));
        ++n;
        c.caso->meses = {};
        c.Anadir(o.tipo, BloqueDeOferta(o.tipo, seleccion,
                                        central ? "Centralizada/Bloque" : "Individual/Vivienda"));
        const Semanas s = CorrerSemanas(c);
        c.edificio.BorrarSistema(0);
        EXPECT_TRUE(Finitas(c.caso->meses));
        const TipoSistema tipo = TipoSistemaDe(o.tipo);
        const bool da[] = {DaACS(tipo), DaCalefaccion(tipo), DaRefrigeracion(tipo)};
        for (const std::size_t k : {kACS, kCalefaccion, kRefrigeracion}) {
          EXPECT_EQ(s.dado[k] > 0.2F * s.pedido[k], da[k]) << k;
          EXPECT_EQ(s.dado[k] > 0.0F, da[k]) << k;
          EXPECT_EQ(s.consumo[k] > 0.0F, da[k]) << k;
          // Lo que se guarda por bloques es lo mismo que va a los meses.
          const TablasMensuales& m = c.caso->meses;
          EXPECT_NEAR(s.ambiente[k], DelAno(m.ambiente[k]), 1e-3F) << k;
          EXPECT_NEAR(s.auxiliares[k], DelAno(m.bombas[k]) + DelAno(m.ventiladores[k]), 1e-3F) << k;
          // El agua caliente lleva además lo que pierden y guardan los depósitos.
          if (k != kACS || !da[k]) {
            EXPECT_NEAR(s.dado[k] + s.defecto[k], s.pedido[k], 1e-3 * s.pedido[k]) << k;
          }
        }
        if (da[kACS]) {
          EXPECT_LT(s.defecto[kACS], 0.1F * s.pedido[kACS]);
        }
      }
  EXPECT_EQ(n, 59);
}

TEST(Despacho, DatosDegenerados) {
  CasoSistemas c;
  c.ajustes.aire = SistemaAire::UTA;
  for (const Oferta& o : kOferta)
    for (const std::string& seleccion : Mas(o.individual, {"", "Otra"}))
      for (int cambio = 0; cambio < 4; ++cambio) {
        SCOPED_TRACE(std::string(o.tipo) + " / " + seleccion + " / " + std::to_string(cambio));
        Instalaciones i = BloqueDeOferta(o.tipo, seleccion, "Individual/Vivienda");
        if (cambio == 0) i.NEquipos = 0;
        if (cambio == 1) i.curvas = {};
        if (cambio == 2) i = Instalaciones{};
        if (cambio == 3) {
          i.WeFrio1 = i.WeCalor1 = i.SCOP = i.RendCalorEst = i.RendFrioEst = i.RendACSEst = 0;
          i.RendCalor1 = i.rendVent = i.GEN1.Rend = i.SBZ.Rend = 0;
        }
        i.Seleccion = seleccion;
        c.caso->meses = {};
        c.Anadir(o.tipo, i);
        if (cambio == 1) c.Anadir("Otro tipo", i);
        Despacho d(c.edificio, c.ajustes, *c.caso, c.mensajes);
        for (const int inicio : {1, 4813})
          for (int h = inicio; h < inicio + 6; ++h) {
            const ResultadoDespacho r = d.Hora(c.Hora(h));
            for (const std::size_t k : {kACS, kCalefaccion, kRefrigeracion})
              EXPECT_TRUE(r.defecto[k] >= 0 && std::isfinite(r.defecto[k]));
            if (cambio == 0 || cambio == 2) {
              if (seleccion.rfind("Rend", 0) != 0) {
                EXPECT_NEAR(r.defecto[kCalefaccion], -c.caso->zona.cargaCalefaccion[h], 1e-3);
              }
            }
          }
        EXPECT_TRUE(Finitas(c.caso->meses));
        while (c.edificio.NumeroSistemas() > 0) c.edificio.BorrarSistema(0);
      }
}

class Reparto : public testing::Test {
 protected:
  Instalaciones Caldera(float kW) {
    Instalaciones i = BloqueCompleto("1 Caldera");
    i.QcalorCaldera1 = kW;
    return i;
  }
  ResultadoDespacho Hora() {
    Despacho d(c.edificio, c.ajustes, *c.caso, c.mensajes);
    const ResultadoDespacho r = d.Hora(c.Hora(kHora));
    dado.clear();
    for (const SumasBloque& b : d.Sumas()) {
      dado.push_back(b.dado[0]);
      for (std::size_t k = 0; k < kServiciosDemanda; ++k) dado.back()[k] += b.dado[1][k];
    }
    return r;
  }

  static constexpr int kHora = 100;
  CasoSistemas c;
  std::vector<CargasHora> dado;
};

// 30 y 10 kW sirven tres cuartos y un cuarto. La primera, a media capacidad en la hora, da 15 de 18
// y la segunda recoge los 3 que faltan; con 40 pedidos la segunda llega a sus 10.
TEST_F(Reparto, LaSegundaRecogeLoQueLaPrimeraNoAlcanza) {
  Instalaciones bomba = BloqueCompleto("1 BC aire-agua");
  bomba.QcalorBC1 = 30;
  bomba.curvas.aaQ[0] = bomba.curvas.abQ[0] = 0.5F;
  c.Anadir("Calefaccion", bomba);
  c.Anadir("Calefaccion", Caldera(10));
  c.Cargas(kHora, 24, 0);
  ResultadoDespacho r = Hora();
  EXPECT_NEAR(c.edificio.GetSistema(0).Sup_Calefaccion, 75, 1e-3);
  EXPECT_NEAR(c.edificio.GetSistema(1).Sup_Calefaccion, 25, 1e-3);
  EXPECT_EQ(c.edificio.GetSistema(0).Sup_Refrigeracion, 0.0F);
  EXPECT_NEAR(dado[0][kCalefaccion], 15, 1e-4);
  EXPECT_NEAR(dado[1][kCalefaccion], 9, 1e-4);
  EXPECT_EQ(r.sinCubrir[kCalefaccion], 0.0F);
  c.Cargas(kHora, 40, 0);
  r = Hora();
  EXPECT_NEAR(dado[1][kCalefaccion], 10, 1e-4);
  EXPECT_NEAR(r.sinCubrir[kCalefaccion], 15, 1e-4);
  EXPECT_NEAR(r.defecto[kCalefaccion], 15, 1e-4);
  EXPECT_NEAR(c.caso->meses.servida[kCalefaccion][1], 24 + 25, 1e-3);
}

// Uno estacional se queda toda la superficie, como las calderas juntas: las superficies suman más
// que el edificio, y lo repartido, no.
TEST_F(Reparto, NuncaSeSirveMasQueElTotal) {
  c.Anadir("Calefaccion", Caldera(30));
  c.Anadir("Calefaccion", BloqueCompleto("Rend. estacional"));
  c.Anadir("Calefaccion", Caldera(10));
  c.Cargas(kHora, 20, 0);
  const ResultadoDespacho r = Hora();
  EXPECT_EQ(c.edificio.GetSistema(1).Sup_Calefaccion, 100.0F);
  EXPECT_NEAR(dado[0][kCalefaccion], 15, 1e-4);
  EXPECT_NEAR(dado[1][kCalefaccion], 5, 1e-4);
  EXPECT_EQ(dado[2][kCalefaccion], 0.0F);
  EXPECT_EQ(r.defecto[kCalefaccion], 0.0F);
}

TEST_F(Reparto, ParteDelAguaCaliente) {
  Instalaciones i = BloqueCompleto("1 BC aire-agua dedicada");
  pruebas::Alimentar(i, "Alimentación agua red");
  c.Anadir("ACS", i);
  c.edificio.GetSistema(0).Sup_ACS = 60;
  c.caso->carga.CCAC[kHora] = 10;
  c.caso->zona.DACS[kHora] = 1;
  EXPECT_NEAR(Hora().defecto[kACS], 0.4, 1e-4);
  // Dos que juntas pasan de la del edificio la sirven entera.
  c.Anadir("ACS", i);
  EXPECT_NEAR(Hora().defecto[kACS], 0, 1e-4);
  // Lo que uno no da lo deja sin cubrir: le tocaban 60 de 100, y el otro tiene lo suyo.
  c.edificio.GetSistema(1).Sup_ACS = 40;
  c.edificio.GetSistema(0).instalaciones[0].SCOP = 0;
  EXPECT_GT(Hora().sinCubrir[kACS], 0.5);
}

// 10 kW con 4 por el aire de ventilación. El de ventilación solo da 3: la zona, 6 y el que falta.
TEST_F(Reparto, EtapaDeAire) {
  Instalaciones aire = BloqueCompleto("Equipo Conductos");
  aire.QcalorBC1 = 3;
  aire.QFrioSen1 = 3;
  aire.Emisor = "Sist.Vent.";
  c.Anadir("Calefaccion+Refrigeracion", aire);
  c.Anadir("Calefaccion", Caldera(30));
  c.Anadir("Refrigeracion", BloqueCompleto("Equipo Split"));
  c.Cargas(kHora, 10, 0, 4);
  ResultadoDespacho r = Hora();
  EXPECT_EQ(c.edificio.GetSistema(0).Sup_Calefaccion, 100.0F);
  EXPECT_EQ(c.edificio.GetSistema(1).Sup_Calefaccion, 100.0F);
  EXPECT_NEAR(dado[0][kCalefaccion], 3, 1e-4);
  EXPECT_NEAR(dado[1][kCalefaccion], 7, 1e-4);
  EXPECT_EQ(r.defecto[kCalefaccion], 0.0F);
  // En frío la ventilación es negativa: 9 kW, 4 por el aire, y da 3.
  c.Cargas(kHora, 0, 9, -4);
  r = Hora();
  EXPECT_NEAR(dado[0][kRefrigeracion], 3, 1e-4);
  EXPECT_NEAR(dado[2][kRefrigeracion], 6, 1e-4);
  EXPECT_EQ(r.defecto[kRefrigeracion], 0.0F);
  EXPECT_NEAR(r.frioLatente, 3 * 20 / 3.0 * 1000 - 3000 + 6 * 20 / 14.0 * 1000 - 6000, 1);
  // Sin carga de calefacción, la zona no tiene nada que hacer.
  c.Cargas(kHora, 0, 0, 2);
  Hora();
  EXPECT_NEAR(dado[0][kCalefaccion], 2, 1e-4);
  EXPECT_EQ(dado[1][kCalefaccion], 0.0F);
  // Con unidad de tratamiento no hay etapa de aire: van en su orden con toda la carga.
  c.ajustes.aire = SistemaAire::UTA;
  c.Cargas(kHora, 10, 0, 4);
  Hora();
  EXPECT_NEAR(dado[0][kCalefaccion], 3, 1e-4);
  EXPECT_NEAR(dado[1][kCalefaccion], 7, 1e-4);
}

TEST_F(Reparto, ElDeCubiertaEsDeAire) {
  c.Anadir("Calefaccion", BloqueCompleto("Rooftop"));
  c.Anadir("Calefaccion", Caldera(30));
  c.Cargas(kHora, 10, 0, 4);
  Hora();
  EXPECT_EQ(c.edificio.GetSistema(0).Sup_Calefaccion, 100.0F);
  EXPECT_NEAR(dado[0][kCalefaccion], 4, 1e-4);
  EXPECT_NEAR(dado[1][kCalefaccion], 6, 1e-4);
}

// La potencia del conjunto cuenta como la media de las dos, y la de cada una por sus equipos.
TEST_F(Reparto, PotenciasQueReparten) {
  Instalaciones conjunto = BloqueCompleto("1 BC aire-agua + 1 Caldera");
  conjunto.QcalorCaldera1 = 10;
  conjunto.QcalorBC1 = 20;
  conjunto.NEquipos = 2;
  c.Anadir("ACS+Calefaccion", conjunto);
  Instalaciones radiadores = BloqueCompleto("Radiadores eléctricos");
  radiadores.RadiadorElectrico = 10;
  c.Anadir("Calefaccion", radiadores);
  c.Anadir("Refrigeracion", BloqueCompleto("1 BC aire-agua"));  // no calienta
  Hora();
  EXPECT_NEAR(c.edificio.GetSistema(0).Sup_Calefaccion, 75, 1e-3);
  EXPECT_NEAR(c.edificio.GetSistema(1).Sup_Calefaccion, 25, 1e-3);
  EXPECT_EQ(c.edificio.GetSistema(2).Sup_Calefaccion, 0.0F);
  EXPECT_EQ(c.edificio.GetSistema(2).Sup_Refrigeracion, 100.0F);
}

// La caldera y el estacional no caben los dos enteros: al segundo le queda el cuarto que el primero
// no toma, y al tercero nada. El de aire tiene toda la ventilación, aparte, salvo en una UTA.
TEST_F(Reparto, PartesDeCadaSistema) {
  c.Anadir("Calefaccion", Caldera(30));
  c.Anadir("Calefaccion", BloqueCompleto("Rend. estacional"));
  c.Anadir("Calefaccion", Caldera(10));
  c.Anadir("Calefaccion", BloqueCompleto("Rooftop"));
  Instalaciones termo = BloqueCompleto("1 Termo electrico");
  c.Anadir("ACS", termo);
  c.edificio.AnadirSistema({});  // sin bloques
  for (std::size_t n = 0; n < 4; ++n) c.edificio.GetSistema(n).Sup_ACS = 0;
  c.edificio.GetSistema(4).Sup_ACS = 60;
  const RepartoServicios r = RepartirServicios(c.edificio, SistemaAire::Toma);
  ASSERT_EQ(r.partes.size(), 6U);
  EXPECT_NEAR(r.partes[0][kCalefaccion], 0.75, 1e-5);
  EXPECT_NEAR(r.partes[1][kCalefaccion], 0.25, 1e-5);
  EXPECT_NEAR(r.partes[2][kCalefaccion], 0, 1e-5);
  EXPECT_NEAR(r.partes[3][kCalefaccion], 1, 1e-5);
  EXPECT_NEAR(r.partes[4][kACS], 0.6, 1e-5);
  EXPECT_NEAR(r.sinSistema[kACS], 0.4, 1e-5);
  EXPECT_NEAR(r.sinSistema[kCalefaccion], 0, 1e-5);
  EXPECT_NEAR(r.sinSistema[kRefrigeracion], 1, 1e-5);
  EXPECT_NEAR(RepartirServicios(c.edificio, SistemaAire::UTA).partes[3][kCalefaccion], 0, 1e-5);
  c.edificio.GetRecinto(0).Suelo_habitable_m2 = 0;
  EXPECT_EQ(RepartirServicios(c.edificio, SistemaAire::Toma).partes[0][kCalefaccion], 0.0F);
}

// Cada consumo va a su vector y su mes, y las bombas en kWh.
TEST_F(Reparto, LoQueSeContabiliza) {
  Instalaciones i = Caldera(30);
  i.TipoGenerador1 = "Biomasa";
  i.Distribucion = "Directo";
  c.Anadir("Calefaccion", i);
  i = BloqueCompleto("Rend. estacional");
  i.CombEst = "Un combustible que no existe";
  c.Anadir("Calefaccion", i);
  c.Cargas(kHora, 9, 0);
  Hora();
  const TablasMensuales& m = c.caso->meses;
  EXPECT_NEAR(m.consumo[Indice(VectorEnergetico::Biomasa_Pellet)][kCalefaccion][1], 10, 1e-4);
  EXPECT_EQ(m.consumo[Indice(VectorEnergetico::Electricidad)][kCalefaccion][1], 0.0F);
  EXPECT_NEAR(m.bombas[kCalefaccion][1], 0.0408333, 1e-5);
  EXPECT_NEAR(m.ventiladores[kCalefaccion][1], 0.02, 1e-5);
  EXPECT_EQ(m.consumo[Indice(VectorEnergetico::Biomasa_Pellet)][kCalefaccion][2], 0.0F);
}

}  // namespace
}  // namespace novex
