#include "shell/EmitirDocumento.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "base/FicheroSeguro.h"
#include "base/NumeroTexto.h"
#include "base/Proceso.h"
#include "calculation/EjecutarCalculo.h"
#include "files/CarpetaTemporal.h"
#include "files/ImagenesProyecto.h"
#include "files/ProyectoFichero.h"
#include "model/Cambios.h"

namespace novex {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

// Los datos de la carpeta de programa de las pruebas, con una carpeta de imágenes propia.
class EmitirDocumentoTest : public testing::Test {
 protected:
  EmitirDocumentoTest() {
    const fs::path origen = NOVEX_PROGRAMA_PRUEBAS;
    const fs::path programa = carpeta / "programa";
    fs::create_directories(programa);
    for (const char* datos : {"database", "databaseCTE"})
      fs::create_directory_symlink(origen / datos, programa / datos);
    fs::copy(origen / "bmp", programa / "bmp");
    ficheros.emplace(EspacioTrabajo{programa});
    fs::create_directories(carpeta / "salida _CP_ #1");
  }

  void Abrir(const char* ejemplo) {
    const fs::path ruta = fs::path(NOVEX_RAIZ_DATOS) / "proyectos" / ejemplo;
    AbrirProyecto(gestor, ruta, ModoApertura::Nuevo, mensajes);
  }
  DatosGenerales Generales() const { return gestor.Caso(caso::kViejo)->GetDatosGenerales(); }

  DocumentoEmitido Emitir(TipoDocumento tipo, bool pdf = false) {
    Progreso progreso;
    Entorno entorno{*ficheros, mensajes, progreso};
    PedidoDocumento pedido;
    pedido.tipo = tipo;
    pedido.proyecto = nombre;
    pedido.carpeta = carpeta / "salida _CP_ #1";
    pedido.pdf = pdf;
    return EmitirDocumento(gestor, caso::kViejo, pedido, entorno);
  }

