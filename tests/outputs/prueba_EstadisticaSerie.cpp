#include "outputs/EstadisticaSerie.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

using enum TipoPeriodo;

Serie Llana(const char* codigo, const char* unidad, ClaseSerie clase, float valor) {
  return {codigo, unidad, clase, std::vector<float>(kHorasAno, valor)};
}

// Pone un valor en una hora del año, desde 1.
void Poner(Serie& serie, int h, float valor) {
  serie.valores.at(static_cast<std::size_t>(h - 1)) = valor;
}

TEST(PeriodoSerie, LimitesDelCalendario) {
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
}

TEST(PeriodoSerie, Rotulos) {
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
}

TEST(LineaEstadistica, LasEnergiasSuman) {
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
}

TEST(LineaEstadistica, CaudalesYRendimientos) {
  EXPECT_EQ(LineaEstadistica(Llana("CAE", "m3/h", ClaseSerie::Otra, 300), {}, 100),
            "Maximo=300.00 m3/h  (1 h 1 Enero)   Minimo=300.00 m3/h  (1 h 1 Enero)  "
            "Medio=300.00 m3/h");
  EXPECT_EQ(LineaEstadistica(Llana("RendCAL_CA1", "", ClaseSerie::Otra, 0.9F), {}, 100),
            "Maximo=0.90  (1 h 1 Enero)   Minimo=0.90  (1 h 1 Enero)");
}

}  // namespace
}  // namespace novex
