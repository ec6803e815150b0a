#include <QAction>
#include <QFileDialog>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

#include "base/FicheroSeguro.h"
#include "base/Proceso.h"
#include "gui/VentanaPrueba.h"
#include "outputs/administracion/ComprobacionesAdministracion.h"
#include "shell/gui/TImpresor.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui::pruebas {
namespace {

namespace fs = std::filesystem;

class TImpresorTest : public VentanaTest {
 protected:
  // Un ejemplo en la carpeta de la prueba, donde se puede escribir.
  fs::path Copiar(const char* ejemplo) {
    const fs::path ruta = carpeta / ejemplo;
    fs::copy_file(Ejemplo(ejemplo), ruta);
    EXPECT_TRUE(ventana->Abrir(ruta));
    return ruta;
  }
  static std::string Panel(TImpresor& d) {
    std::string visibles;
    for (const auto* panel : d.findChildren<QGroupBox*>())
      if (panel->isVisible() && panel->objectName().startsWith('P'))
        visibles += S(panel->objectName());
    return visibles;
  }
  static QPushButton* Boton(TImpresor& d, const char* nombre) {
    auto* boton = d.findChild<QPushButton*>(nombre);
    EXPECT_TRUE(boton != nullptr && boton->isVisible()) << nombre;
    return boton;
  }
  static QString Texto(TImpresor& d, const char* nombre) {
    return d.findChild<QLabel*>(nombre)->text();
  }
  static void Esperar(const TImpresor& d) {
    for (int i = 0; i < 3000 && d.Ocupado(); ++i) QTest::qWait(20);
  }
};

TEST_F(TImpresorTest, ElDocumentoSeEscribeJuntoAlProyectoYSeVe) {
  const fs::path proyecto = Copiar("vivienda_unifamiliar_D3.xml");
  ConDialogo<TImpresor>(
      [&] { Ordenar("Imprimir"); },
      [&](TImpresor& d) {
        EXPECT_EQ(Panel(d), "Pnuevo1");
        Boton(d, "Panel7")->click();
        EXPECT_TRUE(d.Ocupado());
        d.reject();  // cerrar ahora es cancelar
        EXPECT_TRUE(d.isVisible());
        Esperar(d);
        EXPECT_TRUE(Texto(d, "estado").startsWith("Cancelado"));
        EXPECT_FALSE(fs::exists(fs::path(proyecto).replace_extension(".html")));
        Boton(d, "Panel7")->click();
        Esperar(d);
        EXPECT_EQ(Texto(d, "estado"), "Documento escrito");
        const auto paginas = d.findChildren<QLabel*>("pagina");
        if (!BuscarPrograma("weasyprint").empty() && !BuscarPrograma("pdftoppm").empty()) {
          ASSERT_GT(paginas.size(), 1);
          EXPECT_GT(paginas[0]->pixmap().width(), 500);
          EXPECT_EQ(Q(d.Documento().pdf), Texto(d, "escrito"));
        }
      });
  EXPECT_NE(LeerFichero(fs::path(proyecto).replace_extension(".html")).find("NUEVOS. TERMINADO"),
            std::string::npos);
  EXPECT_TRUE(mensajes.recibidos.empty());
  EXPECT_FALSE(sesion.Modificado());
}

TEST_F(TImpresorTest, CadaPaginaYClaseDeEdificioTieneSuPanel) {
  const fs::path proyecto = Copiar("casa_antigua_E1.xml");
  ConDialogo<TImpresor>(
      [&] { Ordenar("Imprimir"); },
      [&](TImpresor& d) {
        EXPECT_EQ(Panel(d), "PExistente");
        d.findChild<QWidget*>("RGExistente")->findChildren<QRadioButton*>().first()->click();
        EXPECT_EQ(Panel(d), "Pnuevo1");
      });
  EXPECT_EQ(sesion.Caso().GetDatosGenerales().Modo_trabajo, "Nuevo");
  Ordenar("Deshacer");
  EXPECT_EQ(sesion.Caso().GetDatosGenerales().Modo_trabajo, "Existente");
  ventana->Mostrar(Destino::HE);
  ConDialogo<TImpresor>([&] { Ordenar("Imprimir"); },
                        [&](TImpresor& d) {
                          EXPECT_EQ(Panel(d), "PHE1");
                          Boton(d, "Panel2")->click();
                          Esperar(d);
                          EXPECT_EQ(Texto(d, "estado"), "Documento escrito");
                        });
  EXPECT_TRUE(fs::exists(carpeta / "casa_antigua_E1_HE.html"));
}

TEST_F(TImpresorTest, SinPoderCalcularOSinGuardarNoSeImprime) {
  Ordenar("Imprimir");  // un proyecto en blanco no tiene suelos
  ASSERT_FALSE(mensajes.recibidos.empty());
  EXPECT_EQ(mensajes.recibidos[0].titulo, "Valor incorrecto");
  const auto previos = MensajesPrevios(sesion.Caso());
  ASSERT_FALSE(previos.empty());
  EXPECT_EQ(mensajes.recibidos[0].texto, previos.back().texto);
  EXPECT_EQ(ventana->Mostrada(),
            previos.back().pagina == PaginaProyecto::Global ? Destino::Global : Destino::Edificio);
  // Recuperado de otro sitio, se puede calcular y no tiene dónde escribir: se pregunta.
  ASSERT_TRUE(sesion.Recuperar(Ejemplo("piso_C2.xml"), "Nuevo.xml"));
  emit ventana->Contexto().ProyectoCambiado();
  mensajes.recibidos.clear();
  Ordenar("Imprimir");
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].titulo, "Imprimir");
}

