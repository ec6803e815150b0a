#include "outputs/DesgloseElementos.h"

#include <gtest/gtest.h>

#include "outputs/CasoPrueba.h"
#include "outputs/DetalleResultados.h"

namespace novex {
namespace {

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
