#include "base/Calendario.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

TEST(Calendario, ElMesCambiaEnLaHoraSiguienteALaUltima) {
  // Horas acumuladas al final de cada mes de un año de 365 días.
  const int ultimas[] = {744, 1416, 2160, 2880, 3624, 4344, 5088, 5832, 6552, 7296, 8016, 8760};
  int mes = 1;
  for (const int h : ultimas) {
    EXPECT_EQ(HoraDelMes(h), mes);
    EXPECT_EQ(HoraDelMes(h + 1), mes < 12 ? mes + 1 : 12);
    ++mes;
  }
  EXPECT_EQ(HoraDelMes(1), 1);
  EXPECT_EQ(HoraDelMes(0), 1);
}

TEST(Calendario, HoraYDiaEnLosCambiosDeDia) {
  const int casos[][3] = {{1, 1, 1},   {24, 24, 1},    {25, 1, 2},
                          {48, 24, 2}, {8737, 1, 365}, {8760, 24, 365}};
  for (const auto& [hora, delDia, dia] : casos) {
    EXPECT_EQ(HoraDelDia(hora), delDia) << hora;
    EXPECT_EQ(DiaDelAno(hora), dia) << hora;
  }
}

}  // namespace
}  // namespace novex