TEST_F(TImpresorTest, ElFicheroDeLaAdministracionCompruebaYDiceDondeQueda) {
  Copiar("vivienda_unifamiliar_D3.xml");
  const fs::path informe = carpeta / "vivienda_unifamiliar_D3_certi.xml";
  sesion.EditarSinRecalcular("visitas", [](Edificio& e) {
    DatosGenerales g = e.GetDatosGenerales();
    g.Certificador_NIF.clear();
    g.Certificador_CIF.clear();
    e.SetDatosGenerales(g);
  });
  const auto generar = [&](QString& estado, QString& escrito) {
    mensajes.recibidos.clear();
    ConDialogo<TImpresor>([&] { Ordenar("Imprimir"); },
                          [&](TImpresor& d) {
                            Boton(d, "BitBtn6")->click();
                            Esperar(d);
                            estado = Texto(d, "estado");
                            escrito = Texto(d, "escrito");
                          });
  };
  QString estado, escrito;
  generar(estado, escrito);
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0], kAvisoDatosObligatorios);
  EXPECT_FALSE(fs::exists(informe));
  EXPECT_EQ(estado, "No se ha escrito el fichero");
  sesion.Deshacer();
  generar(estado, escrito);
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].texto,
            "Escrito en el mismo subdirectorio, nombre fichero acabado en '_certi.xml'");
  EXPECT_TRUE(fs::exists(informe));
  EXPECT_EQ(escrito, Q(informe));
}

TEST_F(TImpresorTest, ElFicheroDeLaAdministracionGuardaElProyecto) {
  const fs::path proyecto = Copiar("vivienda_unifamiliar_D3.xml");
  ventana->Contexto().Editar("título", [](Edificio& e) {
    DatosGenerales g = e.GetDatosGenerales();
    g.Edificio_Titulo = "Casa cambiada";
    e.SetDatosGenerales(g);
  });
  ASSERT_TRUE(ventana->windowTitle().endsWith("*"));
  ventana->Mostrar(Destino::Certificacion, "Visitas/Observaciones/Intervenciones");
  // La orden de los resultados lo hace sin más.
  auto* boton = Buscar<QPushButton>("BitBtn6");
  ASSERT_TRUE(boton != nullptr && boton->isVisible());
  EXPECT_EQ(boton->text(), "Genera el fichero para la administración");
  bool escrito = false;
  QTimer esperar;
  QObject::connect(&esperar, &QTimer::timeout, &esperar, [&] {
    auto* d = qobject_cast<TImpresor*>(QApplication::activeModalWidget());
    if (d == nullptr || d->Ocupado()) return;
    esperar.stop();
    escrito = Texto(*d, "estado") == "Fichero escrito";
    d->reject();
  });
  esperar.start(50);
  boton->click();
  EXPECT_TRUE(escrito);
  EXPECT_FALSE(sesion.Modificado());
  EXPECT_FALSE(ventana->windowTitle().endsWith("*"));
  EXPECT_EQ(sesion.Fichero(), fs::absolute(proyecto));
  EXPECT_NE(LeerFichero(proyecto).find("Casa cambiada"), std::string::npos);
  EXPECT_FALSE(fs::exists(Recuperacion(carpeta / "copias").Fichero()));
}

}  // namespace
}  // namespace novex::gui::pruebas
