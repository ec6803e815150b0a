#include "shell/LanzadorExterno.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <thread>

#include "base/FicheroSeguro.h"
#include "files/CarpetaTemporal.h"

namespace novex {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

// Hace algo mientras se lee el aviso.
class AvisoEnMedio : public RegistroMensajes {
 public:
  explicit AvisoEnMedio(std::function<void()> hacer) : hacer_(std::move(hacer)) {}
  void Avisar(const std::string& titulo, const std::string& texto) override {
    RegistroMensajes::Avisar(titulo, texto);
    hacer_();
  }

 private:
  std::function<void()> hacer_;
};

class LanzadorExterno : public testing::Test {
 protected:
  // Un programa de mentira que deja en `NOMBRE.dicho` su carpeta y sus argumentos, uno por línea.
  void Programa(const std::string& nombre) const {
    EscribirFichero(
        carpeta / nombre,
        "#!/bin/sh\n{ pwd; for a in \"$@\"; do printf '%s\\n' \"$a\"; done; } > \"$0.p\""
        "\nmv \"$0.p\" \"$0.dicho\"\n");
    fs::permissions(carpeta / nombre, fs::perms::owner_all);
  }
  std::string Dicho(const std::string& nombre) const {
    const fs::path ruta = carpeta / (nombre + ".dicho");
    for (int i = 0; i < 500 && !fs::exists(ruta); ++i)
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return fs::exists(ruta) ? LeerFichero(ruta) : "no ha arrancado";
  }

  pruebas::CarpetaTemporal carpeta;
  EspacioTrabajo espacio{(carpeta / "").parent_path()};
  std::string aqui = fs::canonical(carpeta / "").string() + "\n";
  RegistroMensajes m;
};

TEST_F(LanzadorExterno, EnLaCarpetaDelProgramaConOSinExtension) {
  Programa("iEPB_Novex.exe");
  EXPECT_TRUE(LanzarExterno(espacio, programaExterno::kInspeccion, {}, m));
  EXPECT_EQ(Dicho("iEPB_Novex.exe"), aqui);
  Programa("iEPB_Novex");
  EXPECT_TRUE(LanzarExterno(espacio, programaExterno::kInspeccion, {"a b", "-c"}, m));
  EXPECT_EQ(Dicho("iEPB_Novex"), aqui + "a b\n-c\n");
  EXPECT_TRUE(m.recibidos.empty());
  // Lo que no se puede arrancar se dice.
  EXPECT_FALSE(LanzarExterno(espacio, "otro", {}, m));
  fs::create_directory(carpeta / "otro");  // una carpeta no es un programa
  EXPECT_FALSE(LanzarExterno(espacio, "otro", {}, m));
  const Mensaje falta{"AVISO",
                      "No se encuentra el programa externo otro en la carpeta del programa"};
  EXPECT_EQ(m.recibidos, (std::vector<Mensaje>{falta, falta}));
  EscribirFichero(carpeta / "otro.exe", "sin permiso");
  EXPECT_FALSE(LanzarExterno(espacio, "otro", {}, m));
  EXPECT_THAT(m.recibidos.back().texto, HasSubstr("permiso"));
}

TEST_F(LanzadorExterno, ElFicheroDeLaAdministracion) {
  Programa("novex2EPCv3");
  Programa("xml2cert.exe");
  const std::string proyecto = (carpeta / "casa.v1 ñ.xml").string();
  const std::string certificado = (carpeta / "casa.v1 ñ_certi.xml").string();
  // Entre los dos programas, el aviso: el segundo no ha arrancado mientras se lee.
  std::string primero;
  bool segundo = true;
  AvisoEnMedio aviso([&] {
    primero = Dicho("novex2EPCv3");
    segundo = fs::exists(carpeta / "xml2cert.exe.dicho");
  });
  EXPECT_TRUE(LanzarFicheroAdministracion(espacio, proyecto, aviso));
  EXPECT_EQ(primero, aqui + proyecto + "\n" + certificado + "\n");
  EXPECT_FALSE(segundo);
  EXPECT_EQ(Dicho("xml2cert.exe"), aqui + certificado + "\n");
  EXPECT_EQ(aviso.recibidos,
            (std::vector<Mensaje>{{"ATENCION", "Relleno el pdf del certificado"}}));
}

TEST_F(LanzadorExterno, SinUnoDeLosDosProgramas) {
  EXPECT_FALSE(LanzarFicheroAdministracion(espacio, "x.xml", m));
  ASSERT_EQ(m.recibidos.size(), 1U);
  EXPECT_THAT(m.recibidos[0].texto, HasSubstr("novex2EPCv3"));
  Programa("novex2EPCv3");
  EXPECT_FALSE(LanzarFicheroAdministracion(espacio, "x.xml", m));
  // El camino relativo es el de aquí, no el de la carpeta del programa.
  EXPECT_THAT(Dicho("novex2EPCv3"), HasSubstr((fs::current_path() / "x_certi.xml").string()));
  ASSERT_EQ(m.recibidos.size(), 3U);
  EXPECT_EQ(m.recibidos[1].titulo, "ATENCION");
  EXPECT_THAT(m.recibidos[2].texto, HasSubstr("xml2cert"));
}

}  // namespace
}  // namespace novex
