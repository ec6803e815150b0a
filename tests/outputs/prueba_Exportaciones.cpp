#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>

#include "outputs/Bateria.h"
#include "outputs/CasoPrueba.h"
#include "outputs/EstadisticaSerie.h"
#include "outputs/ExportacionSeries.h"
#include "outputs/JsonResultados.h"
#include "outputs/SeriesHorarias.h"
#include "outputs/TextoTabla.h"

namespace novex {
namespace {

using nlohmann::json;
using pruebas::CasoDePrueba;

TEST(Bateria, LaListaAdmiteCrlfBlancosYCarpetaSinSeparador) {
  const ListaBateria lista =
      LeerListaBateria("/obras de 2026\r\nuna.xml\r\n\r\n  dos.xml \r\n\r\n");
  EXPECT_EQ(lista.carpeta, "/obras de 2026/");
  EXPECT_EQ(lista.ficheros, (std::vector<std::string>{"una.xml", "dos.xml"}));
  EXPECT_EQ(LeerListaBateria("C:\\obras\\\nx.xml").carpeta, "C:\\obras\\");
  EXPECT_TRUE(LeerListaBateria("/obras/\n").ficheros.empty());
  EXPECT_EQ(LeerListaBateria("").carpeta, "");
}

// Tres entradas: una calculada, una que no se abre y otra que se abre y no se puede calcular.
TEST(Bateria, ElTextoVaLetraALetra) {
  std::vector<CasoBateria> casos(3);
  casos[0].proyecto = "/obras/a.xml";
  casos[0].caso = "Viejo";
  ResultadosCaso& r = casos[0].resultados;
  r.demandaCalefaccion = 32.641234F;
  r.demandaACS = 0.00001234F;
  casos[0].ventilacion = 1234567;
  r.servicio[kCalefaccion].porUnidad[kEmisiones][0] = 8.5F;
  r.total[kEmisiones] = 14.636F;
  casos[0].horasExceso = 285;
  casos[1].proyecto = "/obras/no está.xml";
  casos[1].fallo = "no se abre; de verdad";
  casos[2].proyecto = "/obras/c.xml";
  casos[2].caso = "Viejo";
  casos[2].fallo = "falta el fichero de clima";
  EXPECT_EQ(TextoBateria(casos),
            "# Caso = 1  de  3 :\n/obras/a.xml :\nDemanda Calef=32.6412\nDemanda Refri=0\n"
            "Demanda ACS=1.234e-05\nDemanda Iluminacion=0\nDemanda Ventilacion=1.23457e+06\n"
            "Emisiones CO2 Cal=8.5\nEmisiones C02 Refri=0\nEmisiones CO2 ACS=0\n"
            "Emisiones Iluminacion=0\nEmisiones Ventilacion=0\nEmisiones totales=14.636\n"
            "Horas exceso calor (mas de 26 C) en todo el año=285\n"
            "------------------------------------\n"
            "------------------------------------\n"
            "------------------------------------\n");
  const std::string csv = CsvBateria(casos);
  EXPECT_NE(csv.find("/obras/no está.xml;;;;;;;;;;;;;;\"no se abre; de verdad\"\n"),
            std::string::npos);
  EXPECT_NE(JsonBateria(casos).find("\"horas_exceso_calor\": 285"), std::string::npos);
}

class JsonResultadosTest : public testing::Test {
 protected:
  json Caso(std::vector<Mensaje> mensajes = {}) {
    CasoCalculado mostrado = caso.Mostrar();
    mostrado.mensajes = std::move(mensajes);
    return json::parse(JsonResultados("casa.xml", {mostrado})).at("casos").at(0);
  }
  pruebas::CasoDePrueba caso;
};

TEST_F(JsonResultadosTest, CincoCifrasSignificativas) {
  auto& anual = caso.Resultados().servicio[kACS].porUnidad;
  const std::pair<float, double> valores[] = {{123456.0F, 123460.0}, {0.0123456F, 0.012346},
                                              {8.0538F, 8.0538},     {-0.0F, 0.0},
                                              {1e-9F, 1e-9},         {99999.6F, 100000.0}};
  for (const auto& [valor, escrito] : valores) {
    anual[kFinal][0] = valor;
    EXPECT_EQ(Caso().at("energia_final").at("acs").get<double>(), escrito) << valor;
  }
  // Un cero no lleva signo.
  anual[kFinal][0] = -0.0F;
  EXPECT_EQ(Caso().at("energia_final").at("acs").dump(), "0.0");
  for (std::size_t s = 0; s < kServicios; ++s)
    for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
      caso.Resultados().servicio[s].porUnidad[u][0] = static_cast<float>(10 * s + u);
  caso.Resultados().total = {90, 91, 92, 93, 94};
  const json j = Caso();
  const char* bloques[] = {"energia_final", "energia_primaria_total",
                           "energia_primaria_no_renovable", "energia_primaria_renovable",
                           "emisiones"};
  const std::pair<const char*, double> servicios[] = {
      {"acs", 0},          {"calefaccion", 10}, {"refrigeracion", 20},
      {"ventilacion", 30}, {"iluminacion", 40}, {"total", 90}};
  for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
    for (const auto& [servicio, base] : servicios)
      EXPECT_EQ(j.at(bloques[u]).at(servicio), base + static_cast<double>(u)) << servicio;
}

TEST_F(JsonResultadosTest, LosMesesVanDeEneroADiciembreYLaCalefaccionEnPositivo) {
  auto& demanda = caso.resultado->meses.demanda;
  for (std::size_t m = 0; m <= 12; ++m) {
    demanda[kCalefaccion][m] = -static_cast<float>(m);
    demanda[kACS][m] = static_cast<float>(m) + 0.5F;
  }
  auto& gas = caso.Resultados().servicio[kCalefaccion].finalPorVector;
  gas[Indice(VectorEnergetico::GasNatural)][12] = 1234.56F;
  // El del año no hace que un vector sin meses se escriba.
  gas[Indice(VectorEnergetico::GLP)][0] = 5;
  const json mensual = Caso().at("mensual");
  for (std::size_t m = 1; m <= 12; ++m) {
    EXPECT_EQ(mensual.at("demanda").at("calefaccion").at(m - 1), static_cast<double>(m));
    EXPECT_EQ(mensual.at("demanda").at("acs").at(m - 1), static_cast<double>(m) + 0.5);
  }
  const json& final = mensual.at("energia_final");
  EXPECT_EQ(final.at("calefaccion").size(), 1U);
  EXPECT_EQ(final.at("calefaccion").at("GasNatural").at(11), 1234.6);
  EXPECT_TRUE(final.at("iluminacion").is_object());
  EXPECT_TRUE(final.at("iluminacion").empty());
}

// Una vivienda no califica la iluminación; una simulación libre, nada.
TEST_F(JsonResultadosTest, SoloLasLetrasQueTiene) {
  caso.Resultados().escala.letra.fill("A");
  caso.Poner(0, "C2", "Nuevo");
  EXPECT_EQ(Caso({}).at("letras").size(), 10U);
  EXPECT_FALSE(Caso({}).at("letras").contains("EmisionesIlu"));
  caso.PonerSimulacionLibre();
  EXPECT_EQ(Caso({}).at("letras").size(), 0U);
}

TEST_F(JsonResultadosTest, DatosLetrasHorasYAvisos) {
  caso.Poner(7, "C2", "Nuevo");
  caso.edificio->GetRecinto(0).Suelo_habitable_m2 = 123.456F;
  caso.Resultados().escala.letra.fill("A");
  caso.Resultados().escala.letra[static_cast<std::size_t>(Indicador::EPriNoRIlu)] = "C";
  caso.Resultados().horasFueraRefrigeracion = 39;
  caso.Resultados().horasOcupacion = 3448;
  const json j = Caso({{"Título", "dos\nlíneas"}, {"mal", "\xE9\xFF"}});
  EXPECT_EQ(j.at("caso"), "Viejo");
  EXPECT_EQ(j.at("zona"), "C2");
  EXPECT_EQ(j.at("perfil_uso"), 7);
  EXPECT_EQ(j.at("superficie_m2"), 123.46);
  EXPECT_EQ(j.at("letras").at("EPriNoRIlu"), "C");
  EXPECT_EQ(j.at("letras").size(), 12U);
  EXPECT_EQ(j.at("horas_fuera_consigna").at("refrigeracion"), 39);
  EXPECT_TRUE(j.at("horas_ocupacion").is_number_integer());
  EXPECT_EQ(j.at("mensajes").at(0).at("titulo"), "Título");
  EXPECT_EQ(j.at("mensajes").at(0).at("texto"), "dos\nlíneas");
  // Un texto que no es UTF-8 no impide leer el resto.
  EXPECT_EQ(j.at("mensajes").size(), 2U);
}

std::vector<std::string> Partir(const std::string& texto, char separador) {
  std::vector<std::string> partes{""};
  for (const char c : texto) {
    if (c == separador)
      partes.emplace_back();
    else
      partes.back() += c;
  }
  return partes;
}

TEST(SeriesHorarias, CadaCodigoTieneSuSerie) {
  const auto caso = std::make_unique<calculo>();
  std::map<std::string_view, const SerieHoraria*> porCodigo;
  std::map<const SerieHoraria*, std::string_view> dueno;
  for (const DescripcionSerie& serie : SeriesHorarias()) {
    const SerieHoraria* tomada = &serie.tomar(*caso);
    EXPECT_TRUE(porCodigo.emplace(serie.codigo, tomada).second) << serie.codigo;
    // Solo la copia de la cubierta sur comparte serie.
    const auto [it, nueva] = dueno.emplace(tomada, serie.codigo);
    EXPECT_EQ(nueva, serie.codigo != "CLIGEROSS") << serie.codigo << " y " << it->second;
  }
  // Los sectores no están en el orden en que se nombran.
  EXPECT_EQ(porCodigo.at("MLIGEROSE"), &caso->clima.MLIGERO[sur_este]);
  EXPECT_EQ(porCodigo.at("IRADO"), &caso->clima.IRAD[oeste]);
  EXPECT_EQ(porCodigo.at("CLIGEROSO"), &caso->clima.CLIGERO[sur_oeste]);
  EXPECT_EQ(porCodigo.at("QOCUPSh"), &caso->carga.QOCUPSh);
  EXPECT_EQ(porCodigo.at("DREF"), &caso->zona.DREF);
}

TEST(SeriesHorarias, CsvDeLasOchoMilHoras) {
  const auto caso = std::make_unique<calculo>();
  caso->clima.TSE[1] = 3.8F;
  caso->clima.WE[1] = 0.00396F;
  caso->zona.DCAL[8760] = -1.23456F;
  caso->zona.DCAL[1] = -0.0001F;  // no se escribe un cero negativo
  caso->zona.DREF[0] = 99;        // la posición 0 no es una hora
  const auto lineas = Partir(CsvSeries(*caso), '\n');
  ASSERT_EQ(lineas.size(), 8762U);  // cabecera, horas y el final tras el último salto
  EXPECT_EQ(lineas.back(), "");
  const auto cabecera = Partir(lineas[0], ';');
  const auto celda = [&](std::size_t hora, const std::string& codigo) {
    const auto i = std::find(cabecera.begin(), cabecera.end(), codigo) - cabecera.begin();
    return Partir(lineas[hora], ';').at(static_cast<std::size_t>(i));
  };
  EXPECT_EQ(cabecera.size(), SeriesHorarias().size() + 1);
  EXPECT_EQ(celda(1, "hora"), "1");
  EXPECT_EQ(celda(8760, "hora"), "8760");
  EXPECT_EQ(celda(1, "TSE"), "3.800");
  EXPECT_EQ(celda(1, "WE"), "0.003960");
  EXPECT_EQ(celda(8760, "DCAL"), "-1.235");
  EXPECT_EQ(celda(1, "DCAL"), "0.000");
  EXPECT_EQ(celda(1, "DREF"), "0.000");
}

using enum TipoPeriodo;

Serie Llana(const char* codigo, const char* unidad, ClaseSerie clase, float valor) {
  return {codigo, unidad, clase, std::vector<float>(kHorasAno, valor)};
}

// Pone un valor en una hora del año, desde 1.
void Poner(Serie& serie, int h, float valor) {
  serie.valores.at(static_cast<std::size_t>(h - 1)) = valor;
}

TEST(PeriodoSerie, LimitesDelCalendarioYRotulos) {
  const auto horas = [](PeriodoSerie p) { return HorasDelPeriodo(p).valor; };
  EXPECT_EQ(horas({}), (RangoHoras{1, 8760}));
  EXPECT_EQ(horas({.tipo = Mensual, .mes = 12}), (RangoHoras{8017, 8760}));
  EXPECT_EQ(horas({.tipo = Semanal, .semana = 52}), (RangoHoras{8569, 8736}));
  EXPECT_EQ(horas({.tipo = Diario, .mes = 2, .dia = 28}), (RangoHoras{1393, 1416}));
  EXPECT_EQ(horas({.tipo = Diario, .mes = 12, .dia = 31}), (RangoHoras{8737, 8760}));
  EXPECT_FALSE(horas({.tipo = Semanal, .semana = 53}));
  EXPECT_FALSE(horas({.tipo = Mensual, .mes = 13}));
  for (const int dia : {0, 29, 31}) {
    const auto febrero = HorasDelPeriodo({.tipo = Diario, .mes = 2, .dia = dia});
    EXPECT_FALSE(febrero.valor) << dia;
    EXPECT_EQ(febrero.aviso.texto, "Ese día no existe");
  }
  const auto semanas = NombresSemanas();
  ASSERT_EQ(semanas.size(), 52U);
  EXPECT_EQ(semanas.front(), "1 enero al 7 enero");
  EXPECT_EQ(semanas[4], "29 enero al 4 febrero");
  EXPECT_EQ(semanas.back(), "24 diciembre al 30 diciembre");
  EXPECT_EQ(RotuloPeriodo({}), "Anual ");
  EXPECT_EQ(RotuloPeriodo({.tipo = Mensual, .mes = 3}), "Mes=Marzo ");
  EXPECT_EQ(RotuloPeriodo({.tipo = Semanal, .semana = 2}), "Semana=8 enero al 14 enero ");
  EXPECT_EQ(RotuloPeriodo({.tipo = Diario, .mes = 12, .dia = 31}), "Dia 31 Diciembre ");
  EXPECT_FALSE(AvisoTresDimensiones({.tipo = Semanal}));
  EXPECT_EQ(AvisoTresDimensiones({.tipo = Diario}),
            (Mensaje{"AVISO", "No se puede representar una gráficaen 3D para un sólo día"}));
}

TEST(PeriodoSerie, ElSiguienteDaLaVuelta) {
  const auto dia = [](PeriodoSerie p, int pasos) {
    const PeriodoSerie otro = PeriodoContiguo(p, pasos);
    return std::pair(otro.mes, otro.dia);
  };
  EXPECT_EQ(dia({.tipo = Diario, .mes = 12, .dia = 31}, 1), std::pair(1, 1));
  EXPECT_EQ(dia({.tipo = Diario, .mes = 3, .dia = 1}, -1), std::pair(2, 28));
  EXPECT_EQ(dia({.tipo = Diario, .mes = 2, .dia = 31}, 1), std::pair(3, 1));
  EXPECT_EQ(PeriodoContiguo({.tipo = Mensual, .mes = 1}, -1).mes, 12);
  EXPECT_EQ(PeriodoContiguo({.tipo = Semanal, .semana = 52}, 1).semana, 1);
  EXPECT_EQ(PeriodoContiguo({.mes = 4, .semana = 5}, 1).mes, 4);
}

TEST(PeriodoSerie, LosTramosDelEje) {
  const auto ano = TramosPeriodo({});
  ASSERT_EQ(ano.size(), 12U);
  EXPECT_EQ(ano[1], (TramoPeriodo{"feb", 1416}));
  EXPECT_EQ(ano.back(), (TramoPeriodo{"dic", 8760}));
  const auto febrero = TramosPeriodo({.tipo = Mensual, .mes = 2});
  ASSERT_EQ(febrero.size(), 28U);
  EXPECT_EQ(febrero.front(), (TramoPeriodo{"1", 768}));
  const auto semana = TramosPeriodo({.tipo = Semanal, .semana = 5});
  ASSERT_EQ(semana.size(), 7U);
  EXPECT_EQ(semana.back(), (TramoPeriodo{"4 febrero", 840}));
  const auto dia = TramosPeriodo({.tipo = Diario, .mes = 1, .dia = 2});
  ASSERT_EQ(dia.size(), 24U);
  EXPECT_EQ(dia.front(), (TramoPeriodo{"1", 25}));
  EXPECT_TRUE(TramosPeriodo({.tipo = Diario, .mes = 2, .dia = 30}).empty());
}

TEST(LineaEstadistica, TemperaturasYHumedades) {
  Serie serie = Llana("TSE", "ºC", ClaseSerie::Temperatura, 10);
  Poner(serie, 63, 30.5F);    // 15 h del 3 de enero
  Poner(serie, 8737, -5.0F);  // 1 h del 31 de diciembre
  // (23 × 10 + 30,5) / 24 = 10,854
  EXPECT_EQ(LineaEstadistica(serie, {.tipo = Diario, .mes = 1, .dia = 3}, 100),
            "Maximo=30.50 ºC  (15 h 3 Enero)   Minimo=10.00 ºC  (1 h 3 Enero)  Medio=10.85 ºC");
  EXPECT_EQ(LineaEstadistica(serie, {}, 100),
            "Maximo=30.50 ºC  (15 h 3 Enero)   Minimo=-5.00 ºC  (1 h 31 Diciembre)  "
            "Medio=10.00 ºC");
  EXPECT_EQ(LineaEstadistica(serie, {.tipo = Diario, .mes = 2, .dia = 31}, 100),
            "Ese día no existe");

  const PeriodoSerie enero{.tipo = Mensual, .mes = 1};
  EXPECT_EQ(LineaEstadistica(Llana("FIE", "%", ClaseSerie::Humedad, 40), enero, 100),
            "Maximo=40.00 %  (1 h 1 Enero)   Minimo=40.00 %  (1 h 1 Enero)  Medio=40.00 %");
  EXPECT_EQ(LineaEstadistica(Llana("WL", "gr/kg", ClaseSerie::Humedad, 7.5F), enero, 100),
            "Maximo=7.50 gr/kg  (1 h 1 Enero)   Minimo=7.50 gr/kg  (1 h 1 Enero)  "
            "Medio=7.50 gr/kg");
}

TEST(LineaEstadistica, ConsignasYHoras) {
  Serie serie = Llana("TCR", "ºC", ClaseSerie::Consigna, 20);
  Poner(serie, 25, 17);
  EXPECT_EQ(LineaEstadistica(serie, {}, 100),
            "Maximo=20.00 ºC  (1 h 1 Enero)   Minimo=17.00 ºC  (1 h 2 Enero)");

  // Un grado justo no está fuera de la consigna.
  Serie dif = Llana("DIFT", "ºC", ClaseSerie::Consigna, 0);
  Poner(dif, 1, -1.0F);
  Poner(dif, 2, -1.5F);
  Poner(dif, 3, -1.25F);
  Poner(dif, 4, 1.0F);
  Poner(dif, 5, 1.5F);
  Poner(dif, 8760, 3.0F);
  EXPECT_EQ(LineaEstadistica(dif, {.tipo = Semanal, .semana = 1}, 100),
            "Maximo=1.50 ºC  (5 h 1 Enero)   Minimo=-1.50 ºC  (2 h 1 Enero)   "
            "NhFueraConsigna_Calor= 2 h      NHFueraConsigna_Frio= 1 h");

  Serie horas = Llana("HFC", "-", ClaseSerie::Horas, 0);
  for (const int h : {10, 11, 800}) Poner(horas, h, 1);
  EXPECT_EQ(LineaEstadistica(horas, {}, 100), "   Nh FreeCooling= 3 h");
  horas.codigo = "HBP";
  EXPECT_EQ(LineaEstadistica(horas, {.tipo = Mensual, .mes = 1}, 100), "   Nh ByPass= 2 h");
  Serie radiacion = Llana("RTS", "kWh/m2", ClaseSerie::Radiacion, 0);
  Poner(radiacion, 745, 0.5F);   // 1 h del 1 de febrero
  Poner(radiacion, 800, 0.75F);  // 800 - 744 = 56: 8 h del 3 de febrero
  Poner(radiacion, 8760, 9.0F);
  EXPECT_EQ(LineaEstadistica(radiacion, {.tipo = Mensual, .mes = 2}, 100),
            "Maximo=0.750 kWh/m2  (8 h 3 Febrero)   Minimo=0.000 kWh/m2  (2 h 1 Febrero)  "
            "Suma= 1.25 kWh/m2 mes");

  // 168 h de 50 Wh son 8,4 kWh, y 0,21 por m2 con 40 m2.
  const Serie ventilador = Llana("CV", "Wh", ClaseSerie::Energia, 50);
  EXPECT_EQ(LineaEstadistica(ventilador, {.tipo = Semanal, .semana = 2}, 40),
            "Maximo=0.050 kWh  (1 h 8 Enero)   Minimo=0.050 kWh  (1 h 8 Enero)  "
            "Suma= 8.40 kWh/semana   0.21 kWh/m2 semana");
  Serie demanda = Llana("DCAL", "kWh", ClaseSerie::Energia, -2);
  Poner(demanda, 30, 0);
  EXPECT_EQ(LineaEstadistica(demanda, {.tipo = Diario, .mes = 1, .dia = 2}, 0),
            "Maximo=0.000 kWh  (6 h 2 Enero)   Minimo=-2.000 kWh  (1 h 2 Enero)  "
            "Suma= -46.00 kWh/dia");
  EXPECT_EQ(LineaEstadistica(Llana("CAE", "m3/h", ClaseSerie::Otra, 300), {}, 100),
            "Maximo=300.00 m3/h  (1 h 1 Enero)   Minimo=300.00 m3/h  (1 h 1 Enero)  "
            "Medio=300.00 m3/h");
  EXPECT_EQ(LineaEstadistica(Llana("RendCAL_CA1", "", ClaseSerie::Otra, 0.9F), {}, 100),
            "Maximo=0.90  (1 h 1 Enero)   Minimo=0.90  (1 h 1 Enero)");
}

SerieMostrada Mostrada(const char* texto, float paso) {
  SerieMostrada s{texto, {"X", "ºC", ClaseSerie::Temperatura, std::vector<float>(kHorasAno)}};
  for (std::size_t i = 0; i < s.serie.valores.size(); ++i)
    s.serie.valores[i] = paso * static_cast<float>(i + 1);
  return s;
}

std::vector<std::string> Celdas(const std::string& linea) {
  std::vector<std::string> celdas;
  std::istringstream flujo(linea);
  for (std::string celda; std::getline(flujo, celda, ';');) celdas.push_back(celda);
  return celdas;
}

TEST(TablaNumerica, SeVuelveALeerDelTexto) {
  const std::vector<SerieMostrada> series = {Mostrada("Temp.seca TSE(ºC)", 0.5F),
                                             Mostrada("Demanda DCAL(kWh)", -0.125F)};
  const auto tabla = TablaNumerica(series, {});
  ASSERT_TRUE(tabla.valor);
  std::istringstream texto(TextoSeparado(*tabla.valor));
  std::string linea;
  std::getline(texto, linea);
  EXPECT_EQ(linea, "Conta;hora;día;mes;Temp.seca TSE(ºC);Demanda DCAL(kWh);");
  for (int h = 1; h <= kHorasAno; ++h) {
    ASSERT_TRUE(std::getline(texto, linea)) << h;
    ASSERT_EQ(linea.back(), ';');
    const auto celdas = Celdas(linea);
    ASSERT_EQ(celdas.size(), 6U);
    ASSERT_EQ(std::stoi(celdas[0]), h);
    ASSERT_EQ(std::stof(celdas[4]), 0.5F * static_cast<float>(h));
    ASSERT_EQ(std::stof(celdas[5]), -0.125F * static_cast<float>(h));
    if (h == 1417) {  // 1 h del 1 de marzo
      EXPECT_EQ(linea, "1417;1;1;3;708.500;-177.125;");
    }
  }
  EXPECT_EQ(linea, "8760;24;31;12;4380.000;-1095.000;");
  EXPECT_FALSE(std::getline(texto, linea));
}

TEST(TablaNumerica, PeriodosColumnasYLimite) {
  const std::vector<SerieMostrada> series(26, Mostrada("T", 1));
  EXPECT_FALSE(TablaNumerica(series, {}).valor);
  EXPECT_FALSE(TablaNumerica(series, {}).aviso.texto.empty());
  const auto veinticinco = std::span(series).first(25);
  const auto dia = TablaNumerica(veinticinco, {.tipo = TipoPeriodo::Diario, .mes = 12, .dia = 31},
                                 {.conta = true, .hora = false, .dia = true, .mes = false});
  ASSERT_TRUE(dia.valor);
  ASSERT_EQ(dia.valor->filas.size(), 24U);
  ASSERT_EQ(dia.valor->filas[23].size(), 27U);
  EXPECT_EQ(dia.valor->filas[23][0].texto, "24");
  EXPECT_EQ(dia.valor->filas[23][1].texto, "31");
  EXPECT_EQ(dia.valor->filas[23][2].texto, "8760.000");
  EXPECT_FALSE(TablaNumerica({}, {.tipo = TipoPeriodo::Diario, .mes = 4, .dia = 31}).valor);
}

TEST(GraficosSeries, UnaContraOtra) {
  const auto g = GraficoXY(Mostrada("X", 2), Mostrada("Y", 3),
                           {.tipo = TipoPeriodo::Diario, .mes = 1, .dia = 2});
  ASSERT_TRUE(g.valor);
  ASSERT_EQ(g.valor->x.size(), 24U);
  EXPECT_EQ(g.valor->x.front(), 50);  // hora 25
  EXPECT_EQ(g.valor->series[0].valores.front(), 75);
  EXPECT_EQ(g.valor->ejeX, "X");
  EXPECT_EQ(g.valor->ejeY, "Y");
  const CasoDePrueba caso;
  const SeleccionEjes seleccion = {{"TSE", "FIE", "Ninguno", "TSL", "WE"},
                                   {"Ninguno", "DCAL", "TXX", "CV", ""}};
  const auto ejes = GraficoMas(*caso.edificio, *caso.resultado, seleccion, {});
  ASSERT_TRUE(ejes.valor);
  ASSERT_EQ(ejes.valor->izquierda.series.size(), 2U);
  EXPECT_EQ(ejes.valor->izquierda.series[1].nombre, "Temp.seca local TSL(ºC)");
  EXPECT_EQ(ejes.valor->izquierda.ejeY, "ºC");
  // Los Wh no van con los kWh.
  ASSERT_EQ(ejes.valor->derecha.series.size(), 1U);
  EXPECT_EQ(ejes.valor->derecha.ejeY, "kWh");
  ASSERT_EQ(ejes.valor->avisos.size(), 3U);
  const Mensaje unidades{"AVISO",
                         "En cada eje solo se representan variables con las mismas unidades"};
  EXPECT_EQ(ejes.valor->avisos[0], unidades);
  EXPECT_NE(ejes.valor->avisos[1].texto.find("TXX"), std::string::npos);
  EXPECT_EQ(ejes.valor->avisos[2], unidades);
  // Un eje sin series tiene las horas, para dibujar el otro.
  const auto solo = GraficoMas(*caso.edificio, *caso.resultado, {{}, {"TSE"}},
                               {.tipo = TipoPeriodo::Diario, .mes = 1, .dia = 2});
  ASSERT_TRUE(solo.valor);
  EXPECT_TRUE(solo.valor->izquierda.series.empty());
  EXPECT_EQ(solo.valor->izquierda.x, solo.valor->derecha.x);
  EXPECT_EQ(solo.valor->izquierda.x.front(), 25);
  EXPECT_EQ(solo.valor->izquierda.titulo, "Dia 2 Enero ");
}

}  // namespace
}  // namespace novex
