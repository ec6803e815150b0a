#include <QFileDialog>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTreeWidget>
#include <csignal>

#include "gui/VentanaPrueba.h"
#include "shell/gui/DialogoExpres.h"
#include "shell/gui/DialogoSistema.h"
#include "shell/gui/PaginaPestanas.h"
#include "shell/gui/TFCrearMuro.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui::pruebas {
namespace {

namespace fs = std::filesystem;

class SesionEnteraTest : private CopiaPrograma, public VentanaTest {
 protected:
  SesionEnteraTest() : VentanaTest(programa / "") {}
  void Pestana(Destino destino, const char* titulo) {
    ventana->Mostrar(destino);
    qobject_cast<PaginaPestanas*>(ventana->PaginaDe(destino))->Mostrar(titulo);
  }
  void Poner(const char* direccion, const char* texto) {
    auto* linea = Buscar<QLineEdit>(direccion);
    ASSERT_NE(linea, nullptr) << direccion;
    Teclear(linea, texto);
  }
  // Pulsa el primer botón a la vista con ese texto.
  void Pulsar(const QString& texto) {
    for (auto* boton : ventana->findChildren<QAbstractButton*>())
      if (boton->text() == texto && boton->isVisible()) return boton->click();
    ADD_FAILURE() << "no hay botón " << texto.toStdString();
  }
  std::string Letra() { return ventana->Panel().Calculo().Resumen()->letraPrimaria; }
};

// De un proyecto nuevo a su letra, y de vuelta del fichero, como lo haría un certificador.
TEST_F(SesionEnteraTest, DeUnProyectoNuevoASuLetraYDeVueltaDelFichero) {
  Activar();
  Ordenar("Nuevo");
  Pestana(Destino::Global, "Sitio");
  Poner("Municipio", "avila");
  EXPECT_EQ(sesion.Caso().GetLocalizacion().ZonaClimatica, "E1");
  Pestana(Destino::Global, "Uso");
  Poner("Suelo_habitable_m2", "100");
  Poner("Volumen_total_m3", "270");

  ventana->Mostrar(Destino::Titulo);
  ConDialogo<DialogoExpres>([&] { Pulsar("Definición exprés…"); },
                            [](DialogoExpres& d) {
                              d.findChild<QPushButton*>("proponer")->click();
                              d.findChild<QPushButton*>("aceptar")->click();
                            });
  Pestana(Destino::Edificio, "Muros");
  Poner("MuroExt[1]/Muro_ext_sur_m2", "33,5");
  EXPECT_FLOAT_EQ(sesion.Caso().GetRecinto(0).Muro_ext_m2[0][sur], 33.5F);
  EsperarVivo();
  ASSERT_EQ(ventana->Panel().Calculo().EnQue(), CalculoVivo::Estado::Hecho);
  const float antes = ventana->Panel().Calculo().Resumen()->demandaCalefaccion;

  ConDialogo<TFCrearMuro>(
      [&] { Pulsar("Crear…"); },
      [](TFCrearMuro& d) {
        d.findChild<QPushButton*>("vaciar")->click();
        auto* materiales = d.findChild<QTableWidget*>("materiales");
        for (const char* nombre : {"mortero de cemento", "poliestireno", "enlucido"}) {
          d.findChild<QLineEdit*>("buscarMaterial")->setText(nombre);
          ASSERT_GT(materiales->rowCount(), 0) << nombre;
          emit materiales->cellDoubleClicked(0, 0);
        }
        d.findChild<QLineEdit*>("nombre")->setText("Muro de prueba");
        d.accept();
        EXPECT_EQ(d.result(), QDialog::Accepted);
      });
  const composicion& muro = sesion.Caso().GetComposicion(ranura::MuroExt1);
  EXPECT_EQ(muro.capas.size(), 3U);

  ventana->Mostrar(Destino::Instalaciones);
  const std::size_t sistemas = sesion.Caso().NumeroSistemas();
  ConDialogo<DialogoSistema>(
      [&] { ventana->findChild<QPushButton*>("crear")->click(); },
      [](DialogoSistema& d) {
        for (auto* boton : d.findChildren<QRadioButton*>())
          if (boton->text() == "Calefacción") boton->click();
        auto* clases = d.findChild<QListWidget*>("clases");
        clases->setCurrentItem(clases->findItems("1 Caldera", Qt::MatchExactly).first());
        d.findChild<QPushButton*>("BitBtn3")->click();
      });
  ASSERT_EQ(sesion.Caso().NumeroSistemas(), sistemas + 1);
  EsperarVivo();
  ASSERT_EQ(ventana->Panel().Calculo().EnQue(), CalculoVivo::Estado::Hecho);
  EXPECT_NE(ventana->Panel().Calculo().Resumen()->demandaCalefaccion, antes);
  const std::string letra = Letra();
  ASSERT_EQ(letra.size(), 1U);

  const fs::path ruta = carpeta / "casa de Ávila.xml";
  ConDialogo<QFileDialog>([&] { Ordenar("Guardar"); },
                          [&](QFileDialog& d) {
                            d.selectFile(Q(ruta));
                            d.findChild<QLineEdit*>("fileNameEdit")->setText(Q(ruta));
                            static_cast<QDialog&>(d).accept();
                          });
  ASSERT_TRUE(fs::exists(ruta));
  EXPECT_FALSE(sesion.Modificado());
  const auto guardado = sesion.Caso().Clonar();
  Ordenar("Nuevo");
  ASSERT_FALSE(MismosRegistros(sesion.Caso(), *guardado));
  ASSERT_TRUE(ventana->Abrir(ruta));
  // El fichero redondea los números a sus decimales: la segunda vuelta es exacta.
  const auto leido = sesion.Caso().Clonar();
  EXPECT_EQ(sesion.Caso().GetComposicion(ranura::MuroExt1).capas.size(), 3U);
  EXPECT_EQ(sesion.Caso().NumeroSistemas(), sistemas + 1);
  EsperarVivo();
  EXPECT_EQ(Letra(), letra);
  sesion.Guardar();
  ASSERT_TRUE(ventana->Abrir(ruta));
  EXPECT_TRUE(MismosRegistros(sesion.Caso(), *leido));
  EXPECT_TRUE(mensajes.recibidos.empty()) << mensajes.recibidos[0].texto;
}

constexpr const char* kCarpetaHijo = "NOVEX_PRUEBA_COPIAS";

// El programa que se cae: edita, espera a su copia y muere. Lo arranca la prueba siguiente.
TEST_F(VentanaTest, DISABLED_ElHijoQueSeCae) {
  const fs::path copias = qEnvironmentVariable(kCarpetaHijo).toStdString();
  ASSERT_FALSE(copias.empty());
  ventana = std::make_unique<TForm1>(sesion, mensajes, copias);
  ASSERT_TRUE(ventana->Abrir(Ejemplo("piso_C2.xml")));
  ventana->Contexto().Editar("título", [](Edificio& e) {
    DatosGenerales g = e.GetDatosGenerales();
    g.Edificio_Titulo = "a medias";
    e.SetDatosGenerales(g);
  });
  // Como mucho cinco segundos después de la última edición.
  if (QTest::qWaitFor([&] { return fs::exists(Recuperacion(copias).Fichero()); }, 5000))
    std::raise(SIGKILL);
}

TEST_F(VentanaTest, TrasUnaCaidaSeOfreceLoQueNoSeGuardo) {
  const fs::path copias = carpeta / "caida";
  QProcess hijo;
  auto entorno = QProcessEnvironment::systemEnvironment();
  entorno.insert(kCarpetaHijo, Q(copias));
  hijo.setProcessEnvironment(entorno);
  hijo.start(QApplication::applicationFilePath(),
             {"--gtest_also_run_disabled_tests", "--gtest_filter=*ElHijoQueSeCae"});
  ASSERT_TRUE(hijo.waitForFinished(60000));
  ASSERT_EQ(hijo.exitStatus(), QProcess::CrashExit);
  mensajes.respuesta = true;
  ventana = std::make_unique<TForm1>(sesion, mensajes, copias);
  ventana->OfrecerRecuperado();
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_NE(mensajes.recibidos[0].texto.find("piso_C2.xml"), std::string::npos);
  EXPECT_EQ(sesion.Caso().GetDatosGenerales().Edificio_Titulo, "a medias");
  EXPECT_TRUE(sesion.Modificado());
  EXPECT_EQ(sesion.Fichero().filename(), "piso_C2.xml");
  // Recuperado, no se ofrece otra vez.
  mensajes.recibidos.clear();
  ventana->OfrecerRecuperado();
  EXPECT_TRUE(mensajes.recibidos.empty());
}

}  // namespace
}  // namespace novex::gui::pruebas
