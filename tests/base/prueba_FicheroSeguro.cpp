#include "base/FicheroSeguro.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "base/ErrorFichero.h"
#include "files/CarpetaTemporal.h"

namespace novex {
namespace {

namespace fs = std::filesystem;

class FicheroSeguro : public ::testing::Test {
 protected:
  std::ptrdiff_t NumeroEntradas() const {
    return std::distance(fs::directory_iterator(carpeta_ / ""), fs::directory_iterator());
  }

  pruebas::CarpetaTemporal carpeta_;
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
  // Sustituye el fichero en vez de escribir sobre él.
  const fs::path proyecto = carpeta_ / "proyecto.xml";
  EscribirFichero(proyecto, "antiguo y más largo");
  // Quien lo tiene abierto sigue viendo el contenido antiguo entero.
  std::ifstream abierto(proyecto, std::ios::binary);
  EscribirFichero(proyecto, "nuevo");
  const std::string visto{std::istreambuf_iterator<char>(abierto), {}};
  EXPECT_EQ(visto, "antiguo y más largo");
  EXPECT_EQ(LeerFichero(proyecto), "nuevo");
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

TEST_F(FicheroSeguro, LeerLoQueNoEsUnFicheroCorrienteOEsEnorme) {
  EXPECT_THROW(LeerFichero(carpeta_ / ""), ErrorFichero);
  EXPECT_THROW(LeerFichero("/dev/null"), ErrorFichero);
  const fs::path enorme = carpeta_ / "enorme.bin";
  std::ofstream(enorme).close();
  fs::resize_file(enorme, kTamanoMaximoFichero + 1);  // hueco: no ocupa disco
  EXPECT_THROW(LeerFichero(enorme), ErrorFichero);
  const fs::path ruta = carpeta_ / "falta.xml";
  try {
    LeerFichero(ruta);
    FAIL() << "ha leído un fichero que no existe";
  } catch (const ErrorFichero& error) {
    EXPECT_EQ(error.ruta, ruta.string());
    EXPECT_NE(std::string(error.what()).find(ruta.string()), std::string::npos);
  }
}

}  // namespace
}  // namespace novex
