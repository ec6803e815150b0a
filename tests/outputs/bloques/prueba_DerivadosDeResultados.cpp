#include "outputs/bloques/DerivadosDeResultados.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "outputs/CasoPrueba.h"

namespace novex {
namespace {

using testing::IsSupersetOf;
using testing::Pair;

using Resultados = DatosDerivados::Caso::ResultadosSistema;

const NodoConservado& Hijo(const NodoConservado& nodo, const std::string& camino) {
  const std::size_t barra = camino.find('/');
  const std::string nombre = camino.substr(0, barra);
  const auto hijo = std::find_if(nodo.hijos.begin(), nodo.hijos.end(),
                                 [&](const NodoConservado& n) { return n.nombre == nombre; });
  if (hijo == nodo.hijos.end()) throw std::out_of_range(nodo.nombre + " no tiene " + nombre);
  return barra == std::string::npos ? *hijo : Hijo(*hijo, camino.substr(barra + 1));
}

std::vector<std::string> Nombres(const std::vector<NodoConservado>& nodos) {
  std::vector<std::string> nombres;
  for (const NodoConservado& n : nodos) nombres.push_back(n.nombre);
  return nombres;
}

// Los bloques de la base, reunidos.
NodoConservado Bloques(const std::vector<CasoCalculado>& casos) {
  NodoConservado raiz;
  raiz.hijos = DerivadosDeResultados(casos, {}).casos.at(0).bloques;
  return raiz;
}

void PonerServicio(ResultadosCaso& r, Servicio s, VectorEnergetico v, float enero, float julio) {
  TablaMensual& tabla = r.servicio[s].finalPorVector[Indice(v)];
  tabla[1] = enero;
  tabla[7] = julio;
  tabla[0] = enero + julio;
}

class Bloque : public testing::Test {
 protected:
  void SetUp() override { caso.edificio->GetRecinto(0).Suelo_habitable_m2 = 50; }

  // Una magnitud que vale `W` en las diez primeras horas.
  void AnadirAtributo(const std::string& nombre, float W) {
    AtributoSistema& a = caso.resultado->atributos.emplace_back();
    a.nombre = nombre;
    for (int h = 1; h <= 10; ++h) a.serie[h] = W;
  }

