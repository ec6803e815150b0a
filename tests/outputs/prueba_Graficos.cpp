#include <gtest/gtest.h>

#include "outputs/AnalisisTecnico.h"
#include "outputs/CasoPrueba.h"
#include "outputs/ComparacionCasos.h"
#include "outputs/DesgloseElementos.h"
#include "outputs/DetalleResultados.h"
#include "outputs/PaginaEstudio.h"
#include "outputs/TablaObjetoReferencia.h"

namespace novex {
namespace {

using pruebas::FilaDe;
using pruebas::Textos;

// La base y una mejora que gasta menos en calefacción y nada en agua caliente, como la base.
class CasosTest : public testing::Test {
 protected:
  CasosTest() {
    for (auto* c : {&base, &mejora}) {
      c->Poner(3, "D3", "Existente");
      c->edificio->GetRecinto(0).Suelo_habitable_m2 = 50;
      for (auto& th : c->Resultados().escala.th) th = {4, 6.5F, 10, 13, 16, 20};
    }
    Llenar(base, 8);
    Llenar(mejora, 6);
  }
  static void Llenar(pruebas::CasoDePrueba& c, float calefaccion) {
    ResultadosCaso& r = c.Resultados();
    r.demandaCalefaccion = 2 * calefaccion;
    r.demandaRefrigeracion = 5;
    for (std::size_t u = 0; u < kUnidadesEnergia; ++u) {
      r.servicio[kCalefaccion].porUnidad[u][0] = calefaccion;
      r.servicio[kRefrigeracion].porUnidad[u][0] = 12;
      r.total[u] = calefaccion + 12;
    }
  }
  std::vector<CasoCalculado> Casos() {
    std::vector<CasoCalculado> casos = {base.MostrarCalificado(), mejora.MostrarCalificado()};
    casos[1].nombre = "Mejora_1";
    return casos;
  }
  void PonerZona(int uso, const std::string& zona) {
    base.Poner(uso, zona, "Existente");
    mejora.Poner(uso, zona, "Existente");
  }
  pruebas::CasoDePrueba base, mejora;
};

TEST_F(CasosTest, GraficosYLetras) {
  const auto graficos = CompararCasos(Casos(), kEmisiones, TipoValor::Absoluto);
  ASSERT_EQ(graficos.size(), 6U);
  const GraficoComparacion& total = graficos.back();
  EXPECT_EQ(total.grafico.titulo, "Emisiones Totales");
  EXPECT_EQ(total.grafico.ejeY, "kgCO2/m2año");
  EXPECT_EQ(total.grafico.posiciones, (Textos{"Actual", "Mejora_1"}));
  EXPECT_EQ(total.grafico.series.at(0).valores, (std::vector<double>{20, 18}));
  EXPECT_EQ(total.LineaLetras(), "Actual: G   Mejora_1: F");
  EXPECT_EQ(graficos[0].LineaLetras(), "Actual: C   Mejora_1: B");
  EXPECT_TRUE(graficos[3].letras.empty());  // la ventilación no se califica
  EXPECT_EQ(CompararCasos(Casos(), kPrimariaNoRenovable, TipoValor::Absoluto)[0].grafico.titulo,
            "E.primaria no renov.Calef.");
  EXPECT_EQ(CompararCasos(Casos(), kFinal, TipoValor::Absoluto)[0].grafico.titulo,
            "Energía final Calefacción");
  EXPECT_TRUE(CompararCasos({}, kFinal, TipoValor::Absoluto).empty());
  const auto ahorros = CompararCasos(Casos(), kFinal, TipoValor::Ahorro);
  EXPECT_EQ(ahorros[0].grafico.ejeY, "Porcentaje ahorro");
  EXPECT_EQ(ahorros[0].grafico.series[0].valores, (std::vector<double>{0, 25}));
  // Sin base no hay ahorro.
  EXPECT_EQ(ahorros[2].grafico.series[0].valores, (std::vector<double>{0, 0}));
  EXPECT_TRUE(ahorros[0].letras.empty());
  // En vivienda no hay gráfico de iluminación.
  PonerZona(0, "D3");
  EXPECT_EQ(CompararCasos(Casos(), kFinal, TipoValor::Ahorro).size(), 5U);
}

TEST_F(CasosTest, TablaDeLosCasosDeMejora) {
  base.resultado->meses.iluminacion[1] = 100;  // 2 kWh/m2
  const auto tablas = TablasAnalisisTecnico(Casos());
  EXPECT_EQ(tablas[0].cabeceras[0], "  (kWh/m2 año)");
  EXPECT_EQ(tablas[1].cabeceras[0], "  (kgCO2/m2 año)");
  EXPECT_EQ(tablas[0].cabeceras[12], "Total %");
  EXPECT_EQ(tablas[1].cabeceras[12], "Total Cali,%");
  EXPECT_EQ(FilaDe(tablas[0], 0), (Textos{"base", "8.00", "0.00", "12.00", "0.00", "0.00", "",
                                          "0.00", "", "0.00", "", "20.00", "0.00"}));
  // La letra va sola donde la base no da ahorro.
  EXPECT_EQ(FilaDe(tablas[1], 1), (Textos{"Mejora_1", "6.00", "B,25.00", "12.00", "D,0.00", "0.00",
                                          "A", "0.00", "A", "0.00", "", "18.00", "F,10.00"}));
  // 16 + 5 + 2 de la base y 12 + 5 de la mejora.
  EXPECT_EQ(FilaDe(tablas[3], 0)[11], "23.00");
  EXPECT_EQ(FilaDe(tablas[3], 1), (Textos{"Mejora_1", "12.00", "D,25.00", "5.00", "B,0.00", "0.00",
                                          "", "0.00", "100.00", "0.00", "", "17.00", "26.09"}));
}

TEST_F(CasosTest, SinRefrigeracionEnLaTablaDeMejoras) {
  PonerZona(0, "E1");
  const auto tablas = TablasAnalisisTecnico(Casos());
  for (const Tabla& tabla : tablas) {
    EXPECT_EQ(FilaDe(tabla, 1)[3], "( - )");
    EXPECT_EQ(FilaDe(tabla, 1)[4], "( - )");
  }
  EXPECT_EQ(FilaDe(tablas[3], 1)[11], "12.00");
  for (auto* c : {&base, &mejora}) c->PonerSimulacionLibre();
  EXPECT_EQ(FilaDe(TablasAnalisisTecnico(Casos())[1], 1)[3], "12.00");
}

TEST_F(CasosTest, ObjetoYReferencia) {
  EscalaCaso& escala = base.Resultados().escala;
  escala.referencia[static_cast<std::size_t>(Indicador::DemandaCalefaccion)] = 10;
  escala.referencia[static_cast<std::size_t>(Indicador::EmisionesCalefaccion)] = 4;
  escala.referencia[static_cast<std::size_t>(Indicador::EmisionesTotales)] = 99;
  escala.totalReferenciaEmisiones = 16;
  escala.DemandaACS_solar_minima = 3;
  escala.iluminacionReferencia = 5;
  base.resultado->meses.iluminacion[12] = 200;  // 4 kWh/m2
  base.AnadirSistema("Calefaccion");
  const Tabla tabla =
      TablaObjetoReferencia(base.MostrarCalificado(), UnidadesReferencia::Totales).value();
  ASSERT_EQ(tabla.filas.size(), 17U);
  EXPECT_EQ(FilaDe(tabla, 0),
            (Textos{"Demanda calefacción (kWh)", "800.00", "500.00", "1.60", "F"}));
  EXPECT_EQ(FilaDe(tabla, 2), (Textos{"Demanda ACS (kWh)", "0.00", "150.00", "0.00", ""}));
  EXPECT_EQ(FilaDe(tabla, 3),
            (Textos{"Energía iluminación (kWh)", "200.00", "250.00", "0.80", ""}));
  EXPECT_EQ(FilaDe(tabla, 5),
            (Textos{"Emisiones Calefacción (kgCO2)", "400.00", "200.00", "2.00", "C"}));
  // Sin referencia no hay índice; sin equipos no hay letra.
  EXPECT_EQ(FilaDe(tabla, 6), (Textos{"Emisiones Refrigeración (kgCO2)", "600.00", "0.00", "",
                                      "No existe equipo Refri."}));
  EXPECT_EQ(FilaDe(tabla, 7)[4], "No existe equipo ACS");
  EXPECT_EQ(FilaDe(tabla, 10),
            (Textos{"Emisiones Totales (kgCO2)", "1000.00", "800.00", "1.25", "G"}));
  EXPECT_EQ(tabla.notas.size(), 1U);
  const Tabla porM2 =
      TablaObjetoReferencia(base.MostrarCalificado(), UnidadesReferencia::PorM2).value();
  EXPECT_EQ(FilaDe(porM2, 0),
            (Textos{"Demanda calefacción (kWh/m2)", "16.00", "10.00", "1.60", "F"}));
  EXPECT_EQ(FilaDe(porM2, 4)[0], "Energía ventilación (kWh)");
  EXPECT_EQ(FilaDe(porM2, 16)[0], "* Energia primaria no renovable Totales (kWh/m2)");
  PonerZona(0, "D3");
  EXPECT_FALSE(
      TablaObjetoReferencia(base.MostrarCalificado(), UnidadesReferencia::PorM2).has_value());
}

// Una mejora sola no es la base de nada.
TEST_F(CasosTest, SinLaBaseNoHayConQueComparar) {
  const std::vector<CasoCalculado> sola = {Casos()[1]};
  const auto ahorros = CompararCasos(sola, kEmisiones, TipoValor::Ahorro);
  EXPECT_EQ(ahorros.back().grafico.posiciones, Textos{"Mejora_1"});
  EXPECT_EQ(ahorros.back().LineaLetras(), "Mejora_1: F");
  const Tabla emisiones = TablasAnalisisTecnico(sola)[1];
  EXPECT_EQ(FilaDe(emisiones, 0)[0], "Mejora_1");
  EXPECT_EQ(FilaDe(emisiones, 0)[2], "B");
}

ResultadoMedida Medida(int codigo, float calefaccion, float refrigeracion, float emisiones) {
  ResultadoMedida m;
  m.codigo = codigo;
  m.cifras[static_cast<std::size_t>(CifraMedida::DemandaCale)] = calefaccion;
  m.cifras[static_cast<std::size_t>(CifraMedida::DemandaRef)] = refrigeracion;
  m.cifras[static_cast<std::size_t>(CifraMedida::EmisionesTotal)] = emisiones;
  m.letras.fill("C");
  m.letras[static_cast<std::size_t>(Indicador::EmisionesTotales)] = "B";
  return m;
}

TEST(PaginaEstudio, DatosCifrasAhorrosLetrasYSinMedir) {
  EXPECT_EQ(DatosDePagina(PaginaMedida::Demanda).size(), 10U);
  const auto equipos = DatosDePagina(PaginaMedida::Equipos);
  ASSERT_EQ(equipos.size(), 8U);
  EXPECT_EQ(NombreDato(equipos[0], PaginaMedida::Equipos), "Energ.final (kWh/m2 año)");
  EXPECT_EQ(NombreDato(equipos[3], PaginaMedida::Equipos), "Ahorros energ.prim.No renov %");
  EXPECT_EQ(NombreDato(equipos[3], PaginaMedida::Demanda), "Ahorros energ.prim.No renov%");
  const ResultadoMedida base = Medida(kCodigoBase, 60, 20, 10);
  const ResultadoMedida m = Medida(3, 40, 20, 12);
  EXPECT_EQ(TextoDato(DatoEstudio::Demanda, &m, base), "60.00");
  EXPECT_EQ(TextoDato(DatoEstudio::AhorroDemanda, &m, base), "25.00");
  EXPECT_EQ(TextoDato(DatoEstudio::AhorroEmisiones, &m, base), "-20.00");
  EXPECT_EQ(TextoDato(DatoEstudio::AhorroFinal, &m, base), "0.00");  // sin base
  EXPECT_EQ(TextoDato(DatoEstudio::CalificacionCO2, &m, base), "B");
  EXPECT_EQ(TextoDato(DatoEstudio::CalificacionPrimaria, nullptr, base), "----");
  EXPECT_EQ(TextoDatoBase(DatoEstudio::AhorroDemanda, base), "80.00 kWh/m2 año");
  EXPECT_EQ(TextoDatoBase(DatoEstudio::Emisiones, base), "10.00 kgCO2/m2 año");
  EXPECT_EQ(TextoDatoBase(DatoEstudio::CalificacionCO2, base), "B");

  EstudioModificaciones estudio;
  estudio.medidas.push_back({5, true, "", "", {}});
  const Tabla tabla =
      TablaPaginaEstudio(PaginaMedida::Demanda, DatoEstudio::Demanda, base, {m}, estudio);
  ASSERT_EQ(tabla.filas.size(), 31U);  // la base y los 30 códigos de 3 a 50
  EXPECT_EQ(tabla.filas[1][2].texto, "60.00");
  EXPECT_EQ(tabla.filas[2][0].texto, "*");
  EXPECT_EQ(tabla.filas[2][2].texto, "----");
  EXPECT_EQ(TextoQuedan(1.25, 52), "Quedan: 1 min 5 s");
}

// Dos horas de calefacción (1 y 2), una sin demanda (3) y una de refrigeración (4), en 100 m2.
struct CasoDesglose : pruebas::CasoDePrueba {
  CasoDesglose() {
    SeriesZona& zona = resultado->zona;
    zona.DCAL[1] = -1.0F;
    zona.DCAL[2] = -0.5F;
    zona.DREF[4] = 2.0F;
    Resultados().demandaCalefaccion = 0.015F;
    Resultados().demandaRefrigeracion = 0.02F;
    Poner("0-Muro1S", "Opacos", {-600, 100, 0});
    Nombrar("0-Muro1S", "Muros", "Muro1", "SUR");
    Poner("0-CubHzExt", "Opacos", {-200, -150, -100});
    Nombrar("0-CubHzExt", "Cubiertas", "HzExt1", "HORIZONTAL");
    Poner("0-S-G-2", "SemiTransp.", {300, 50, 900});
    Nombrar("0-S-G-2", "G-2", "2", "SUR");
    Poner("0-N-G-10", "SemiTransp.", {-100, -100, 0});
    Nombrar("0-N-G-10", "G-10", "10", "NORTE");
    Poner("0-Ventilacion", "Ventilacion", {-500, -400, 100});
    Poner("0-PuentesT", "PuentesT", {-100, -50, 0});
    Poner("0-CargaInterna", "CargaInterna", {200, 200, 700});
  }
  // Wh de las horas 1, 2 y 4; la 3 no tiene demanda y no ha de contar.
  void Poner(const char* clave, const char* familia, std::array<float, 3> v) {
    Valores& elemento = resultado->valores[clave];
    elemento.familia = familia;
    elemento.valor[1] = v[0];
    elemento.valor[2] = v[1];
    elemento.valor[3] = -1000;
    elemento.valor[4] = v[2];
  }
  void Nombrar(const char* clave, const char* grupo, const char* nombre, const char* orientacion) {
    Valores& elemento = resultado->valores[clave];
    elemento.grupo = grupo;
    elemento.nombre = nombre;
    elemento.orientacion = orientacion;
  }
  using CasoDePrueba::Poner;
};

void Comprobar(const std::vector<BarraDesglose>& barras,
               const std::vector<BarraDesglose>& esperadas) {
  ASSERT_EQ(barras.size(), esperadas.size());
  for (std::size_t i = 0; i < barras.size(); ++i) {
    EXPECT_EQ(barras[i].rotulo, esperadas[i].rotulo);
    EXPECT_NEAR(barras[i].valor, esperadas[i].valor, 1e-9) << barras[i].rotulo;
  }
}

TEST(DesgloseElementos, EnCalefaccionSumaLaDemanda) {
  const CasoDesglose caso;
  const auto d = DesglosarServicio(*caso.resultado, kCalefaccion, 100);
  // Con el signo de la calefacción: 800 + 50, 50 (los huecos pierden solo en la hora 2), 900 y 150;
  // en total 1950 Wh que han de ser los 0,015 kWh/m2.
  const double demanda = static_cast<double>(0.015F);
  const double opacos = demanda * 850 / 1950;
  const double huecos = demanda * 50 / 1950;
  Comprobar(d.familias, {{"Opacos", opacos},
                         {"Semitransp.", huecos},
                         {"Renov. aire", demanda * 900 / 1950},
                         {"Puentes T.", demanda * 150 / 1950},
                         {"CargaInterna", 0}});
  // La cubierta pierde 350 y el muro 600: el muro gana en la hora 2 y ahí no cuenta.
  Comprobar(d.opacos, {{"C.Hz.Sol1", opacos * 350 / 950}, {"M.(1). S", opacos * 600 / 950}});
  Comprobar(d.gruposHuecos, {{"H-2", 0}, {"H-10", huecos}});
  Comprobar(d.orientacionHuecos, {{"H-NORTE", huecos},
                                  {"H-ESTE", 0},
                                  {"H-SURESTE", 0},
                                  {"H-SUR", 0},
                                  {"H-SUROESTE", 0},
                                  {"H-OESTE", 0},
                                  {"H-HORIZONTAL", 0}});
}

TEST(DesgloseElementos, EnRefrigeracionLaCargaInternaVaAparte) {
  const CasoDesglose caso;
  const auto d = DesglosarServicio(*caso.resultado, kRefrigeracion, 100);
  const double demanda = static_cast<double>(0.02F);
  Comprobar(d.familias, {{"Opacos", 0},
                         {"Semitransp.", demanda * 0.9},
                         {"Renov. aire", demanda * 0.1},
                         {"Puentes T.", 0},
                         {"CargaInterna", 0.007}});
  // Sin elementos, sin demanda o sin superficie no hay nada que repartir.
  for (const auto& b : DesglosarServicio(calculo{}, kRefrigeracion, 100).familias)
    EXPECT_EQ(b.valor, 0);
  for (const auto& b : DesglosarServicio(*caso.resultado, kCalefaccion, 0).familias)
    EXPECT_EQ(b.valor, 0);
}

TEST(DesgloseElementos, LaTablaOrdenaPorLoQueHacenEntreLosDosServicios) {
  CasoDesglose caso;
  caso.edificio->GetRecinto(0).Suelo_habitable_m2 = 100;
  caso.Resultados().servicio[kCalefaccion].porUnidad[kEmisiones][0] = 0.03F;
  // En refrigeración solo ganan los huecos (900 Wh) y el aire (100): 90 % y 10 % de 0,02 kWh/m2.
  // En calefacción, de 1950 Wh, lo que sale arriba; los opacos, como 600 y 350.
  const double calor = static_cast<double>(0.015F), frio = static_cast<double>(0.02F);
  const struct {
    const char* elemento;
    double calor, frio;
  } esperados[] = {{"H-2", 0, frio * 0.9},
                   {"Renov. aire", calor * 900 / 1950, frio * 0.1},
                   {"M.(1). S", calor * 850 / 1950 * 600 / 950, 0},
                   {"C.Hz.Sol1", calor * 850 / 1950 * 350 / 950, 0},
                   {"Puentes T.", calor * 150 / 1950, 0},
                   {"H-10", calor * 50 / 1950, 0},
                   {"Total", calor, frio}};
  const Tabla demanda = TablaElementos(caso.Mostrar(), SalidaDetalle::Demanda);
  const Tabla emisiones = TablaElementos(caso.Mostrar(), SalidaDetalle::Emisiones);
  EXPECT_EQ(demanda.titulo, "Demanda por elementos, kWh/m2 año");
  EXPECT_EQ(emisiones.titulo, "Emisiones por elementos, kgCO2/m2 año");
  EXPECT_EQ(TablaElementos(caso.Mostrar(), SalidaDetalle::Vectores).titulo, demanda.titulo);
  ASSERT_EQ(demanda.filas.size(), std::size(esperados));
  for (std::size_t i = 0; i < std::size(esperados); ++i) {
    const auto& fila = demanda.filas[i];
    EXPECT_EQ(fila[0].texto, esperados[i].elemento);
    EXPECT_NEAR(fila[1].numero.value(), esperados[i].calor, 1e-9);
    EXPECT_NEAR(fila[2].numero.value(), esperados[i].calor / calor * 100, 1e-6);
    EXPECT_NEAR(fila[3].numero.value(), esperados[i].frio, 1e-9);
    EXPECT_NEAR(fila[4].numero.value(), esperados[i].frio / frio * 100, 1e-6);
  }
  // Las emisiones de la calefacción son el doble de su demanda y la refrigeración no emite.
  EXPECT_EQ(emisiones.filas[0][0].texto, "Renov. aire");
  EXPECT_NEAR(emisiones.filas[0][1].numero.value(), 2 * calor * 900 / 1950, 1e-9);
  EXPECT_EQ(emisiones.filas.back()[4].texto, "");
}

TEST(DesgloseElementos, CodigosDeLosCerramientos) {
  const struct {
    const char *grupo, *nombre, *orientacion, *codigo;
  } casos[] = {{"Muros", "Muro1", "NORTE", "M.(1). N"},
               {"Muros", "Muro5", "SUROESTE", "M.(5). SO"},
               {"Muros", "LocalNoHab1", "NORTE", "M.a no aco1."},
               {"Muros", "Terreno2", "HORIZONTAL", "M. enterrado2"},
               {"Cubiertas", "HzExt1", "HORIZONTAL", "C.Hz.Sol1"},
               {"Cubiertas", "Incli1", "SUR", "C.incl.30ºS1"},
               {"Cubiertas", "Buhardilla1", "HORIZONTAL", "C.a no aco1."},
               {"Cubiertas", "Terreno1", "HORIZONTAL", "C. enterrada1"},
               {"Suelos", "LocalNoHab2", "HORIZONTAL", "S.a no aco2."},
               {"Suelos", "VacioSanitario1", "HORIZONTAL", "S.vacio s1."},
               {"Suelos", "Terreno3", "HORIZONTAL", "S. enterrado3"},
               {"Suelos", "Exterior1", "HORIZONTAL", "S. exterior1"},
               {"Otros", "Raro", "SUR", "Raro"}};
  for (const auto& c : casos) {
    Valores v;
    v.grupo = c.grupo;
    v.nombre = c.nombre;
    v.orientacion = c.orientacion;
    EXPECT_EQ(CodigoElemento(v), c.codigo);
  }
}

TEST(PaginaDetalle, PorServicioYPorElementos) {
  CasoDesglose caso;
  ResultadosCaso& r = caso.Resultados();
  r.demandaCalefaccion = 30;
  r.demandaRefrigeracion = 10;
  r.servicio[kCalefaccion].porUnidad[kEmisiones][0] = 6;
  r.servicio[kRefrigeracion].porUnidad[kEmisiones][0] = 2;
  r.total[kEmisiones] = 9.5F;
  caso.resultado->meses.ventilacion[0] = 250;  // kWh en 100 m2
  using enum SalidaDetalle;
  using enum ServiciosDetalle;
  using enum AnalisisDetalle;
  const auto pagina = [&](const SeleccionDetalle& s) { return PaginaDetalle(caso.Mostrar(), s); };

  const auto demanda = pagina({});
  ASSERT_EQ(demanda.size(), 1U);
  EXPECT_EQ(demanda[0].grafico.titulo, "Demanda energía diversa por servicio en kWh/m2");
  EXPECT_EQ(demanda[0].grafico.posiciones[3], "Vent. (elec.)");
  EXPECT_DOUBLE_EQ(demanda[0].grafico.series[0].valores[3], 2.5);
  const auto emisiones = pagina({.salida = Emisiones});
  EXPECT_EQ(emisiones[0].grafico.titulo, "Emisiones por servicio kgCO2/m2");
  EXPECT_EQ(emisiones[0].rotulo, "Emisiones Totales 9.50 kgCO2/m2.");
  EXPECT_EQ(emisiones[0].grafico.posiciones[0], "Calef.");

  const auto elementos = pagina({Demanda, CadaUno, Elementos});
  ASSERT_EQ(elementos.size(), 2U);
  EXPECT_EQ(elementos[0].rotulo, "Demanda Calef. 30.00 kWh/m2 año.");
  EXPECT_EQ(elementos[1].rotulo, "Demanda Refrig. 10.00 kWh/m2 año.");
  EXPECT_EQ(elementos[0].grafico.posiciones[2], "Renov. aire");
  // De los 6 kg de calefacción a los huecos les tocan 50 / 1950; de los 2 de frío, el 90 %.
  const auto huecos = pagina({Emisiones, CadaUno, HuecosGrupos});
  EXPECT_EQ(huecos[0].rotulo, "Emisiones  Huecos Calef. 0.15 kgCO2/m2 año.");
  EXPECT_EQ(huecos[1].rotulo, "Emisiones  Huecos Refrig. 1.80 kgCO2/m2 año.");
  EXPECT_EQ(pagina({Demanda, CadaUno, HuecosOrientacion})[1].rotulo,
            "Demanda Huecos Refrig. 9.00 kWh/m2 año.");
  const auto sumados = pagina({Emisiones, Sumados, HuecosOrientacion});
  ASSERT_EQ(sumados.size(), 1U);
  EXPECT_NEAR(sumados[0].grafico.series[0].valores[0], 6.0 * 50 / 1950, 1e-6);  // norte
  EXPECT_NEAR(sumados[0].grafico.series[0].valores[3], 1.8, 1e-6);              // sur
  EXPECT_DOUBLE_EQ(pagina({Emisiones, Sumados, Globales})[0].grafico.series[0].valores.at(0), 8);
}

TEST(PaginaDetalle, Vectores) {
  CasoDesglose caso;
  auto& servicio = caso.Resultados().servicio;
  const auto poner = [&](Servicio s, VectorEnergetico v, float kWh) {
    servicio[s].finalPorVector[Indice(v)][0] = kWh;
  };
  poner(kCalefaccion, VectorEnergetico::GasNatural, 1000);
  poner(kACS, VectorEnergetico::GasNatural, 500);
  poner(kRefrigeracion, VectorEnergetico::Electricidad, 200);
  poner(kVentilacion, VectorEnergetico::Electricidad, 100);
  const auto todos = PaginaDetalle(caso.Mostrar(), {.salida = SalidaDetalle::Vectores});
  ASSERT_EQ(todos.size(), 2U);
  EXPECT_EQ(todos[0].grafico.titulo, "Energía final por fuentes kWh");
  EXPECT_EQ(todos[0].grafico.posiciones[2], "GasNatural");
  EXPECT_DOUBLE_EQ(todos[0].grafico.series[0].valores[0], 300);
  EXPECT_DOUBLE_EQ(todos[0].grafico.series[0].valores[2], 1500);
  EXPECT_EQ(todos[1].grafico.titulo, "Energía kWh/m2");
  EXPECT_DOUBLE_EQ(todos[1].grafico.series[0].valores[2], 15);
  const auto dos =
      PaginaDetalle(caso.Mostrar(), {SalidaDetalle::Vectores, ServiciosDetalle::Sumados});
  EXPECT_DOUBLE_EQ(dos[0].grafico.series[0].valores[2], 1000);
  EXPECT_DOUBLE_EQ(dos[0].grafico.series[0].valores[0], 200);
}

}  // namespace
}  // namespace novex
