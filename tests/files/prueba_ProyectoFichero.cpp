#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <lodepng.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>

#include "CarpetaTemporal.h"
#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "base/NumeroTexto.h"
#include "files/CarpetaTemporal.h"
#include "files/ImagenPrueba.h"
#include "files/ImagenesProyecto.h"
#include "files/LimitesProyecto.h"
#include "files/ProyectoFichero.h"
#include "model/Cambios.h"

namespace novex {
namespace {

using pruebas::CarpetaTemporal;
namespace fs = std::filesystem;
using testing::HasSubstr;

constexpr const char* kTitulo = "No se abre ningún fichero nuevo";
constexpr const char* kVersion = "NOVEX 2026.09.30";
constexpr const char* kEjemplo = NOVEX_RAIZ_DATOS "/proyectos/hotel_24h_A3.xml";

// Un proyecto de `n` casos casi vacíos, con su título.
std::string ProyectoDe(int n, const std::string& version = kVersion) {
  std::string texto = "<DatosEnergeticosDelEdificio><DatosPersonalizados>";
  for (int i = 1; i <= n; ++i)
    texto += "<Novex><Version name=\"" + version +
             "\"/><Datos_Generales><Edificio_Titulo name=\"Caso " + std::to_string(i) +
             "\"/></Datos_Generales><Datos_Uso><Tipo name=\"8hB\"/></Datos_Uso></Novex>";
  return texto + "</DatosPersonalizados></DatosEnergeticosDelEdificio>";
}

std::string Titulo(const GestorEdifActivo& gestor, const char* caso) {
  return gestor.Caso(caso)->GetDatosGenerales().Edificio_Titulo;
}

class ProyectoFichero : public ::testing::Test {
 protected:
  void SetUp() override {
    gestor_.NuevoProyecto();
    pruebas::CambiarGenerales(gestor_.Activo(),
                              [](DatosGenerales& d) { d.Edificio_Titulo = "Abierto"; });
  }
  void Mejoras(int n) {
    for (int i = 0; i < n; ++i) gestor_.AnadirMejora();
  }
  std::filesystem::path Escribir(const std::string& texto, const std::string& nombre = "p.xml") {
    EscribirFichero(carpeta_ / nombre, texto);
    return carpeta_ / nombre;
  }
  ProyectoAbierto Abrir(const std::filesystem::path& ruta,
                        ModoApertura modo = ModoApertura::Nuevo) {
    return AbrirProyecto(gestor_, ruta, modo, mensajes_);
  }
  // La apertura falla con un error del fichero y el proyecto sigue como estaba.
  ErrorFichero Falla(const std::filesystem::path& ruta, ModoApertura modo = ModoApertura::Nuevo) {
    const auto casos = gestor_.NumeroCasos();
    const std::string activo(gestor_.NombreActivo());
    try {
      Abrir(ruta, modo);
      ADD_FAILURE() << "se ha abierto " << ruta;
    } catch (const ErrorFichero& e) {
      EXPECT_EQ(e.ruta, ruta.string());
      EXPECT_EQ(gestor_.NumeroCasos(), casos);
      EXPECT_EQ(gestor_.NombreActivo(), activo);
      EXPECT_EQ(Titulo(gestor_, "Viejo"), "Abierto");
      return e;
    }
    return {"", -1, 0, 0, ""};
  }

