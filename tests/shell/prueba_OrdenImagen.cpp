#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/FicheroSeguro.h"
#include "base/Proceso.h"
#include "files/CarpetaTemporal.h"
#include "shell/ProyectoPrueba.h"

#ifndef NOVEX_EJECUTABLE_CLI
#define NOVEX_EJECUTABLE_CLI ""
#endif

namespace novex {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

// Un PNG de un píxel gris, byte a byte según ISO/IEC 15948.
const std::string kPng(
    "\x89PNG\r\n\x1A\n"
    "\0\0\0\x0DIHDR\0\0\0\x01\0\0\0\x01\x08\0\0\0\0\x3A\x7E\x9B\x55"
    "\0\0\0\x0AIDAT\x78\x9C\x63\x68\0\0\0\x82\0\x81\x77\xCD\x72\xB6"
    "\0\0\0\0IEND\xAE\x42\x60\x82",
    67);
const std::string kJpeg("\xFF\xD8\xFF\xE0\0\x10JFIF\0 y unos bytes cualesquiera\xFF\xD9", 39);

class OrdenImagen : public testing::Test {
 protected:
  void SetUp() override {
    if (std::string(NOVEX_EJECUTABLE_CLI).empty()) GTEST_SKIP() << "sin novex-cli";
    pruebas::GuardarProyectoPrueba(proyecto, "D3", 100, 1);
    fs::create_directories(carpeta / "programa");
    fs::create_directory_symlink(fs::path(NOVEX_RAIZ_DATOS) / "database",
                                 carpeta / "programa/database");
    EscribirFichero(carpeta / "foto.jpg", kJpeg);
    EscribirFichero(carpeta / "plano.jpg", kPng);
  }
  ResultadoProceso Imagen(std::vector<std::string> argumentos) const {
    argumentos.insert(argumentos.begin(),
                      {"imagen", proyecto.string(), "--programa", Ruta("programa")});
    return EjecutarProceso({NOVEX_EJECUTABLE_CLI, argumentos, {}});
  }
  std::string Ruta(const std::string& nombre) const { return (carpeta / nombre).string(); }

  pruebas::CarpetaTemporal carpeta;
  fs::path proyecto = carpeta / "casa.xml";
};

TEST_F(OrdenImagen, PoneYExtrae) {
  const std::string antes = LeerFichero(proyecto);
  auto r = Imagen({"--edificio", Ruta("foto.jpg"), "--salida", Ruta("otra.xml")});
  ASSERT_EQ(r.codigo, 0) << r.errores;
  EXPECT_THAT(r.salida, HasSubstr("otra.xml"));
  EXPECT_EQ(LeerFichero(proyecto), antes);
  proyecto = carpeta / "otra.xml";
  // El plano se pone en el mismo fichero, y la foto que ya tenía sigue.
  ASSERT_EQ(Imagen({"--plano", Ruta("plano.jpg")}).codigo, 0);
  r = Imagen({"--extraer", Ruta("sacadas/hoy")});
  ASSERT_EQ(r.codigo, 0) << r.errores;
  EXPECT_EQ(LeerFichero(carpeta / "sacadas/hoy/imageEdificio.jpg"), kJpeg);
  EXPECT_EQ(LeerFichero(carpeta / "sacadas/hoy/imagePlano.png"), kPng);
}

TEST_F(OrdenImagen, LoQueNoSePuedeDejaElProyectoComoEstaba) {
  const std::string antes = LeerFichero(proyecto);
  EXPECT_EQ(Imagen({}).codigo, 2);
  EXPECT_EQ(Imagen({"--edificio", Ruta("foto.jpg"), "--extraer", Ruta("s")}).codigo, 2);
  EXPECT_EQ(Imagen({"--salida", Ruta("s.xml")}).codigo, 2);
  auto r = Imagen({"--edificio", Ruta("foto.jpg"), "--plano", Ruta("falta.png")});
  EXPECT_EQ(r.codigo, 3);
  EXPECT_THAT(r.errores, HasSubstr("No se pudo abrir el archivo"));
  r = Imagen({"--edificio", proyecto.string()});
  EXPECT_EQ(r.codigo, 3);
  EXPECT_THAT(r.errores, HasSubstr("no es una imagen JPEG ni PNG"));
  r = Imagen({"--extraer", Ruta("s")});
  EXPECT_EQ(r.codigo, 3);
  EXPECT_THAT(r.errores, HasSubstr("no tiene ninguna imagen"));
  EXPECT_EQ(LeerFichero(proyecto), antes);
  // El nombre de un fichero que ya existe no puede ser una carpeta.
  ASSERT_EQ(Imagen({"--edificio", Ruta("foto.jpg")}).codigo, 0);
  EXPECT_EQ(Imagen({"--extraer", Ruta("foto.jpg")}).codigo, 3);
}

}  // namespace
}  // namespace novex
