#include "base/LineaAligerada.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>

namespace novex {
namespace {

using testing::ElementsAre;
using testing::Pair;

TEST(LineaAligerada, LosPocosQueSeVenSalenTodosConSusVecinos) {
  const std::vector<double> x = {1, 2, 3, 4, 5, 6}, y = {9, 8, 7, 6, 5, 4};
  EXPECT_THAT(AligerarLinea(x, y, 2.5, 4, 10),
              ElementsAre(Pair(2, 8), Pair(3, 7), Pair(4, 6), Pair(5, 5)));
  EXPECT_EQ(AligerarLinea(x, y, 0, 9, 3).size(), 6U);
  EXPECT_THAT(AligerarLinea(x, y, 7, 9, 3), ElementsAre(Pair(6, 4)));
  EXPECT_TRUE(AligerarLinea({}, {}, 0, 1, 5).empty());
}

TEST(LineaAligerada, CadaColumnaConservaSusExtremosYSuOrden) {
  std::vector<double> x(8760), y(8760);
  std::iota(x.begin(), x.end(), 1);
  for (std::size_t i = 0; i < y.size(); ++i) y[i] = static_cast<double>(i * 37 % 101);
  y[4321] = 1000;  // un pico de una hora
  y[4322] = -1000;
  const auto puntos = AligerarLinea(x, y, 1, 8760, 600);
  EXPECT_LE(puntos.size(), 1200U);
  EXPECT_THAT(puntos, testing::Contains(Pair(4322, 1000)));
  EXPECT_THAT(puntos, testing::Contains(Pair(4323, -1000)));
  EXPECT_TRUE(std::is_sorted(puntos.begin(), puntos.end()));
  for (const auto& [donde, valor] : puntos)
    ASSERT_EQ(valor, y[static_cast<std::size_t>(donde) - 1]);
  EXPECT_THAT(AligerarLinea(x, y, 1, 8760, 0), ElementsAre(Pair(4322, 1000), Pair(4323, -1000)));
}

TEST(LineaAligerada, DeUnaNubeSaleUnPuntoPorCasilla) {
  const std::vector<double> x = {0, 0.1, 9, 10, 4, 30}, y = {0, 0.2, 9.9, 10, 10, 5};
  // Casillas de 5 por 5: (0, 0.1), (9, 10) y 4 aparte; el 30 no se ve.
  EXPECT_THAT(AligerarNube(x, y, 0, 10, 2, 2), ElementsAre(Pair(0, 0), Pair(9, 9.9), Pair(4, 10)));
  EXPECT_EQ(AligerarNube(x, y, 0, 30, 1000, 1000).size(), 6U);
  EXPECT_EQ(AligerarNube(x, y, 0, 30, 0, 0).size(), 1U);
  EXPECT_TRUE(AligerarNube({}, {}, 0, 1, 5, 5).empty());
}

}  // namespace
}  // namespace novex