  CarpetaTemporal carpeta_;
  GestorEdifActivo gestor_;
  RegistroMensajes mensajes_;
};

TEST_F(ProyectoFichero, NuevoPoneCadaCasoEnSuSitio) {
  Mejoras(2);
  const ProyectoAbierto r = Abrir(Escribir(ProyectoDe(6)));
  EXPECT_TRUE(r.abierto);
  EXPECT_EQ(gestor_.NumeroCasos(), 6U);
  EXPECT_EQ(Titulo(gestor_, "Viejo"), "Caso 1");
  EXPECT_EQ(Titulo(gestor_, "Mejora_1"), "Caso 2");
  EXPECT_EQ(Titulo(gestor_, "Mejora_5"), "Caso 6");
  EXPECT_EQ(gestor_.NombreActivo(), "Mejora_5");
  EXPECT_EQ(gestor_.Activo().GetDatosGenerales().Version, kVersion);
  EXPECT_TRUE(mensajes_.recibidos.empty());
}

TEST_F(ProyectoFichero, MasDeSeisCasosNoAbrenNada) {
  EXPECT_FALSE(Abrir(Escribir(ProyectoDe(7))).abierto);
  EXPECT_EQ(Titulo(gestor_, "Viejo"), "Abierto");
  ASSERT_EQ(mensajes_.recibidos.size(), 1U);
  EXPECT_EQ(mensajes_.recibidos[0],
            (Mensaje{kTitulo, "El nº total de edificios sería mayor de 6"}));
  Mejoras(1);
  const ProyectoAbierto r = Abrir(Escribir(ProyectoDe(3)), ModoApertura::Anadir);
  EXPECT_EQ(r.casos, (std::vector<std::string_view>{"Mejora_2", "Mejora_3", "Mejora_4"}));
  EXPECT_EQ(Titulo(gestor_, "Viejo"), "Abierto");
  EXPECT_EQ(Titulo(gestor_, "Mejora_2"), "Caso 1");
  EXPECT_EQ(Titulo(gestor_, "Mejora_4"), "Caso 3");
  EXPECT_EQ(gestor_.NombreActivo(), "Mejora_4");
}

TEST_F(ProyectoFichero, AnadirTresACuatroLeeDosYTresACincoNinguno) {
  Mejoras(3);
  const auto ruta = Escribir(ProyectoDe(3));
  const ProyectoAbierto r = Abrir(ruta, ModoApertura::Anadir);
  EXPECT_TRUE(r.abierto);
  EXPECT_EQ(r.casos.size(), 2U);
  EXPECT_EQ(gestor_.NumeroCasos(), 6U);
  EXPECT_EQ(Titulo(gestor_, "Mejora_5"), "Caso 2");
  ASSERT_EQ(mensajes_.recibidos.size(), 1U);
  EXPECT_EQ(mensajes_.recibidos[0].titulo, kTitulo);

  gestor_.EliminarCaso("Mejora_5");
  EXPECT_FALSE(Abrir(ruta, ModoApertura::Anadir).abierto);
  EXPECT_EQ(gestor_.NumeroCasos(), 5U);
  EXPECT_EQ(mensajes_.recibidos.size(), 2U);
}

TEST_F(ProyectoFichero, UnaLecturaQueFallaDejaElProyectoComoEstaba) {
  Mejoras(1);
  // El límite que se pasa está en el segundo caso.
  std::string mezcla = ProyectoDe(2);
  std::string huecos;
  for (std::size_t i = 0; i <= limiteProyecto::kGruposHuecos; ++i) huecos += "<Hueco/>";
  mezcla.insert(mezcla.rfind("</Novex>"), "<Huecos>" + huecos + "</Huecos>");
  const auto ruta = Escribir(mezcla);
  for (const ModoApertura modo : {ModoApertura::Nuevo, ModoApertura::Anadir}) Falla(ruta, modo);
  EXPECT_EQ(Falla(carpeta_ / "no_existe.xml").codigo, 10);
  EXPECT_EQ(Falla(Escribir("<otra/>")).codigo, 11);
  EXPECT_NE(std::string(Falla(Escribir(ProyectoDe(0))).what()).find("ningún edificio"),
            std::string::npos);
  EXPECT_TRUE(Abrir(Escribir(ProyectoDe(1, "NOVEXPLUS v6.2"))).abierto);
  SetUp();
  EXPECT_NE(std::string(Falla(Escribir("[]", "p.txt")).what()).find("ningún edificio"),
            std::string::npos);
  EXPECT_FALSE(Abrir(Escribir(ProyectoDe(1), "p.nov")).abierto);
  EXPECT_EQ(Titulo(gestor_, "Viejo"), "Abierto");
  EXPECT_TRUE(Abrir(Escribir(ProyectoDe(1), "p.xml.copia")).abierto);
}

TEST_F(ProyectoFichero, UnCasoSinUsoQuedaResidencialYSeDice) {
  const ProyectoAbierto r =
      Abrir(Escribir("<DatosEnergeticosDelEdificio><DatosPersonalizados><Novex><Version "
                     "name=\"NOVEX 2026.09.30\"/>"
                     "</Novex></DatosPersonalizados></DatosEnergeticosDelEdificio>"));
  EXPECT_EQ(r.casosSinUso, std::vector<std::string_view>{"Viejo"});
  EXPECT_EQ(gestor_.Activo().GetDatosGenerales().Tipo, "Residencial");
}

TEST_F(ProyectoFichero, ElCaminoAcabaEnXml) {
  const auto guardado = [](const char* elegido) { return RutaDeGuardado(elegido).string(); };
  EXPECT_EQ(guardado("/p/caso.txt"), "/p/caso.xml");
  EXPECT_EQ(guardado("caso"), "caso.xml");
  EXPECT_EQ(guardado("/p.xml/caso.xml"), "/p.xml/caso.xml");
  EXPECT_EQ(guardado("caso.XML"), "caso.xml");
  EXPECT_EQ(guardado("caso.xml.bak"), "caso.xml");
  EXPECT_EQ(guardado("v1.2"), "v1.2.xml");
  EXPECT_EQ(guardado("casa.txt.v2.xml"), "casa.txt.v2.xml");
  Mejoras(3);
  gestor_.ActivarCaso("Mejora_1");
  EXPECT_EQ(GuardarProyecto(gestor_, carpeta_ / "g.txt"), carpeta_ / "g.xml");
  EXPECT_EQ(gestor_.NombreActivo(), "Mejora_1");
  EXPECT_THAT([&] { GuardarProyecto(gestor_, carpeta_ / "no/esta/g.xml"); },
              testing::Throws<ErrorFichero>(testing::Field(&ErrorFichero::codigo, 15)));
}

TEST_F(ProyectoFichero, LaMarcaDeOrdenSigueAlFicheroAbierto) {
  ModoCodificacion codificacion;
  const auto latin = Escribir("<!-- declaraci\xF3n de Latin-1 -->" + ProyectoDe(1));
  AbrirProyecto(gestor_, latin, ModoApertura::Nuevo, mensajes_, codificacion);
  EXPECT_EQ(LeerFichero(GuardarProyecto(gestor_, carpeta_ / "l.xml", {}, codificacion)).front(),
            '<');
  EXPECT_TRUE(LeerFichero(GuardarProyecto(gestor_, carpeta_ / "u.xml")).starts_with(kBomUtf8));
}

TEST_F(ProyectoFichero, LasImagenesVanEnElPrimerCasoYSonDeTodos) {
  const std::string texto = "<![CDATA[data:image/jpeg;base64,Zm9v]]>";
  DatosPantalla p;
  p.Imagen = std::make_shared<const std::string>(texto);
  p.Plano = std::make_shared<const std::string>();
  gestor_.Activo().SetDatosPantalla(p);
  Mejoras(2);
  const auto ruta = GuardarProyecto(gestor_, carpeta_ / "i.xml");
  const std::string bytes = LeerFichero(ruta);
  EXPECT_NE(bytes.find("<Imagen><![CDATA[" + texto + "]]></Imagen>"), std::string::npos);
  EXPECT_EQ(bytes.find("<Imagen>"), bytes.rfind("<Imagen>"));
  EXPECT_NE(bytes.find("<Plano/>"), std::string::npos);
  Abrir(ruta);
  for (const char* caso : {"Viejo", "Mejora_1", "Mejora_2"}) {
    const DatosPantalla& leida = gestor_.Caso(caso)->GetDatosPantalla();
    // El cierre interior se pierde al leer.
    ASSERT_TRUE(leida.Imagen && leida.Plano);
    EXPECT_EQ(*leida.Imagen, "<![CDATA[data:image/jpeg;base64,Zm9v");
    EXPECT_EQ(*leida.Plano, "");
  }
}

TEST_F(ProyectoFichero, LosBloquesDeResultadosSoloVanEnElPrimerCaso) {
  Mejoras(1);
  DatosDerivados derivados;
  derivados.casos.resize(2);
  for (auto& caso : derivados.casos)
    caso.bloques = {{"Indicadores", {}, "", {{"Demanda", {}, "1.5", {}}}}};
  const std::string bytes = LeerFichero(GuardarProyecto(gestor_, carpeta_ / "b.xml", derivados));
  EXPECT_EQ(bytes.find("<Indicadores>"), bytes.rfind("<Indicadores>"));
  EXPECT_NE(bytes.find("<Demanda>1.5</Demanda>"), std::string::npos);
  EXPECT_EQ(LeerFichero(GuardarProyecto(gestor_, carpeta_ / "s.xml")).find("Indicadores"),
            std::string::npos);
}

TEST_F(ProyectoFichero, UnFicheroCortadoNoSeAbreNiRompeNada) {
  const std::string entero = LeerFichero(kEjemplo);
  ASSERT_GT(entero.size(), 60'000U);
  const std::string_view utiles = std::string_view(entero).substr(0, entero.rfind('>'));
  for (std::size_t n = 0; n < utiles.size(); n += n + 300 < utiles.size() ? 877 : 1)
    Falla(Escribir(entero.substr(0, n)));
  // Un fichero estropeado se abre o falla como fichero.
  constexpr std::string_view kBytes = "<>&;\"/=9-x\xE1\0 ";
  // Sucesión congruente: las mismas roturas en toda máquina.
  std::uint32_t azar = 12345;
  const auto siguiente = [&azar](std::size_t n) {
    azar = azar * 1664525U + 1013904223U;
    return static_cast<std::size_t>(azar >> 8U) % n;
  };
  int abiertos = 0, fallos = 0;
  for (int vez = 0; vez < 300; ++vez) {
    std::string roto = entero;
    for (std::size_t k = siguiente(4); k < 4; ++k)
      roto[siguiente(roto.size())] = kBytes[siguiente(kBytes.size())];
    try {
      Abrir(Escribir(roto)).abierto ? ++abiertos : ++fallos;
    } catch (const ErrorFichero&) {
      ++fallos;
    }
  }
  EXPECT_GT(abiertos, 0);
  EXPECT_GT(fallos, 0);
}

constexpr const char* kAbrir = "No se pudo abrir el archivo";
constexpr const char* kSinMarca = "No se encontró CDATA en el texto.";

std::string Jpeg(std::size_t bytes) {
  std::string j = "\xFF\xD8\xFF\xE0";
  for (std::size_t i = 0; j.size() < bytes; ++i) j += static_cast<char>(i * i + i / 251);
  return j;
}

// La mayor memoria que ha llegado a ocupar el proceso desde que se olvidó, KiB.
long MemoriaMayor() {
  std::ifstream estado("/proc/self/status");
  for (std::string linea; std::getline(estado, linea);)
    if (linea.starts_with("VmHWM:")) return EnteroInicial(linea.substr(6));
  return -1;
}
bool OlvidarMemoriaMayor() {
  std::ofstream olvido("/proc/self/clear_refs");
  return static_cast<bool>(olvido << "5" << std::flush);
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
  const auto png = Texto("plano.jpg", pruebas::Png());
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
  const std::string png = pruebas::Png();
  EXPECT_FALSE(Texto("cortado.png", png.substr(0, png.size() / 2)));
  EXPECT_THAT(Aviso(), HasSubstr("cortado.png"));
  // Un PNG que dice medir 65535 x 65535 no llega a ocupar la memoria.
  std::string enorme = png;
  for (const std::size_t i : {18U, 19U, 22U, 23U}) enorme[i] = '\xFF';
  lodepng_chunk_generate_crc(reinterpret_cast<unsigned char*>(enorme.data()) + 8);
  EXPECT_FALSE(Texto("enorme.png", enorme));
  EXPECT_THAT(Aviso(), HasSubstr("no se puede leer"));
  // Ni uno de un píxel cuyos datos, unos kilobytes, se hinchan hasta 64 MB.
  const std::string bomba = pruebas::PngHinchado(64 * 1024 * 1024);
  ASSERT_LT(bomba.size(), 400'000U);
  ASSERT_TRUE(OlvidarMemoriaMayor());
  const long antes = MemoriaMayor();
  ASSERT_GT(antes, 0);
  EXPECT_FALSE(Texto("bomba.png", bomba));
  EXPECT_THAT(Aviso(), HasSubstr("no se puede leer"));
  EXPECT_LT(MemoriaMayor() - antes, 32 * 1024);
  EscribirFichero(carpeta / "g.jpg", "\xFF\xD8\xFF");
  fs::resize_file(carpeta / "g.jpg", kTamanoMaximoImagen);
  EXPECT_TRUE(TextoDeImagen(carpeta / "g.jpg", m));
  fs::resize_file(carpeta / "g.jpg", kTamanoMaximoImagen + 1);
  EXPECT_FALSE(TextoDeImagen(carpeta / "g.jpg", m));
  EXPECT_THAT(Aviso(), HasSubstr("20 MB"));
}

TEST_F(ImagenesProyecto, ElegidaGuardadaLeidaYEnsenadaEsLaMisma) {
  const std::string foto = Jpeg(3'000'001), plano = pruebas::Png();
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
  EXPECT_TRUE(VolcarImagen(espacio, LugarImagen::Plano, {ClaseImagen::Png, pruebas::Png()}, m));
  const fs::path edificio = espacio.programa / "bmp/imageEdificio.jpg";
  EXPECT_EQ(LeerFichero(edificio), Jpeg(100));
  EXPECT_EQ(LeerFichero(espacio.programa / "bmp/imagePlano.jpg"), pruebas::Png());
  EXPECT_TRUE(m.recibidos.empty());
  // Donde no se puede escribir.
  fs::remove(edificio);
  fs::create_directories(edificio / "dentro");
  EXPECT_FALSE(VolcarImagen(espacio, LugarImagen::Edificio, {ClaseImagen::Jpeg, "x"}, m));
  EXPECT_EQ(m.recibidos.size(), 1U);
}

}  // namespace
}  // namespace novex
