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

/// Un PNG de un píxel cuyos datos comprimidos dan `bytes` ceros.
inline std::string PngHinchado(std::size_t bytes) {
  unsigned char *png = nullptr, *datos = nullptr;
  const std::string cabecera("\0\0\0\1\0\0\0\1\x8\2\0\0\0", 13);  // 1 x 1, color de 8 bits
  const auto bruto = [](const std::string& s) {
    return reinterpret_cast<const unsigned char*>(s.data());
  };
  std::size_t n = 0, comprimidos = 0;
  const std::string ceros(bytes, '\0');
  EXPECT_EQ(lodepng_zlib_compress(&datos, &comprimidos, bruto(ceros), bytes,
                                  &lodepng_default_compress_settings),
            0U);
  EXPECT_EQ(lodepng_chunk_create(&png, &n, 13U, "IHDR", bruto(cabecera)), 0U);
  EXPECT_EQ(lodepng_chunk_create(&png, &n, static_cast<unsigned>(comprimidos), "IDAT", datos), 0U);
  EXPECT_EQ(lodepng_chunk_create(&png, &n, 0, "IEND", nullptr), 0U);
  const std::string trozos(reinterpret_cast<const char*>(png), n);
  std::free(png);
  std::free(datos);
  return "\x89PNG\r\n\x1A\n" + trozos;
}

}  // namespace novex::pruebas
