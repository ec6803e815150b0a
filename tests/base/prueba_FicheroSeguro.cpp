#include "base/FicheroSeguro.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "base/ErrorFichero.h"

namespace novex {
namespace {

namespace fs = std::filesystem;

class FicheroSeguro : public ::testing::Test {
 protected:
  void SetUp() override {
    carpeta_ = fs::temp_directory_path() / ("novex_fichero_seguro_" + std::to_string(::getpid()));
    fs::remove_all(carpeta_);
    fs::create_directories(carpeta_);
  }
  void TearDown() override { fs::remove_all(carpeta_); }

  std::ptrdiff_t NumeroEntradas() const {
    return std::distance(fs::directory_iterator(carpeta_), fs::directory_iterator());
  }

  fs::path carpeta_;
};

TEST_F(FicheroSeguro, VuelveLoEscritoByteAByte) {
  std::string contenido("a\0\r\n\xFF\x1A", 6);
  for (int i = 0; i < 20; ++i) contenido += contenido;  // varios MiB
  const fs::path ruta = carpeta_ / "Año ñ.xml";
  EscribirFichero(ruta, contenido);
  EXPECT_TRUE(LeerFichero(ruta) == contenido);
  EscribirFichero(ruta, "");
  EXPECT_EQ(LeerFichero(ruta), "");
  EXPECT_EQ(NumeroEntradas(), 1);
}

TEST_F(FicheroSeguro, SustituyeElFicheroEnVezDeEscribirSobreEl) {
  const fs::path ruta = carpeta_ / "proyecto.xml";
  EscribirFichero(ruta, "antiguo y más largo");
  // Quien lo tiene abierto sigue viendo el contenido antiguo entero.
  std::ifstream abierto(ruta, std::ios::binary);
  EscribirFichero(ruta, "nuevo");
  const std::string visto{std::istreambuf_iterator<char>(abierto), {}};
  EXPECT_EQ(visto, "antiguo y más largo");
  EXPECT_EQ(LeerFichero(ruta), "nuevo");
}

TEST_F(FicheroSeguro, UnaEscrituraFallidaNoDejaRestos) {
  EXPECT_THROW(EscribirFichero(carpeta_ / "no_existe" / "x.xml", "x"), ErrorFichero);
  // El destino es una carpeta con contenido: no se puede renombrar encima.
  const fs::path carpeta = carpeta_ / "carpeta";
  fs::create_directories(carpeta / "dentro");
  EXPECT_THROW(EscribirFichero(carpeta, "x"), ErrorFichero);
  EXPECT_TRUE(fs::exists(carpeta / "dentro"));
  EXPECT_EQ(NumeroEntradas(), 1);
}

TEST_F(FicheroSeguro, LeerLoQueNoEsUnFicheroCorriente) {
  EXPECT_THROW(LeerFichero(carpeta_), ErrorFichero);
  EXPECT_THROW(LeerFichero("/dev/null"), ErrorFichero);
  const fs::path ruta = carpeta_ / "falta.xml";
  try {
    LeerFichero(ruta);
    FAIL() << "ha leído un fichero que no existe";
  } catch (const ErrorFichero& error) {
    EXPECT_EQ(error.ruta, ruta.string());
    EXPECT_NE(std::string(error.what()).find(ruta.string()), std::string::npos);
  }
}

TEST_F(FicheroSeguro, UnFicheroEnormeNoSeLee) {
  const fs::path ruta = carpeta_ / "enorme.bin";
  std::ofstream(ruta).close();
  fs::resize_file(ruta, kTamanoMaximoFichero + 1);  // hueco: no ocupa disco
  EXPECT_THROW(LeerFichero(ruta), ErrorFichero);
}

}  // namespace
}  // namespace novex
