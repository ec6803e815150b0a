#include "outputs/ArbolVariables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Psicrometria.h"
#include "demand/Clima.h"
#include "outputs/CasoPrueba.h"
#include "outputs/SerieResultado.h"

namespace novex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Not;

struct CasoSeries : pruebas::CasoDePrueba {
  SerieHoraria& Atributo(const char* nombre) {
    AtributoSistema& a = resultado->atributos.emplace_back();
    a.nombre = nombre;
    return a.serie;
  }
  std::vector<NodoVariable> Arbol() const { return ArbolVariables(*edificio, *resultado); }
  std::vector<std::string> Codigos(const char* grupo) const {
    std::vector<std::string> codigos;
    for (const NodoVariable& n : Arbol())
      if (n.grupo == grupo) codigos.push_back(n.codigo);
    return codigos;
  }
  std::vector<std::string> Textos() const {
    std::vector<std::string> textos;
    for (const NodoVariable& n : Arbol()) textos.push_back(n.texto);
    return textos;
  }
  // Valor de una variable en una hora.
  float Valor(const char* codigo, int h = 1) const {
    const auto buscada = SerieDeVariable(*edificio, *resultado, codigo);
    if (!buscada.serie || buscada.serie->serie.valores.size() != 8760U) {
      ADD_FAILURE() << codigo;
      return 0;
    }
    return buscada.serie->serie.valores[static_cast<std::size_t>(h - 1)];
  }
};

TEST(ArbolVariables, LoFijoYSuOrden) {
  const CasoSeries caso;
  std::vector<std::string> grupos;
  for (const NodoVariable& n : caso.Arbol())
    if (grupos.empty() || grupos.back() != n.grupo) grupos.push_back(n.grupo);
  EXPECT_THAT(grupos, ElementsAre("Varios", "Local", "Exterior", "Operacionales y funcionales",
                                  "ACS", "Calefacción", "Refrigeración", "Ventilación"));
  EXPECT_THAT(caso.Codigos("Ventilación"), ElementsAre("CV", "DVENT", "CAE", "CUTA"));
  EXPECT_THAT(caso.Codigos("ACS"), ElementsAre("DACS", "DACSD", "CACSD"));
  EXPECT_THAT(caso.Textos(),
              IsSupersetOf({"Hum.específica local WL(gr/kg)", "Rad.total Horizontal RTHz(kWh/m2)",
                            "Calor iuminación DILU(kWh)", "Caudal agua a 60ºC CW60(l/h)"}));
}

TEST(ArbolVariables, SeBuscaSinAcentosNiMayusculas) {
  const CasoSeries caso;
  const auto salen = [&](const char* buscado) {
    std::vector<std::string> codigos;
    for (const NodoVariable& n : caso.Arbol())
      if (SaleAlBuscar(n, buscado)) codigos.push_back(n.codigo);
    return codigos;
  };
  EXPECT_THAT(salen("HÚMEDA"), ElementsAre("THL", "THE"));
  EXPECT_THAT(salen(" calefaccion  DEMANDA "), ElementsAre("DCAL"));
  EXPECT_THAT(salen("exterior rtsw"), ElementsAre("RTSW"));
  EXPECT_EQ(salen("  ").size(), caso.Arbol().size());
  EXPECT_TRUE(salen("inexistente").empty());
}

TEST(ArbolVariables, LoQueDependeDeLaVentilacion) {
  CasoSeries caso;
  caso.Generales([](DatosGenerales& g) {
    g.PerfilUso = 5;
    g.Recuperador = "EntalpicoSinBypass";
  });
  EXPECT_THAT(caso.Codigos("Ventilación"), IsSupersetOf({"QIR", "TSR"}));
  EXPECT_THAT(caso.Codigos("Ventilación"), Not(Contains("HBP")));

  caso.Generales([](DatosGenerales& g) {
    g.Recuperador = "SensibleConBypass";
    g.TipoCO2 = "SondaCO2 con freecooling";
    g.UTAHumectacion = "HumectadorVapor";
  });
  // Con toma independiente no hay enfriamiento gratuito que mostrar.
  EXPECT_THAT(caso.Codigos("Ventilación"), IsSupersetOf({"HBP", "QEH"}));
  EXPECT_THAT(caso.Codigos("Ventilación"), Not(Contains("HFC")));
  caso.Generales([](DatosGenerales& g) { g.ManejoVentilacion = "UTA"; });
  EXPECT_THAT(caso.Codigos("Ventilación"), Contains("HFC"));
}

