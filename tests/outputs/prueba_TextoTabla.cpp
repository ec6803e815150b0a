#include "outputs/TextoTabla.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

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
}

TEST(TextoTabla, FilasCortasYSinCabecera) {
  Tabla tabla;
  tabla.filas = {{"a"}, {"bb", "", "fin"}, {}};
  EXPECT_EQ(TextoTabla(tabla),
            "  a\n"
            "  bb    fin\n"
            "\n");
  EXPECT_EQ(TextoTabla(Tabla{}), "");
  EXPECT_EQ(AnchuraTexto("ºC─"), 3U);
}

}  // namespace
}  // namespace novex
