#include "files/ProyectoFichero.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "CarpetaTemporal.h"
#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "model/Cambios.h"

namespace novex {
namespace {

using pruebas::CarpetaTemporal;

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
  std::string mezcla = ProyectoDe(2);
  mezcla.replace(mezcla.rfind(kVersion), std::string(kVersion).size(), "NOVEXPLUS v5.09");
  const auto ruta = Escribir(mezcla);
  for (const ModoApertura modo : {ModoApertura::Nuevo, ModoApertura::Anadir})
    EXPECT_NE(std::string(Falla(ruta, modo).what()).find("NOVEXPLUS v5.09"), std::string::npos);
  EXPECT_EQ(Falla(carpeta_ / "no_existe.xml").codigo, 10);
  EXPECT_EQ(Falla(Escribir("<otra/>")).codigo, 11);
  EXPECT_NE(std::string(Falla(Escribir(ProyectoDe(0))).what()).find("ningún edificio"),
            std::string::npos);
  EXPECT_TRUE(Abrir(Escribir(ProyectoDe(1, "NOVEXPLUS v6.2"))).abierto);
  SetUp();
  for (const char* version : {"NOVEXPLUS v6.1", "NOVEX v2.0", "", "novex 2026.09.30"})
    EXPECT_NE(std::string(Falla(Escribir(ProyectoDe(1, version))).what()).find(version),
              std::string::npos);
  EXPECT_NE(std::string(Falla(Escribir("[]", "p.txt")).what()).find("texto"), std::string::npos);
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
  try {
    GuardarProyecto(gestor_, carpeta_ / "no/esta/g.xml");
    FAIL();
  } catch (const ErrorFichero& e) {
    EXPECT_EQ(e.codigo, 15);
  }
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

}  // namespace
}  // namespace novex
