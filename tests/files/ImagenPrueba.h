#pragma once

#include <gtest/gtest.h>
#include <lodepng.h>

#include <array>
#include <cstdlib>
#include <string>

namespace novex::pruebas {

/// Un PNG de dos por dos píxeles.
inline std::string Png() {
  const std::array<unsigned char, 12> pixeles{255, 0, 0, 0, 255, 0, 0, 0, 255, 9, 8, 7};
  unsigned char* datos = nullptr;
  std::size_t n = 0;
  EXPECT_EQ(lodepng_encode24(&datos, &n, pixeles.data(), 2, 2), 0U);
  std::string png(reinterpret_cast<const char*>(datos), n);
  std::free(datos);
  return png;
}

}  // namespace novex::pruebas
