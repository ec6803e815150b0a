#include <gtest/gtest.h>

#include "base/Parecidos.h"

namespace novex {
namespace {

TEST(Parecidos, PrimeroLoQueLoContieneYLuegoLoMasCercano) {
  const std::vector<std::string> nombres = {"TSL", "TSE", "final-acs", "final-calefaccion", "TSE"};
  EXPECT_EQ(MasParecidos("tsé", nombres, 2), (std::vector<std::string>{"TSE", "TSL"}));
  EXPECT_EQ(MasParecidos("Calefacción", nombres, 1),
            (std::vector<std::string>{"final-calefaccion"}));
  EXPECT_EQ(MasParecidos("x", nombres, 9).size(), 4U);
  EXPECT_TRUE(MasParecidos("x", {}).empty());
  EXPECT_EQ(FraseParecidos({"a", "b"}), "; se parecen: a, b");
  EXPECT_EQ(FraseParecidos({}), "");
}

}  // namespace
}  // namespace novex
