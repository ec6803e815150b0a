#include "files/ImagenesProyecto.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <lodepng.h>

#include <array>
#include <cstdlib>
#include <fstream>

#include "base/FicheroSeguro.h"
#include "files/CarpetaTemporal.h"
#include "files/ProyectoFichero.h"

namespace novex {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

constexpr const char* kAbrir = "No se pudo abrir el archivo";
constexpr const char* kSinMarca = "No se encontró CDATA en el texto.";

std::string Jpeg(std::size_t bytes) {
  std::string j = "\xFF\xD8\xFF\xE0";
  for (std::size_t i = 0; j.size() < bytes; ++i) j += static_cast<char>(i * i + i / 251);
  return j;
}

std::string Png() {
  const std::array<unsigned char, 12> pixeles{255, 0, 0, 0, 255, 0, 0, 0, 255, 9, 8, 7};
  unsigned char* datos = nullptr;
  std::size_t n = 0;
  EXPECT_EQ(lodepng_encode24(&datos, &n, pixeles.data(), 2, 2), 0U);
  std::string png(reinterpret_cast<const char*>(datos), n);
  std::free(datos);
  return png;
}

class ImagenesProyecto : public testing::Test {
 protected:
  std::optional<std::string> Texto(const std::string& nombre, const std::string& bytes) {
    EscribirFichero(carpeta / nombre, bytes);
    return TextoDeImagen(carpeta / nombre, m);
  }
  // El único aviso recibido, que se olvida.
  std::string Aviso() {
    const std::string aviso = m.recibidos.size() == 1 ? m.recibidos[0].texto : "no hay uno";
    m.recibidos.clear();
    return aviso;
  }