TEST(ArbolVariables, UnGrupoPorInstalacion) {
  CasoSeries caso;
  std::string& alimentacion =
      caso.AnadirSistema("ACS", "1 Termo electrico", "Caldera y frío", 3).Alimentacion4;
  alimentacion = "Recirculado solar intercambiador";
  // Fuera de orden, y con los del sistema 11, que no está.
  for (const char* nombre :
       {"WVEMIC1",  "WGEN1C1",  "WSBZR1",      "TD5_1",    "TD1_1",    "PDACS1",    "PRET1",
        "CACS_RA1", "QACS_RA1", "RendACS_BC1", "CACS_BC1", "QACS_BC1", "QTREF_EA1", "RendREF_EA1",
        "QREF_EA1", "CREF_EA1", "QACS_BC11",   "WDEP11",   "CWT",      "TWC",       "PTCS"})
    caso.Atributo(nombre);
  EXPECT_THAT(caso.Codigos("Instalación Caldera y frío (3 equipos)"),
              ElementsAre("QACS_BC1", "CACS_BC1", "RendACS_BC1", "QACS_RA1", "QREF_EA1",
                          "QTREF_EA1", "CREF_EA1", "RendREF_EA1", "TD1_1", "TD5_1", "PDACS1",
                          "PRET1", "WGEN1C1", "WVEMIC1", "WSBZR1"));
  EXPECT_THAT(
      caso.Textos(),
      IsSupersetOf({"Calor aporte QACS_BC1(kWh)", "COP RendACS_BC1()", "Frio Total QTREF_EA1(kWh)",
                    "EER RendREF_EA1()", "Temp.salida depósito acs TD5_1(ºC)",
                    "Caudal agua caliente CWT(l/h)", "Pérdidas tuberias captadores PTCS(kWh)"}));
  const auto nodos = caso.Arbol();
  EXPECT_EQ(nodos.back().grupo, "Inst.Solar térmica");
  EXPECT_EQ(nodos.back().etiqueta, "WRECS");
  EXPECT_EQ(nodos.back().codigo, "BRECS");

  // Sin depósitos no hay sus temperaturas, y los captadores siguen.
  alimentacion.clear();
  EXPECT_THAT(caso.Codigos("Instalación Caldera y frío (3 equipos)"), Not(Contains("TD1_1")));
  EXPECT_THAT(caso.Codigos("Inst.Solar térmica"), ElementsAre("RTC", "EASC", "PTCS", "BCS"));
}

TEST(SerieDeVariable, CadaUnidadEsLaDeSuTexto) {
  CasoSeries caso;
  calculo& r = *caso.resultado;
  r.zona.DCAL[1] = -2;
  r.zona.DREF[1] = 0.5F;
  r.zona.WL[1] = 0.01F;
  r.clima.WE[1] = 0.008F;
  r.clima.RADH[1] = 250;
  r.carga.QOCUPShT[1] = 5;  // W/m2 en 100 m2
  r.carga.NRR[1] = 50;
  r.carga.NRR[2] = kVentanasAbiertas;
  r.carga.CCAC[1] = 5;
  r.zona.QIR[1] = 1500;
  r.zona.humectacion[1] = 2000;
  r.zona.CV[1] = 70;
  r.zona.QV[1] = 210;
  r.zona.defecto[kACS][1] = 3000;
  r.zona.defecto[kRefrigeracion][8760] = 1000;
  r.resultados.defecto.rendimiento = {0.75F, 0.8F, 2.0F};
  caso.Atributo("WVEMI1")[1] = 80;
  caso.Atributo("PTCS")[1] = 0.25F;
  caso.Atributo("WDEPS")[8760] = 33;
  caso.AnadirSistema("ACS", "1 Termo electrico").Alimentacion4 = "Directo solar intercambiador";
  caso.Generales([](DatosGenerales& g) {
    g.Equipos_Defecto = "SI";
    g.ConsumoAgua_litros_dia = 200;
    g.Recuperador = "SensibleSinBypass";
    g.UTAHumectacion = "HumectadorVapor";
  });
  DatosClimaticosSitio sitio;
  sitio.aguaRed[1] = 9;
  sitio.aguaRed[12] = 11;
  caso.edificio->SetDatosClimaticosSitio(sitio);

  // La ventilación es la mitad de 300 m3/h y, con las ventanas abiertas, cuatro renovaciones.
  const std::tuple<const char*, int, float> esperados[] = {
      {"DT", 1, -1.5F},   {"WL", 1, 10},        {"WE", 1, 8},          {"RTHz", 1, 0.25F},
      {"DOCUP", 1, 0.5F}, {"QV", 1, 150},       {"QV", 2, 1200},       {"CAE", 1, 210},
      {"CW60", 1, 10},    {"QIR", 1, 1.5F},     {"QEH", 1, 2},         {"CV", 1, 70},
      {"DACSD", 1, 3},    {"CACSD", 1, 4},      {"CREFD", 8760, 0.5F}, {"TWR", 1, 9},
      {"TWR", 8760, 11},  {"WVEMI1", 1, 0.08F}, {"PTCS", 1, 0.25F},    {"BDEPS", 8760, 33}};
  for (const auto& [codigo, h, valor] : esperados)
    EXPECT_FLOAT_EQ(caso.Valor(codigo, h), valor) << codigo << " " << h;
  caso.Generales([](DatosGenerales& g) { g.Equipos_Defecto = "NO"; });
  EXPECT_EQ(caso.Valor("CACSD"), 0);
}

