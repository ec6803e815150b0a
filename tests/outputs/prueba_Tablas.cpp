#include <gtest/gtest.h>

#include <set>

#include "outputs/CasoPrueba.h"
#include "outputs/HojaCalificacion.h"
#include "outputs/TablaProyecto.h"
#include "outputs/TablaResultados.h"
#include "outputs/TablasPorNombre.h"
#include "outputs/TextoTabla.h"

namespace novex {
namespace {

using pruebas::ColumnaDe;
using pruebas::Textos;

TEST(TextoTabla, AlineaPorLoQueSeVeYNoPorLosBytes) {
  Tabla tabla;
  tabla.titulo = "Título";
  tabla.cabeceras = {"Año", "kWh"};
  tabla.filas = {{"ñandú", Celda::Numero(1234.5, 1)}, {"b", Celda::Numero(-2, 1)}, {"c", "n/d"}};
  tabla.notas = {"nota"};
  EXPECT_EQ(TextoTabla(tabla),
            "Título\n"
            "  Año       kWh\n"
            "  ─────────────\n"
            "  ñandú  1234.5\n"
            "  b        -2.0\n"
            "  c         n/d\n"
            "  nota\n");
  Tabla corta;
  corta.filas = {{"a"}, {"bb", "", "fin"}, {}};
  EXPECT_EQ(TextoTabla(corta),
            "  a\n"
            "  bb    fin\n"
            "\n");
  EXPECT_EQ(TextoTabla(Tabla{}), "");
  EXPECT_EQ(AnchuraTexto("ºC─"), 3U);
}

TEST(TablaProyecto, LoQueHayEnElProyecto) {
  Edificio edificio;
  Recinto& r = edificio.GetRecinto(0);
  r.Muro_ext_m2[1] = {10, 0, 0, 20, 0, 0};
  r.Cubierta_horiz_sol_m2[0] = 50;
  // La parte en sombra está dentro del área: no se suma.
  r.Cubierta_horiz_sombra_m2[0] = 30;
  r.Suelo_al_terreno_m2[2] = 40;
  edificio.GetComposicion(ranura::MuroExt2).nombre = "Fachada";
  edificio.GetComposicion(ranura::SueloTerr3).U = 0.5F;
  const Tabla tabla = TablaEnvolventeCaso(edificio);
  ASSERT_EQ(tabla.filas.size(), 4U);
  EXPECT_EQ(tabla.filas[0][0].texto, "Muro exterior 2");
  EXPECT_EQ(tabla.filas[0][1].numero, 30.0);
  EXPECT_EQ(tabla.filas[0][3].texto, "Fachada");
  EXPECT_EQ(tabla.filas[1][3].texto, "");
  EXPECT_EQ(tabla.filas[2][0].texto, "Suelo al terreno 3");
  EXPECT_EQ(tabla.filas[2][2].numero, 0.5);
  EXPECT_EQ(tabla.filas[3][1].numero, 120.0);
  Huecos& grupo = edificio.GetHuecos(0);
  grupo.Ancho_m = 1.5F;
  grupo.Alto_m = 2;
  grupo.Tipo_de_hueco = 9;
  grupo.columnas[sur].Anadir(2);
  grupo.columnas[kColumnaHorizontal].Anadir(1);
  edificio.AnadirHuecos({});  // un grupo sin huecos no se muestra
  const Tabla huecos = TablaHuecosCaso(edificio);
  ASSERT_EQ(huecos.filas.size(), 1U);
  const auto& fila = huecos.filas[0];
  ASSERT_EQ(fila.size(), huecos.cabeceras.size());
  EXPECT_EQ(fila[1].texto, "9");
  for (std::size_t i = 6; i < 13; ++i) {
    const std::string& orientacion = huecos.cabeceras[i];
    const std::string esperado = orientacion == "S" ? "2" : orientacion == "Hz" ? "1" : "";
    EXPECT_EQ(fila[i].texto, esperado) << orientacion;
  }
  EXPECT_EQ(fila[13].numero, 9.0);
  // Un sistema sin generador no impide verlo.
  SistemaResidencial sistema;
  sistema.Tipo_sistema = "ACS";
  edificio.AnadirSistema(sistema);
  const Tabla sistemas = TablaSistemasCaso(edificio);
  ASSERT_EQ(sistemas.filas.size(), 1U);
  EXPECT_EQ(sistemas.filas[0][1].texto, "ACS");
  EXPECT_EQ(sistemas.filas[0][2].texto, "");
}

class TablasDeCaso : public testing::Test {
 protected:
  TablasDeCaso() { caso.Resultados().escala.letra.fill("A"); }
  pruebas::CasoDePrueba caso;
};

TEST_F(TablasDeCaso, LaIluminacionSoloEstaEnTerciario) {
  const Textos vivienda = {"Calefacción", "Refrigeración", "ACS", "Ventilación", "Total"};
  caso.Poner(2, "D3", "Nuevo");
  EXPECT_EQ(ColumnaDe(TablaServicios(caso.Mostrar()), 0), vivienda);
  caso.Poner(3, "D3", "Nuevo");
  EXPECT_EQ(ColumnaDe(TablaServicios(caso.Mostrar()), 0)[4], "Iluminación");
  auto& r = caso.Resultados();
  r.demandaCalefaccion = 7;
  for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
    r.servicio[kCalefaccion].porUnidad[u][0] = static_cast<float>(u + 1);
  r.escala.letra[static_cast<std::size_t>(Indicador::DemandaCalefaccion)] = "B";
  r.escala.letra[static_cast<std::size_t>(Indicador::EPriNoRCalefaccion)] = "C";
  r.escala.letra[static_cast<std::size_t>(Indicador::EmisionesCalefaccion)] = "D";
  const Tabla tabla = TablaServicios(caso.Mostrar());
  const Textos fila = pruebas::FilaDe(tabla, 0);
  // Demanda, final, primaria total, renovable, no renovable y emisiones, con las letras que tienen.
  EXPECT_EQ(fila,
            (Textos{"Calefacción", "7.00", "B", "1.00", "2.00", "4.00", "3.00", "C", "5.00", "D"}));
  EXPECT_EQ(tabla.cabeceras.size(), fila.size());
  caso.Poner(0, "E1", "Nuevo");
  EXPECT_EQ(TablaServicios(caso.Mostrar()).notas,
            (Textos{"No se contabiliza refrigeración por estar en zona E1"}));
  caso.Poner(0, "D3", "Nuevo");
  EXPECT_TRUE(TablaServicios(caso.Mostrar()).notas.empty());
  r.horasFueraCalefaccion = 30;
  r.horasFueraRefrigeracion = 10;
  r.horasOcupacion = 1000;
  EXPECT_EQ(TablaServicios(caso.Mostrar()).notas,
            (Textos{"Nº horas fuera consigna = 40 h lo que supone un 4.00 % "
                    "de las horas de ocupación"}));
}

TEST_F(TablasDeCaso, VectoresConEnergia) {
  auto& r = caso.Resultados();
  r.servicio[kACS].finalPorVector[Indice(VectorEnergetico::GLP)][0] = 10;
  r.servicio[kCalefaccion].finalPorVector[Indice(VectorEnergetico::GLP)][0] = 5;
  // Uno que se anula entre servicios se muestra también.
  r.servicio[kACS].finalPorVector[Indice(VectorEnergetico::Electricidad)][0] = -3;
  r.servicio[kCalefaccion].finalPorVector[Indice(VectorEnergetico::Electricidad)][0] = 3;
  const Tabla tabla = TablaVectores(caso.Mostrar());
  EXPECT_EQ(ColumnaDe(tabla, 0), (Textos{"Electricidad", "GLP"}));
  EXPECT_EQ(ColumnaDe(tabla, 3), (Textos{"-3.00", "10.00"}));
  EXPECT_EQ(ColumnaDe(tabla, 2), (Textos{"", ""}));
  EXPECT_EQ(tabla.filas[1].back().numero, 15.0);
}

TEST(TablasPorNombre, CadaNombreEsUnoYDaSuTabla) {
  pruebas::CasoDePrueba caso;
  caso.Poner(3, "D3", "Nuevo");
  const CasoCalculado mostrado = caso.Mostrar();
  std::set<std::string> vistos;
  for (const std::string& nombre : NombresTablas(*caso.edificio)) {
    EXPECT_TRUE(vistos.insert(nombre).second) << nombre;
    EXPECT_TRUE(TablasDeNombre(mostrado, {mostrado}, nombre)) << nombre;
  }
  for (const char* nombre : {"calificacion", "casos", "comparacion-final-ahorro",
                             "detalle-vectores", "detalle-demanda-huecos", "final-iluminacion"})
    EXPECT_TRUE(vistos.contains(nombre)) << nombre;
  EXPECT_FALSE(TablasDeNombre(mostrado, {mostrado}, "Final-acs"));
  // La página de la iluminación no está en una vivienda, ni tiene edificio de referencia.
  caso.Poner(0, "D3", "Nuevo");
  EXPECT_FALSE(TablasDeNombre(mostrado, {mostrado}, "final-iluminacion"));
  EXPECT_TRUE(TablasDeNombre(mostrado, {mostrado}, "referencia")->empty());
}

TEST(TablasPorNombre, LaDeUnGraficoTieneUnaFilaPorPosicion) {
  Grafico g;
  g.titulo = "Demanda";
  g.posiciones = {"Calef.", "Refrig."};
  g.ejeY = "kWh/m2";
  g.series = {{"Base", {1, 2}}, {"Mejora_1", {3}}};
  const Tabla tabla = TablaDeGrafico(g, "nota");
  EXPECT_EQ(tabla.cabeceras, (Textos{"kWh/m2", "Base", "Mejora_1"}));
  ASSERT_EQ(tabla.filas.size(), 2U);
  EXPECT_EQ(tabla.filas[0][2].numero, 3.0);
  EXPECT_EQ(tabla.filas[1][1].texto, "2.00");
  EXPECT_EQ(tabla.filas[1][2].texto, "");
  EXPECT_EQ(tabla.notas, Textos{"nota"});
}

class HojaTest : public testing::Test {
 protected:
  HojaTest() {
    for (auto& th : caso.Resultados().escala.th) th = {4, 6.5F, 10, 13, 16, 20};
    caso.Poner(0, "D3", "Existente");
  }
  HojaCalificacion Hoja(BaseCalificacion base = BaseCalificacion::Emisiones) {
    return HojaDeCalificacion(caso.MostrarCalificado(), base);
  }
  pruebas::CasoDePrueba caso;
};

TEST_F(HojaTest, EscalaDeNuevoYDeExistente) {
  // Un valor igual a un umbral está en la banda peor.
  caso.Resultados().servicio[kACS].porUnidad[kEmisiones][0] = 16;
  FilaCalificacion acs = Hoja().servicios[2];
  EXPECT_EQ(acs.letra, "F");
  EXPECT_EQ(acs.banda, 5U);
  EXPECT_EQ(acs.escala,
            (Textos{"A: < 4.00", "B: 4.00 < 6.50", "C: 6.50 < 10.00", "D: 10.00 < 13.00",
                    "E: 13.00 < 16.00", "F: 16.00 < 20.00", "G: >= 20.00"}));
  caso.Poner(0, "D3", "Nuevo");
  acs = Hoja().servicios[2];
  EXPECT_EQ(acs.letra, "E");
  EXPECT_EQ(acs.banda, 4U);
  EXPECT_EQ(acs.escala, (Textos{"A: < 4.00", "B: 4.00 < 6.50", "C: 6.50 < 10.00",
                                "D: 10.00 < 13.00", "E: >= 13.00", "", ""}));
  // Una fila sin umbrales no enseña escala, y una que no llega a "G" acaba donde sus letras.
  caso.Poner(0, "D3", "Existente");
  auto& th = caso.Resultados().escala.th[static_cast<std::size_t>(Indicador::EmisionesACS)];
  th = {4, 6.5F, 10, 13, 0, 0};
  EXPECT_EQ(Hoja().servicios[2].escala[4], "E: >= 13.00");
  EXPECT_EQ(Hoja().servicios[2].escala[6], "");
  th = {};
  EXPECT_EQ(Hoja().servicios[2].escala, Textos{"( - )"});
  EXPECT_FALSE(Hoja().servicios[2].banda.has_value());
}

TEST_F(HojaTest, FilasYTitulosDeCadaBase) {
  auto& r = caso.Resultados();
  r.demandaCalefaccion = 1;
  r.demandaRefrigeracion = 2;
  for (const Servicio s : {kACS, kCalefaccion, kRefrigeracion, kVentilacion, kIluminacion}) {
    r.servicio[s].porUnidad[kEmisiones][0] = 10.0F + static_cast<float>(s);
    r.servicio[s].porUnidad[kPrimariaNoRenovable][0] = 20.0F + static_cast<float>(s);
  }
  r.total[kEmisiones] = 50;
  r.total[kPrimariaNoRenovable] = 60;
  const auto valores = [](const std::vector<FilaCalificacion>& filas) {
    std::vector<float> v;
    for (const auto& fila : filas) v.push_back(fila.valor.value_or(-1));
    return v;
  };
  HojaCalificacion hoja = Hoja();
  EXPECT_EQ(valores(hoja.demanda), (std::vector<float>{1, 2}));
  EXPECT_EQ(valores(hoja.servicios), (std::vector<float>{11, 12, 10}));
  EXPECT_EQ(hoja.total.valor, 50.0F);
  EXPECT_EQ(hoja.total.nombre, "Emisiones Totales CO2 (kg/m2 año)");
  caso.Poner(3, "D3", "Existente");
  hoja = Hoja(BaseCalificacion::PrimariaNoRenovable);
  EXPECT_EQ(valores(hoja.servicios), (std::vector<float>{21, 22, 20, 24}));
  EXPECT_EQ(hoja.servicios[3].nombre, "Iluminación");
  EXPECT_EQ(hoja.total.valor, 60.0F);
  EXPECT_EQ(hoja.total.nombre, "Energía primaria no renov.(kWh/m2 año)");
}

TEST_F(HojaTest, ViviendaDeZonaSinRefrigeracion) {
  caso.Poner(1, "D1", "Existente");
  HojaCalificacion hoja = Hoja();
  for (const FilaCalificacion& fila : {hoja.demanda[1], hoja.servicios[1]}) {
    EXPECT_EQ(fila.TextoValor(), "( - )");
    EXPECT_EQ(fila.letra, "( - )");
    EXPECT_EQ(fila.escala, Textos{"( - )"});
  }
  EXPECT_EQ(hoja.notaZona, "No se contabiliza refrigeración por estar en zona D1");
  EXPECT_EQ(TablasHoja(hoja)[1].notas, Textos{hoja.notaZona});
  caso.PonerSimulacionLibre();
  hoja = Hoja();
  EXPECT_FALSE(hoja.rellena);
  EXPECT_EQ(hoja.notaZona, "");
  EXPECT_TRUE(TablasHoja(hoja).empty());
  // Un terciario sí se califica.
  caso.Generales([](DatosGenerales& g) { g.Tiposimulacion = "Certificacion"; });
  caso.Poner(3, "D1", "Existente");
  EXPECT_EQ(Hoja().demanda[1].letra, "A");
  EXPECT_EQ(Hoja().notaZona, "");
}

TEST_F(HojaTest, HorasFueraDeConsigna) {
  auto& r = caso.Resultados();
  r.horasFueraCalefaccion = 30;
  r.horasFueraRefrigeracion = 10;
  EXPECT_EQ(Hoja().horas.texto, "");
  r.horasOcupacion = 1000;
  EXPECT_EQ(Hoja().horas.texto,
            "Nº horas fuera consigna = 40 h lo que supone un 4.00 % de las horas de ocupación");
  EXPECT_FALSE(Hoja().horas.noValida);
  r.horasFueraRefrigeracion = 11;
  EXPECT_EQ(Hoja().horas.texto,
            "Porcentaje horas fuera consigna = 4.10 %. Certificación no válida");
  EXPECT_TRUE(Hoja().horas.noValida);
  CasoCalculado mejora = caso.MostrarCalificado();
  mejora.nombre = "Mejora_1";
  EXPECT_EQ(TextoHorasFuera(mejora).texto, "");
  const auto avisos = [this] {
    const auto filas = Hoja().servicios;
    return Textos{filas[0].aviso, filas[1].aviso, filas[2].aviso};
  };
  const std::string no = "No existe equipos";
  EXPECT_EQ(avisos(), (Textos{no, no, no}));
  // El de los tres servicios no cuenta para calefacción.
  caso.AnadirSistema("ACS+Calefaccion+Refrigeracion");
  EXPECT_EQ(avisos(), (Textos{no, "", ""}));
  caso.edificio->BorrarSistema(0);
  caso.AnadirSistema("ACS+Calefaccion");
  EXPECT_EQ(avisos(), (Textos{"", no, ""}));
  caso.AnadirSistema("Refrigeracion");
  EXPECT_EQ(avisos(), (Textos{"", "", ""}));
  EXPECT_EQ(TablasHoja(Hoja())[1].filas[0].size(), TablasHoja(Hoja())[1].cabeceras.size());
}

}  // namespace
}  // namespace novex