  pruebas::CarpetaTemporal carpeta;
  RegistroMensajes m;
};

TEST_F(ImagenesProyecto, ElTextoDeUnaImagenElegida) {
  // FF D8 FF E0 en Base64 es /9j/4A==
  EXPECT_EQ(Texto("foto ñ.JPEG", "\xFF\xD8\xFF\xE0"),
            "<![CDATA[data:image/jpeg;base64,/9j/4A==]]>");
  // La clase la dicen los bytes: los ocho de un PNG son iVBORw0KGgo=
  const auto png = Texto("plano.jpg", Png());
  ASSERT_TRUE(png);
  EXPECT_TRUE(png->starts_with("<![CDATA[data:image/png;base64,iVBORw0KGgo"));
  EXPECT_TRUE(png->ends_with("]]>"));
  EXPECT_TRUE(m.recibidos.empty());
}

TEST_F(ImagenesProyecto, LoQueNoSePuedeElegir) {
  EXPECT_FALSE(TextoDeImagen(carpeta / "falta.jpg", m));
  EXPECT_EQ(Aviso(), kAbrir);
  EXPECT_FALSE(TextoDeImagen(carpeta / "", m));
  EXPECT_EQ(Aviso(), kAbrir);
  for (const std::string bytes : {"", "\xFF\xD8", "GIF89a......", "<svg/>"}) {
    EXPECT_FALSE(Texto("imagen.jpg", bytes));
    EXPECT_THAT(Aviso(), HasSubstr("no es una imagen JPEG ni PNG"));
  }
  const std::string png = Png();
  EXPECT_FALSE(Texto("cortado.png", png.substr(0, png.size() / 2)));
  EXPECT_THAT(Aviso(), HasSubstr("cortado.png"));
  // Un PNG que dice medir 65535 x 65535 no llega a ocupar la memoria.
  std::string enorme = png;
  for (const std::size_t i : {18U, 19U, 22U, 23U}) enorme[i] = '\xFF';
  lodepng_chunk_generate_crc(reinterpret_cast<unsigned char*>(enorme.data()) + 8);
  EXPECT_FALSE(Texto("enorme.png", enorme));
  EXPECT_THAT(Aviso(), HasSubstr("no se puede leer"));
  EscribirFichero(carpeta / "g.jpg", "\xFF\xD8\xFF");
  fs::resize_file(carpeta / "g.jpg", kTamanoMaximoImagen);
  EXPECT_TRUE(TextoDeImagen(carpeta / "g.jpg", m));
  fs::resize_file(carpeta / "g.jpg", kTamanoMaximoImagen + 1);
  EXPECT_FALSE(TextoDeImagen(carpeta / "g.jpg", m));
  EXPECT_THAT(Aviso(), HasSubstr("20 MB"));
}

TEST_F(ImagenesProyecto, ElegidaGuardadaLeidaYEnsenadaEsLaMisma) {
  const std::string foto = Jpeg(3'000'001), plano = Png();
  GestorEdifActivo gestor;
  gestor.NuevoProyecto();
  gestor.AnadirMejora();
  PonerImagen(gestor, LugarImagen::Edificio,
              std::make_shared<const std::string>(*Texto("f.jpg", foto)));
  PonerImagen(gestor, LugarImagen::Plano,
              std::make_shared<const std::string>(*Texto("p.png", plano)));
  fs::path ruta = GuardarProyecto(gestor, carpeta / "x.xml");
  // Dos veces: lo ya leído, con el cierre perdido, se vuelve a guardar.
  for (int vuelta = 0; vuelta < 2; ++vuelta) {
    GestorEdifActivo leido;
    leido.NuevoProyecto();
    AbrirProyecto(leido, ruta, ModoApertura::Nuevo, m);
    for (const char* nombre : {"Viejo", "Mejora_1"}) {
      const DatosPantalla& p = leido.Caso(nombre)->GetDatosPantalla();
      ASSERT_TRUE(p.Imagen && p.Plano);
      EXPECT_FALSE(p.Imagen->ends_with("]]>"));
      const auto imagen = DecodificarImagen(*ImagenDe(p, LugarImagen::Edificio), m);
      ASSERT_TRUE(imagen);
      EXPECT_TRUE(imagen->bytes == foto);
      EXPECT_EQ(imagen->clase, ClaseImagen::Jpeg);
      const auto otra = DecodificarImagen(*ImagenDe(p, LugarImagen::Plano), m);
      ASSERT_TRUE(otra);
      EXPECT_TRUE(otra->bytes == plano);
      EXPECT_EQ(otra->clase, ClaseImagen::Png);
    }
    ruta = GuardarProyecto(leido, carpeta / "y.xml");
  }
  EXPECT_TRUE(m.recibidos.empty());
}

TEST_F(ImagenesProyecto, SeEnsenaConLosMarcadoresEnterosOAMedias) {
  for (const char* texto :
       {"<![CDATA[data:image/jpeg;base64,/9j/4A==]]>", "<![CDATA[data:image/jpeg;base64,/9j/4A==",
        "data:image/jpeg;base64,/9j/4A==", "data:image/jpeg;base64,/9j/4A==]]>",
        "\n <![CDATA[data:image/jpeg;base64,/9j/4A==]]>",
        "<![CDATA[data:image/jpeg;base64,/9j/\r\n 4A==\n]]> y más"}) {
    const auto imagen = DecodificarImagen(texto, m);
    ASSERT_TRUE(imagen) << texto;
    EXPECT_EQ(imagen->bytes, "\xFF\xD8\xFF\xE0") << texto;
  }
  EXPECT_TRUE(m.recibidos.empty());
  for (const char* texto :
       {"", "/9j/4A==", " data:image/jpeg;base64,/9j/4A==", "<![CDATA[data:image/gif;base64,/9j/",
        "<![CDATA[data:image/jpeg;base64,]]>", "<![CDATA[data:image/jpeg;base64,",
        "]]><![CDATA[data:image/jpeg;base64,/9j/4A==]]>"}) {
    EXPECT_FALSE(DecodificarImagen(texto, m)) << texto;
    EXPECT_EQ(Aviso(), kSinMarca) << texto;
  }
  for (const char* base64 : {"/9j/4", "/9j/4A", "/9j/4A=", "/9j/*4A==", "/9j/4A==AAAA",
                             "/9j/4A======", "====", "/9j/<4A==", " "}) {
    EXPECT_FALSE(DecodificarImagen(std::string("data:image/jpeg;base64,") + base64, m)) << base64;
    EXPECT_EQ(m.recibidos.size(), 1U) << base64;
    EXPECT_NE(Aviso(), kSinMarca) << base64;
  }
  // Bien escrito, pero "foo" no es una imagen.
  EXPECT_FALSE(DecodificarImagen("data:image/jpeg;base64,Zm9v", m));
  EXPECT_THAT(Aviso(), HasSubstr("no es una imagen"));
}

TEST_F(ImagenesProyecto, SeVuelcaEnSuFicheroDeTrabajo) {
  const EspacioTrabajo espacio{carpeta / "programa"};
  EXPECT_TRUE(VolcarImagen(espacio, LugarImagen::Edificio, {ClaseImagen::Jpeg, Jpeg(100)}, m));
  EXPECT_TRUE(VolcarImagen(espacio, LugarImagen::Plano, {ClaseImagen::Png, Png()}, m));
  const fs::path edificio = espacio.programa / "bmp/imageEdificio.jpg";
  EXPECT_EQ(LeerFichero(edificio), Jpeg(100));
  EXPECT_EQ(LeerFichero(espacio.programa / "bmp/imagePlano.jpg"), Png());
  EXPECT_TRUE(m.recibidos.empty());
  // Donde no se puede escribir.
  fs::remove(edificio);
  fs::create_directories(edificio / "dentro");
  EXPECT_FALSE(VolcarImagen(espacio, LugarImagen::Edificio, {ClaseImagen::Jpeg, "x"}, m));
  EXPECT_EQ(m.recibidos.size(), 1U);
}

}  // namespace
}  // namespace novex