// Sol al sur a 30° de altura con 800 W/m2 de directa y 100 de difusa.
TEST(SerieDeVariable, LaRadiacionSeRehace) {
  CasoSeries caso;
  SeriesClima& clima = caso.resultado->clima;
  clima.CENITS[2] = 60;
  clima.IDIRECTA[2] = 800;
  clima.IDIFUSA[2] = 100;
  caso.Atributo("PTCS");
  caso.Generales([](DatosGenerales& g) {
    g.PerfilUso = 2;
    g.NVBloqueF = 4;
    g.N_colec_term = 2;
    g.Sup_colec_term = 2;
    g.PotPico_FV = {1, 0, 0};
    g.Super_FV = {10, 0, 0};
    g.Incli_FV = {90, 0, 0};
  });
  // 800 cos 30° + 100 / 2 + 0,2 (800 / 2 + 100) / 2 = 692,82 + 50 + 50
  EXPECT_NEAR(caso.Valor("RTS", 2), 0.79282F, 1e-4F);
  EXPECT_NEAR(caso.Valor("RTN", 2), 0.1F, 1e-4F);
  // Al este y al oeste el sol del sur va rasante.
  EXPECT_NEAR(caso.Valor("RTE", 2), 0.1F, 1e-3F);
  // A 45°: 692,82 × 0,70711 + 100
  EXPECT_NEAR(caso.Valor("RTSE", 2), 0.58990F, 1e-4F);
  clima.AZIMUTS[2] = 45;  // por la tarde solo ven el sol el sudoeste, el sur y el oeste
  EXPECT_NEAR(caso.Valor("RTSW", 2), 0.79282F, 1e-4F);
  EXPECT_NEAR(caso.Valor("RTSE", 2), 0.1F, 1e-3F);
  EXPECT_NEAR(caso.Valor("RTW", 2), 0.58990F, 1e-4F);
  // En horizontal (800 / 2 + 100) W/m2 y 4 m2, entre las cuatro viviendas.
  EXPECT_NEAR(caso.Valor("RTC", 2), 0.5F, 1e-4F);
  EXPECT_NEAR(caso.Valor("RTP", 2), 0.58990F * 10 / 4, 1e-3F);
  EXPECT_EQ(caso.Valor("RTS", 1), 0);
}

TEST(SerieDeVariable, LaHumedadLocal) {
  CasoSeries caso;
  SeriesZona& zona = caso.resultado->zona;
  for (int h = 1; h <= kHorasAno; ++h) {
    zona.TSL[h] = static_cast<float>(h % 46 - 5);
    zona.WL[h] = 0.0005F + 0.0002F * static_cast<float>(h % 17);
  }
  zona.TSL[1] = 20;
  zona.WL[1] = 0.00726F;
  // Del diagrama del aire húmedo: a 20 ºC y 50 %, 13,8 ºC de bulbo húmedo.
  EXPECT_NEAR(caso.Valor("FIL"), 50, 0.3F);
  EXPECT_NEAR(caso.Valor("THL"), 13.8F, 0.1F);
  const auto serie = SerieDeVariable(*caso.edificio, *caso.resultado, "THL").serie->serie.valores;
  for (int h = 2; h <= kHorasAno; ++h)
    ASSERT_NEAR(serie[static_cast<std::size_t>(h - 1)],
                psicrometria::BulboHumedo(zona.TSL[h], zona.WL[h], PresionHoraria(0)), 0.01F)
        << h;
}

TEST(SerieDeVariable, UnCodigoDesconocidoDaLosParecidos) {
  const CasoSeries caso;
  const auto buscada = SerieDeVariable(*caso.edificio, *caso.resultado, "tsl");
  EXPECT_FALSE(buscada.serie);
  ASSERT_EQ(buscada.parecidos.size(), 5U);
  EXPECT_EQ(buscada.parecidos.front(), "TSL");
  EXPECT_EQ(SerieDeVariable(*caso.edificio, *caso.resultado, "").parecidos.size(), 5U);
}

TEST(SuperficiePeriodo, UnDiaPorFila) {
  const CasoSeries caso;
  caso.resultado->zona.TSL[24 * 33 + 5] = 21;  // 5 h del día 34, el 3 de febrero
  const auto serie = *SerieDeVariable(*caso.edificio, *caso.resultado, "TSL").serie;
  const auto mes = SuperficiePeriodo(serie, {.tipo = TipoPeriodo::Mensual, .mes = 2});
  ASSERT_TRUE(mes.valor);
  EXPECT_EQ(mes.valor->titulo, "Mes=Febrero Temp.seca local TSL(ºC)");
  ASSERT_EQ(mes.valor->dias.size(), 28U);
  EXPECT_EQ(mes.valor->dias[2], 34);
  EXPECT_EQ(mes.valor->valores[2].at(4), 21);
  EXPECT_FALSE(SuperficiePeriodo(serie, {.tipo = TipoPeriodo::Diario}).valor);
}

}  // namespace
}  // namespace novex