  pruebas::CasoDePrueba caso;
};

TEST_F(Bloque, LosBloquesSonDeLaBaseYCadaCasoVaEnSuLugar) {
  CasoCalculado base = caso.Mostrar(), mejora = base;
  mejora.nombre = "Mejora_2";
  const DatosDerivados derivados = DerivadosDeResultados({mejora, base}, {});
  ASSERT_EQ(derivados.casos.size(), 3U);
  const std::vector<std::string> nombres = {
      "Sistemas",     "Indicadores",       "IndicadoresReferencia", "Tablas",
      "Escalas",      "Calificacion",      "MedidasMejora",         "InspeccionesObservaciones",
      "DatosBalance", "ResultadosBalance", "OtrosIndicadores"};
  EXPECT_EQ(Nombres(derivados.casos[0].bloques), nombres);
  EXPECT_TRUE(derivados.casos[2].bloques.empty());

  const DatosDerivados sinBase = DerivadosDeResultados({mejora}, {});
  for (const auto& c : sinBase.casos) EXPECT_TRUE(c.bloques.empty());
}

TEST_F(Bloque, LasEtiquetasDeUnSistemaSonLasDelAno) {
  Instalaciones& i = caso.AnadirSistema("Calefaccion+Refrigeracion", "1 BC aire-agua");
  i.NEquipos = 2;
  i.GEN1.Caudal = 500;
  i.GEN1.P = 3;
  i.GEN1.Rend = 0.5F;
  SumasBloque& s = caso.resultado->sumasBloques[0];
  s.dado[0] = {0, 3000, 900};
  s.consumo[0] = {0, 1000, 300};
  AnadirAtributo("WGEN1C1", 40);
  AnadirAtributo("WGEN1R1", 15);
  AnadirAtributo("WCS", 25);
  const auto derivados = DerivadosDeResultados({caso.Mostrar()}, {});
  EXPECT_FLOAT_EQ(derivados.casos[0].WBombCAPST, 0.25F);
  ASSERT_EQ(derivados.casos[0].resultadosSistemas.size(), 1U);
  const Resultados& r = derivados.casos[0].resultadosSistemas[0];
  ASSERT_EQ(r.size(), 56U);
  EXPECT_EQ(r.front().first, "ACSTotalProducido_1");
  EXPECT_EQ(r[12].first, "CaleTotalProducido_2");
  EXPECT_EQ(r[19].first, "SEEREstacional");
  EXPECT_EQ(r[20].first, "Caudal2BombaSBZR");
  EXPECT_EQ(r.back().first, "ConsumoVentUTR");
  // 9800 N/m3 por 3 m y 500 l/h entre 0,5 son 8,17 W: 16,33 por m3/h. El retorno no ha funcionado.
  EXPECT_THAT(r, IsSupersetOf(
                     {Pair("CaleTotalProducido_1", "3000.00"), Pair("SCOPEstacionalCale_1", "3.00"),
                      Pair("FrioTotalProducido", "900.00"), Pair("SEEREstacional", "3.00"),
                      Pair("EnergiaConsumidaEnACS_2", "0.00"), Pair("Caudal2BombaGEN1C", "1000.00"),
                      Pair("PotenciaEspecificaGEN1C", "16.33"), Pair("ConsumoBombaGEN1C", "0.40"),
                      Pair("ConsumoBombaGEN1R", "0.15"), Pair("ConsumoBombaGEN1", "0.00"),
                      Pair("Caudal2BombaRET", "0.00")}));
}

TEST_F(Bloque, UnaCalderaNoTieneSCOP) {
  caso.AnadirSistema("ACS+Calefaccion", "1 Caldera").CombCalor1 = "GasNatural";
  SumasBloque& s = caso.resultado->sumasBloques[0];
  s.dado[0] = {800, 0, 0};
  s.consumo[0] = {1000, 0, 0};
  const auto derivados = DerivadosDeResultados({caso.Mostrar()}, {});
  const Resultados& r = derivados.casos[0].resultadosSistemas[0];
  EXPECT_THAT(r, IsSupersetOf({Pair("RendimientoEstacionalACS_1", "0.80"),
                               Pair("SCOPEstacionalACS_1", "0.00")}));
  const NodoConservado& g = derivados.casos[0].bloques[0].hijos.at(0);
  EXPECT_EQ(Hijo(g, "Id").texto, "ACSCAL-1:GEN1");
  EXPECT_EQ(Hijo(g, "RendimientoEstacional").texto, "0.80");
  EXPECT_EQ(Hijo(g, "VectorEnergetico").texto, "GasNatural");
}

TEST_F(Bloque, LosIndicadoresYSusLetras) {
  caso.Poner(0, "D1", "Nuevo");
  ResultadosCaso& r = caso.Resultados();
  r.demandaCalefaccion = 30.126F;
  r.servicio[kCalefaccion].porUnidad[kEmisiones][0] = 2.5F;
  r.servicio[kACS].porUnidad[kEmisiones][0] = 1.5F;
  r.total[kEmisiones] = 4;
  r.emisionesElectricidad = 1;
  for (auto& th : r.escala.th) th = {1, 2, 3, 4, 5, 6};
  PonerServicio(r, kCalefaccion, VectorEnergetico::GasNatural, 600, 0);
  const NodoConservado b = Bloques({caso.MostrarCalificado()});
  EXPECT_EQ(Hijo(b, "Indicadores/Demanda/Cal").texto, "30.13");
  EXPECT_EQ(Hijo(b, "Indicadores/Emisiones/Tot").texto, "4.00");
  EXPECT_EQ(Hijo(b, "Indicadores/EnergiaFinalVectores/Vector/Nombre").texto, "GasNatural");
  EXPECT_EQ(Hijo(b, "Indicadores/EnergiaFinalVectores/Vector/Cal").texto, "12.00");
  EXPECT_EQ(Nombres(Hijo(b, "Indicadores/Emisiones").hijos),
            (std::vector<std::string>{"Cal", "Ref", "Acs", "Ven", "Tot"}));
  EXPECT_EQ(Hijo(b, "Tablas/DesgloseEmisiones/TotalConsumoOtros").texto, "150.00");
  EXPECT_EQ(Hijo(b, "Calificacion/Emisiones/Cal").texto, "C");
  EXPECT_EQ(Hijo(b, "Calificacion/Emisiones/Ref").texto, "( - )");
  // La obra nueva acaba en "E", y en D1 la refrigeración de una vivienda no tiene escala.
  EXPECT_EQ(Hijo(b, "Escalas/Emisiones/Cal/D").texto, "4.00");
  EXPECT_EQ(Hijo(b, "Escalas/Emisiones/Cal/E").texto, "");
  EXPECT_EQ(Hijo(b, "Escalas/Emisiones/Ref/A").texto, "( - )");

  caso.Poner(4, "D1", "Existente");
  const NodoConservado t = Bloques({caso.MostrarCalificado()});
  EXPECT_EQ(Hijo(t, "Escalas/EnergiaPrimariaNoRenovable/Ilu/F").texto, "6.00");
  EXPECT_EQ(Hijo(t, "Indicadores/Emisiones/Ilu").texto, "0.00");
  // Una simulación libre no lleva letras.
  caso.PonerSimulacionLibre();
  const NodoConservado libre = Bloques({caso.MostrarCalificado()});
  EXPECT_TRUE(Hijo(libre, "Calificacion/Emisiones").hijos.empty());
  EXPECT_TRUE(Hijo(libre, "Escalas/Demanda").hijos.empty());
}

TEST_F(Bloque, LaReferenciaDeUnTerciarioTieneEnergiaFinal) {
  caso.Poner(4, "D3", "Nuevo");
  ResultadosCaso& r = caso.Resultados();
  r.escala.referencia[static_cast<std::size_t>(Indicador::DemandaCalefaccion)] = 46;
  r.escala.iluminacionReferencia = 10;
  r.escala.totalReferenciaEmisiones = 7;
  r.defecto.rendimiento = {1, 0.92F, 1.4F};
  r.defecto.combustible = {"Electricidad", "Gasoleo_C", "Electricidad"};
  const NodoConservado t = Bloques({caso.MostrarCalificado()});
  EXPECT_EQ(Hijo(t, "IndicadoresReferencia/EnergiaFinal/Cal").texto, "50.00");
  EXPECT_EQ(Hijo(t, "IndicadoresReferencia/EnergiaFinal/Tot").texto, "60.00");
  EXPECT_EQ(Hijo(t, "IndicadoresReferencia/Emisiones/Tot").texto, "7.00");
  const auto& vectores = Hijo(t, "IndicadoresReferencia/EnergiaFinalVectores").hijos;
  ASSERT_EQ(vectores.size(), 2U);
  EXPECT_EQ(Hijo(vectores[0], "Ilu").texto, "10.00");
  EXPECT_EQ(Hijo(vectores[1], "Nombre").texto, "Gasoleo_C");
  caso.Poner(0, "D3", "Nuevo");
  const NodoConservado v = Bloques({caso.MostrarCalificado()});
  EXPECT_EQ(Nombres(Hijo(v, "IndicadoresReferencia").hijos),
            (std::vector<std::string>{"Demanda", "EnergiaPrimariaNoRenovable", "Emisiones"}));
}

TEST_F(Bloque, LasRenovablesSonPartesDeSuServicio) {
  ResultadosCaso& r = caso.Resultados();
  PonerServicio(r, kACS, VectorEnergetico::Energiasolartermica, 100, 300);
  PonerServicio(r, kACS, VectorEnergetico::GasNatural, 600, 0);
  PonerServicio(r, kCalefaccion, VectorEnergetico::Biomasa_Otros, 500, 0);
  PonerServicio(r, kVentilacion, VectorEnergetico::Energiasolarfotovoltaica, 20, 30);
  r.demandaACS = 16;  // por 50 m2, 800 kWh
  caso.resultado->meses.produccionFotovoltaica[0] = 120;
  const NodoConservado b = Bloques({caso.MostrarCalificado()});
  const NodoConservado& s = Hijo(b, "Tablas/EnergiasRenovables/Termica/Sistema");
  EXPECT_EQ(Hijo(s, "EnergiaGenerada").texto, "900.00");
  EXPECT_EQ(Hijo(s, "CoberturaConsumoFinalCal").texto, "100.00");
  EXPECT_EQ(Hijo(s, "CoberturaConsumoFinalAcs").texto, "40.00");
  EXPECT_EQ(Hijo(s, "CoberturaConsumoFinalRef").texto, "0.00");
  EXPECT_EQ(Hijo(s, "CoberturaDemandaAcs").texto, "50.00");
  const NodoConservado& e = Hijo(b, "Tablas/EnergiasRenovables/Electrica/Sistema");
  EXPECT_EQ(Hijo(e, "EnergiaGenerada").texto, "120.00");
  EXPECT_EQ(Hijo(e, "EnergiaGeneradaAutoconsumida").texto, "50.00");
}

TEST_F(Bloque, LoTomadoDelAmbienteSeProduceEntero) {
  ResultadosCaso& r = caso.Resultados();
  // Redondeadas por separado suman 3.03; la suma redondeada sería 3.02.
  PonerServicio(r, kCalefaccion, VectorEnergetico::MedioAmbiente, 1.006F, 0);
  PonerServicio(r, kRefrigeracion, VectorEnergetico::MedioAmbiente, 1.006F, 0);
  PonerServicio(r, kACS, VectorEnergetico::Energiasolartermica, 1.006F, 2);
  PonerServicio(r, kACS, VectorEnergetico::Electricidad, 5, 1);
  PonerServicio(r, kACS, VectorEnergetico::Energiasolarfotovoltaica, 0, 3);
  const NodoConservado b = Bloques({caso.MostrarCalificado()});
  EXPECT_EQ(Hijo(b, "DatosBalance/AreaRef").texto, "50.00");
  EXPECT_EQ(Hijo(b, "DatosBalance/FactoresPaso/Datos").hijos.size(), 9U);
  const auto& datos = Hijo(b, "DatosBalance/Componentes/Datos").hijos;
  ASSERT_EQ(datos.size(), 5U);
  EXPECT_EQ(Hijo(datos[0], "Vector").texto, "ELECTRICIDAD");
  EXPECT_EQ(Hijo(datos[0], "Valores").texto.substr(0, 42),
            "5.00, 0.00, 0.00, 0.00, 0.00, 0.00, 4.00, ");
  EXPECT_EQ(Hijo(datos[3], "Servicio").texto, "ACS");
  EXPECT_EQ(Hijo(datos[4], "Tipo").texto, "PRODUCCION");
  EXPECT_EQ(Hijo(datos[4], "Valores").texto.substr(0, 5), "3.03,");
}

TEST_F(Bloque, MejorasVisitasEIntervenciones) {
  pruebas::CasoDePrueba mejora;
  mejora.Generales([](DatosGenerales& d) {
    d.MedidaMejora = "Caldera <nueva>";
    d.Coste = 2;
    d.PlazoAmortizacion = 9;  // no es de la lista
    d.CBConfort = d.CBIncendios = true;
    d.Memo[0] = {"Una", "dos"};
  });
  caso.Generales([](DatosGenerales& d) {
    d.NumeroVisitas = 1;
    d.FechaVisita = {"1/2/2024", "3/4/2024", ""};
    d.Memo[1] = {"Planos"};
    d.Memo[7] = {"Primero la caldera"};
    d.CBHuecos = d.CBSuelos = true;
  });
  CasoCalculado otra = mejora.MostrarCalificado();
  otra.nombre = "Mejora_1";
  const NodoConservado b = Bloques({caso.MostrarCalificado(), otra});
  EXPECT_EQ(Hijo(b, "MedidasMejora/SinPosibilidadMejora").texto, "No");
  const NodoConservado& m = Hijo(b, "MedidasMejora/MedidaMejora");
  EXPECT_EQ(
      Nombres(m.hijos),
      (std::vector<std::string>{"Nombre", "Descripcion", "CosteEstimado", "PlazoRecuperacion",
                                "OtrosDatos", "MejoraCondiciones", "Indicadores", "Calificacion"}));
  EXPECT_EQ(Hijo(m, "Nombre").texto, "Caldera <nueva>");
  EXPECT_EQ(Hijo(m, "Descripcion").texto, "Una\ndos");
  EXPECT_EQ(Hijo(m, "CosteEstimado").texto, "1000-10000");
  EXPECT_EQ(Hijo(m, "PlazoRecuperacion").texto, "");
  EXPECT_EQ(Hijo(m, "MejoraCondiciones").texto, " ConfortTermicoBienestar ProteccionIncendios");
  EXPECT_EQ(Hijo(b, "MedidasMejora/SecuenciaTemporal/Justificacion").texto, "Primero la caldera");
  const NodoConservado& i = Hijo(b, "InspeccionesObservaciones");
  EXPECT_EQ(Nombres(i.hijos), (std::vector<std::string>{"Visita", "Intervenciones"}));
  EXPECT_EQ(Hijo(i, "Visita/Descripcion").texto, "Planos");
  EXPECT_EQ(Hijo(i, "Intervenciones").texto, " EnvHuecos EnvSuelo");
}

}  // namespace
}  // namespace novex
