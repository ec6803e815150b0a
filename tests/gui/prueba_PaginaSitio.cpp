#include <QCheckBox>
#include <QComboBox>
#include <QLineSeries>
#include <QListView>
#include <QTabWidget>

#include "gui/VentanaPrueba.h"
#include "shell/gui/GraficaSombra.h"
#include "shell/gui/RosaObstaculos.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui::pruebas {
namespace {

// Un proyecto nuevo, en Valencia: zona B3 y 6 m.
class PaginaSitioTest : public VentanaTest {
 protected:
  PaginaSitioTest() {
    ventana->Mostrar(Destino::Global);
    Activar();
  }
  const Localizacion& Lugar() const { return sesion.Caso().GetLocalizacion(); }
  void Elegir(const char* direccion, int posicion) {
    auto* lista = Buscar<QComboBox>(direccion);
    ASSERT_NE(lista, nullptr);
    lista->setCurrentIndex(posicion);
    emit lista->activated(posicion);
  }
};

TEST_F(PaginaSitioTest, UnMunicipioSeEligeTecleandoYSeDeshace) {
  auto* municipio = Buscar<QLineEdit>("Municipio");
  Teclear(municipio, "avila");
  EXPECT_EQ(Lugar().Municipio, "Ávila");
  EXPECT_EQ(Lugar().ZonaClimatica, "E1");
  EXPECT_EQ(Buscar<QComboBox>("Provincia")->currentText(), Q(Lugar().Provincia));
  EXPECT_EQ(municipio->text(), "Ávila");
  sesion.Deshacer();
  emit ventana->Contexto().ProyectoCambiado();
  EXPECT_EQ(Lugar().ZonaClimatica, "B3");
  EXPECT_EQ(municipio->text(), "Valencia");
}

TEST_F(PaginaSitioTest, DeLaListaSeEligeConLasFlechas) {
  auto* municipio = Buscar<QLineEdit>("Municipio");
  municipio->setFocus();
  municipio->selectAll();
  QTest::keyClicks(municipio, "villanueva del ari");
  QWidget* lista = QApplication::activePopupWidget();
  ASSERT_NE(lista, nullptr);
  QTest::keyClick(lista, Qt::Key_Down);
  QTest::keyClick(lista, Qt::Key_Return);
  EXPECT_EQ(Lugar().Municipio, "Villanueva del Ariscal");
  EXPECT_EQ(Lugar().Provincia, "Sevilla");
  // Otra provincia acota: el Villanueva que se teclea es el de ella.
  auto* provincia = Buscar<QComboBox>("Provincia");
  const int huesca = provincia->findText("Huesca");
  provincia->setCurrentIndex(huesca);
  emit provincia->activated(huesca);
  EXPECT_EQ(Lugar().Provincia, "Sevilla");  // hasta que se elige el municipio
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  Teclear(municipio, "jaca");
  EXPECT_EQ(Lugar().Municipio, "Jaca");
}

// Con el ratón: volver a elegir la provincia que hay enseña sus municipios.
TEST_F(PaginaSitioTest, SeEligeSinTeclear) {
  auto* provincia = Buscar<QComboBox>("Provincia");
  emit provincia->activated(provincia->currentIndex());
  auto* lista = qobject_cast<QListView*>(QApplication::activePopupWidget());
  ASSERT_NE(lista, nullptr);
  ASSERT_GT(lista->model()->rowCount(), 200);  // la provincia tiene 266
  const QModelIndex segundo = lista->model()->index(1, 0);
  const QString texto = segundo.data().toString();
  QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualRect(segundo).center());
  EXPECT_EQ(Lugar().Provincia, "Valencia/València");
  EXPECT_TRUE(texto.startsWith(Q(Lugar().Municipio) + "  ·"));
  EXPECT_NE(Lugar().Municipio, "Valencia");
}

TEST_F(PaginaSitioTest, UnNombreQueNoBastaNoCambiaNada) {
  auto* municipio = Buscar<QLineEdit>("Municipio");
  const auto aviso = [&] {
    for (const auto* texto : municipio->parentWidget()->findChildren<QLabel*>())
      if (texto->property("papel") == "aviso" && texto->isVisible() &&
          texto->text().contains("municipio"))
        return texto->text();
    return QString();
  };
  Teclear(municipio, "villanueva");
  EXPECT_TRUE(aviso().contains("elija uno de la lista")) << aviso().toStdString();
  Teclear(municipio, "xqz");
  EXPECT_TRUE(aviso().contains("«xqz»")) << aviso().toStdString();
  EXPECT_FALSE(sesion.Modificado());
  Buscar<QLineEdit>("asnm")->setFocus();
  EXPECT_EQ(municipio->text(), "Valencia");
}

