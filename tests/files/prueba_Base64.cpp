#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "files/Base64.h"

namespace novex {
namespace {

// Los ejemplos de RFC 4648.
const std::vector<std::pair<std::string, std::string>> kEjemplos = {{"", ""},
                                                                    {"f", "Zg=="},
                                                                    {"fo", "Zm8="},
                                                                    {"foo", "Zm9v"},
                                                                    {"foob", "Zm9vYg=="},
                                                                    {"fooba", "Zm9vYmE="},
                                                                    {"foobar", "Zm9vYmFy"}};

TEST(Base64, LosEjemplosDeLaNormaEnLosDosSentidos) {
  for (const auto& [bytes, texto] : kEjemplos) {
    EXPECT_EQ(CodificarBase64(bytes), texto);
    std::string leido;
    EXPECT_EQ(DecodificarBase64(texto, leido), 0);
    EXPECT_EQ(leido, bytes);
  }
}

TEST(Base64, TodosLosBytesVuelvenIguales) {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(static_cast<unsigned char>(i));
  std::string leido;
  EXPECT_EQ(DecodificarBase64(CodificarBase64(bytes), leido), 0);
  EXPECT_EQ(leido, bytes);
}

TEST(Base64, SaltaLoQueNoEsDelAlfabetoYDiceLoQueFalta) {
  std::string leido;
  EXPECT_EQ(DecodificarBase64("Zm9v\r\n Ym*Fy", leido), 0);
  EXPECT_EQ(leido, "foobar");
  EXPECT_EQ(DecodificarBase64("Zm9vYg", leido), 17);
  EXPECT_EQ(leido, "foob");
  EXPECT_EQ(DecodificarBase64("Zm9vY", leido), 19);
  EXPECT_EQ(leido, "foo");
}

}  // namespace
}  // namespace novex