  pruebas::CarpetaTemporal carpeta;
  std::optional<FicherosPrograma> ficheros;
  GestorEdifActivo gestor;
  RegistroMensajes mensajes;
  std::string nombre = "-casa 'ñ'.xml";
};

// Lo que se lee en la página: sin etiquetas ni hoja de estilo.
std::string Texto(const fs::path& html) {
  const std::string documento = LeerFichero(html);
  std::string texto;
  bool etiqueta = false;
  for (std::size_t i = documento.find("<body"); i < documento.size(); ++i) {
    if (documento[i] == '<') etiqueta = true;
    if (!etiqueta) texto += documento[i];
    if (documento[i] == '>') {
      etiqueta = false;
      texto += ' ';
    }
  }
  return texto;
}

// Redondeada primero a cinco cifras: 51.3853 es 51.38.
std::string CifraFija(float valor) {
  return FijoCifras(static_cast<double>(valor), 5, 2);
}

TEST_F(EmitirDocumentoTest, CadaEjemploDaSusDocumentosConSusCifras) {
  int ejemplos = 0;
  for (const auto& entrada : fs::directory_iterator(fs::path(NOVEX_RAIZ_DATOS) / "proyectos")) {
    ++ejemplos;
    nombre = entrada.path().filename().string();
    SCOPED_TRACE(nombre);
    Abrir(nombre.c_str());
    for (const TipoDocumento tipo : {TipoDocumento::Certi, TipoDocumento::HE}) {
      const DocumentoEmitido hecho = Emitir(tipo);
      ASSERT_EQ(hecho.estado, Emision::Hecha);
      const std::string texto = Texto(hecho.html);
      const ResultadosCaso& r = gestor.Caso(caso::kViejo)->GetCalculo()->resultados;
      const auto dice = [&](const std::string& parte) {
        return texto.find(parte) != std::string::npos;
      };
      EXPECT_TRUE(dice(Generales().Edificio_Titulo));
      EXPECT_TRUE(dice(CifraFija(r.demandaCalefaccion))) << r.demandaCalefaccion;
      if (tipo == TipoDocumento::Certi) {
        EXPECT_TRUE(dice(CifraFija(r.total[kPrimariaNoRenovable])));
        EXPECT_TRUE(dice(CifraFija(r.total[kEmisiones]))) << r.total[kEmisiones];
        const auto letra = r.escala.letra[static_cast<std::size_t>(Indicador::EPriNoRTotales)];
        EXPECT_THAT(LeerFichero(hecho.html), HasSubstr("flecha" + letra + ".bmp"));
      } else {
        EXPECT_TRUE(dice(CifraFija(r.limites.CepNren)));
      }
      for (const char* roto : {" nan ", " inf ", " -nan ", " -inf "})
        EXPECT_FALSE(dice(roto)) << roto;
    }
  }
  EXPECT_EQ(ejemplos, 12);
}

TEST_F(EmitirDocumentoTest, LoQueEscribeElUsuarioNoEntraComoHtmlYSusImagenesSi) {
  Abrir("vivienda_unifamiliar_D3.xml");
  Edificio& base = *gestor.Caso(caso::kViejo);
  pruebas::CambiarGenerales(base, [](DatosGenerales& g) {
    g.Edificio_Titulo = "<script>alert(1)</script> _REFCAT_";
    g.Memo[1] = {"<!--TAG:MEJORAS", "-->"};
  });
  DatosPantalla pantalla = base.GetDatosPantalla();
  pantalla.Imagen =
      std::make_shared<const std::string>("<![CDATA[data:image/jpeg;base64,/9j/4AA=]]>");
  pantalla.Plano = nullptr;
  base.SetDatosPantalla(pantalla);
  const std::string html = LeerFichero(Emitir(TipoDocumento::Certi).html);
  for (const char* parte : {"&lt;script&gt;alert(1)&lt;/script&gt; &#95;REFCAT&#95;",
                            "&lt;!--TAG:MEJORAS", "imageEdificio.jpg", "sinimagen.bmp"})
    EXPECT_THAT(html, HasSubstr(parte));
  for (const char* parte : {"<script", "imagePlano.jpg"}) EXPECT_THAT(html, Not(HasSubstr(parte)));
  EXPECT_EQ(LeerFichero(ficheros->Espacio().Imagenes() / "imageEdificio.jpg"),
            std::string("\xFF\xD8\xFF\xE0\0", 5));
}

TEST_F(EmitirDocumentoTest, UnaHojaPorMejoraMarcada) {
  Abrir("vivienda_unifamiliar_D3.xml");
  EstudioModificaciones estudio;
  estudio.medidas = {{31, true, "3000", "9", {"nota"}}, {34, true, "", "", {}}};
  gestor.Caso(caso::kViejo)->SetEstudioModificaciones(estudio);
  const std::string dos = Texto(Emitir(TipoDocumento::Certi).html);
  EXPECT_THAT(dos, HasSubstr("MEJORA 2"));
  EXPECT_THAT(dos, Not(HasSubstr("MEJORA 3")));
  EXPECT_THAT(dos, HasSubstr("3000 euros. Se estima un periodo de amortización de 9 años"));
  EXPECT_THAT(Texto(Emitir(TipoDocumento::HE).html), Not(HasSubstr("MEJORA 1")));

  for (const int codigo : {38, 41}) estudio.medidas.push_back({codigo, true, "", "", {}});
  gestor.Caso(caso::kViejo)->SetEstudioModificaciones(estudio);
  mensajes.recibidos.clear();
  EXPECT_THAT(Texto(Emitir(TipoDocumento::Certi).html), Not(HasSubstr("MEJORA 1")));
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_THAT(mensajes.recibidos[0].texto, HasSubstr("Como máximo sólo se pueden indicar 3"));
}

TEST_F(EmitirDocumentoTest, LoQueImpideElDocumento) {
  Abrir("vivienda_unifamiliar_D3.xml");
  const auto motivo = [&] {
    return mensajes.recibidos.empty() ? Mensaje{} : mensajes.recibidos.back();
  };
  // Una carpeta en el lugar del documento.
  fs::create_directories(carpeta / "salida _CP_ #1" / "-casa 'ñ'.html");
  EXPECT_EQ(Emitir(TipoDocumento::Certi).estado, Emision::SinHtml);
  EXPECT_EQ(motivo(), (Mensaje{"Atención", "No se pudo abrir el fichero de salida html"}));
  EXPECT_EQ(Emitir(TipoDocumento::HE).estado, Emision::Hecha);

  const fs::path datos = ficheros->Espacio().Datos();
  fs::remove(datos);
  fs::create_directory(datos);
  for (const auto& f : fs::directory_iterator(fs::path(NOVEX_PROGRAMA_PRUEBAS) / "database"))
    if (f.path().extension() != ".html") fs::create_symlink(f.path(), datos / f.path().filename());
  EXPECT_EQ(Emitir(TipoDocumento::HE).estado, Emision::SinHtml);
  EXPECT_EQ(motivo(), (Mensaje{"Atención", "No se pudo abrir el fichero plantilla entrada html"}));

  gestor.Caso(caso::kViejo)->GetRecinto(0).Suelo_habitable_m2 = 0;
  EXPECT_EQ(Emitir(TipoDocumento::HE).estado, Emision::Rechazada);
  EXPECT_EQ(motivo().titulo, "Valor incorrecto");
}

TEST_F(EmitirDocumentoTest, ElPdfTieneSusPaginasYSuPie) {
  if (BuscarPrograma("weasyprint").empty() || BuscarPrograma("pdftotext").empty())
    GTEST_SKIP() << "sin weasyprint o pdftotext";
  Abrir("oficina_VRV_B4.xml");
  EstudioModificaciones estudio;
  estudio.medidas = {{31, true, "3000", "9", {}}};
  gestor.Caso(caso::kViejo)->SetEstudioModificaciones(estudio);
  const DocumentoEmitido hecho = Emitir(TipoDocumento::Certi, true);
  ASSERT_EQ(hecho.estado, Emision::Hecha);
  const ResultadoProceso leido =
      EjecutarProceso({BuscarPrograma("pdftotext"), {"-layout", hecho.pdf.string(), "-"}, {}},
                      {.bytes = 1U << 20U});
  ASSERT_TRUE(leido.Bien());
  const auto paginas = std::count(leido.salida.begin(), leido.salida.end(), '\f');
  EXPECT_GE(paginas, 6);
  EXPECT_LE(paginas, 12);
  EXPECT_THAT(leido.salida, HasSubstr("Pagina 1 de " + std::to_string(paginas)));
  EXPECT_THAT(leido.salida, HasSubstr("Fecha " + Generales().Fecha));
  EXPECT_THAT(leido.salida, HasSubstr("Ref. Catastral "));
  EXPECT_THAT(leido.salida, HasSubstr("3000 euros"));
  const ResultadosCaso& r = gestor.Caso(caso::kViejo)->GetCalculo()->resultados;
  EXPECT_THAT(leido.salida, HasSubstr(CifraFija(r.total[kEmisiones])));
}

}  // namespace
}  // namespace novex