TEST_F(PaginaSitioTest, LaAltitudDaLaZonaHastaQueSeFija) {
  auto* altitud = Buscar<QLineEdit>("asnm");
  auto* fijar = Buscar<QCheckBox>("Cambio_zona_temperatura");
  auto* zona = Buscar<QComboBox>("ZonaClimatica");
  Teclear(altitud, "900");
  EXPECT_EQ(Lugar().ZonaClimatica, "D2");  // Valencia, de 500 a 950 m
  EXPECT_FALSE(zona->isVisible());
  fijar->click();
  EXPECT_TRUE(zona->isVisible());
  Elegir("ZonaClimatica", zona->findText("A4"));
  Teclear(altitud, "2000");
  EXPECT_EQ(Lugar().ZonaClimatica, "A4");
  fijar->click();
  EXPECT_EQ(Lugar().ZonaClimatica, "E1");
  Teclear(altitud, "4001");  // no se admite: vale 0 m
  EXPECT_EQ(Lugar().asnm, 0);
  EXPECT_EQ(Lugar().ZonaClimatica, "B3");
}

TEST_F(PaginaSitioTest, ClimaYVerano) {
  Elegir("JuegoClima", Buscar<QComboBox>("JuegoClima")->findText("2022"));
  EXPECT_EQ(sesion.Caso().GetDatosGenerales().CodigoPostal, "-2022");
  Elegir("JuegoClima", 0);
  EXPECT_EQ(sesion.Caso().GetDatosGenerales().CodigoPostal, "");
  Elegir("mesmin", 13);
  EXPECT_EQ(Lugar().mesmin, 13);
  EXPECT_FALSE(Lugar().EsVerano(7));
}

// Los obstáculos están con el edificio, y de una página se pasa a la otra.
TEST_F(PaginaSitioTest, ElEntornoSeDefineConElEdificio) {
  emit Buscar<QLabel>("irAEntorno")->linkActivated("#");
  ASSERT_EQ(ventana->Mostrada(), Destino::Edificio);
  auto* pestanas = ventana->PaginaDe(Destino::Edificio)->findChild<QTabWidget*>();
  EXPECT_EQ(pestanas->tabText(pestanas->currentIndex()), "CiudadEntorno");
  ventana->Contexto().Editar("suelo",
                             [](Edificio& e) { e.GetRecinto(0).Suelo_al_terreno_m2[0] = 100; });
  const auto* sombra = pestanas->findChild<GraficaSombra*>();
  const auto mediodia = [&](int mes) {
    return static_cast<QLineSeries*>(sombra->Grafica().series()[mes])->at(11).y();
  };
  EXPECT_EQ(mediodia(0), 0);
  Teclear(Buscar<QLineEdit>("Sur_Altura"), "12");
  Teclear(Buscar<QLineEdit>("Sur_Distancia"), "abc");  // vale 50 m
  EXPECT_EQ(sesion.Caso().GetObstaculosRemotos().Sur_Altura, 12);
  EXPECT_EQ(sesion.Caso().GetObstaculosRemotos().Sur_Distancia, 50);
  EXPECT_EQ(mediodia(0), 0);  // a 50 m, 13°: en diciembre el sol está a 27°
  Teclear(Buscar<QLineEdit>("Sur_Distancia"), "0");
  EXPECT_EQ(mediodia(0), 100);  // pegado y más alto que la planta de 3 m
  emit Buscar<QLabel>("lugar")->linkActivated("#");
  EXPECT_EQ(ventana->Mostrada(), Destino::Global);
  EXPECT_NEAR(ElevacionObstaculo(12, 12), 45, 1e-9);
  EXPECT_EQ(ElevacionObstaculo(0, 0), 0);
  EXPECT_NEAR(ElevacionObstaculo(3, 0), 90, 1e-9);
}

}  // namespace
}  // namespace novex::gui::pruebas
