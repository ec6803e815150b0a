#include <QComboBox>
#include <QPixmap>
#include <QPushButton>
#include <QTabWidget>

#include "gui/VentanaPrueba.h"
#include "shell/gui/MarcoImagen.h"
#include "shell/gui/RejillaTextos.h"

namespace novex::gui::pruebas {
namespace {

class PaginaAdministrativaTest : public VentanaTest {
 protected:
  PaginaAdministrativaTest() {
    EXPECT_TRUE(ventana->Abrir(Ejemplo("vivienda_unifamiliar_D3.xml")));
    ventana->Mostrar(Destino::Global);
    ventana->PaginaDe(Destino::Global)->findChild<QTabWidget*>()->setCurrentIndex(3);
  }
  const DatosPantalla& Pantalla() const { return sesion.Caso().GetDatosPantalla(); }
  void Elegir(const char* direccion, const char* texto) {
    auto* lista = Buscar<QComboBox>(direccion);
    ASSERT_NE(lista, nullptr);
    const int posicion = lista->findData(texto);
    lista->setCurrentIndex(posicion);
    emit lista->activated(posicion);
  }
};

TEST_F(PaginaAdministrativaTest, CadaCeldaDelCatastroDiceSiEsCorrecta) {
  auto* rejilla = Buscar<RejillaTextos>("SGCatastro");
  QTableWidget* tabla = rejilla->Tabla();
  ASSERT_EQ(tabla->rowCount(), 1);
  const auto juicio = [&](int columna) {
    return tabla->item(tabla->rowCount() - 1, columna)->toolTip().section('.', 0, 0);
  };
  EXPECT_EQ(juicio(1), "correcto");
  tabla->item(0, 1)->setText("12345A");
  EXPECT_EQ(Pantalla().referencias[0].Inmueble, "12345A");
  EXPECT_EQ(juicio(1), "incorrecto");
  Elegir("Registro", "BFA");
  EXPECT_EQ(tabla->horizontalHeaderItem(1)->text(), "Inmueble\n(4 nº)");
  tabla->item(0, 1)->setText("1234");
  EXPECT_EQ(juicio(1), "correcto");
  rejilla->findChild<QPushButton*>("AnadirFila")->click();
  ASSERT_EQ(Pantalla().referencias.size(), 2U);
  EXPECT_EQ(juicio(0), "incorrecto");
  rejilla->findChild<QPushButton*>("QuitarFila")->click();
  EXPECT_EQ(Pantalla().referencias.size(), 1U);
  EXPECT_EQ(Pantalla().referencias[0].Inmueble, "1234");
}

TEST_F(PaginaAdministrativaTest, LosInalterablesSonDeUnEdificioProtegido) {
  auto* rejilla = Buscar<RejillaTextos>("Inalterables");
  EXPECT_FALSE(rejilla->isVisible());
  Elegir("GradoProteccion", "Ambiental");
  EXPECT_TRUE(rejilla->isVisible());
  rejilla->findChild<QPushButton*>("AnadirFila")->click();
  rejilla->Tabla()->item(0, 0)->setText("Portal");
  rejilla->Tabla()->item(0, 1)->setText("De forja");
  ASSERT_EQ(Pantalla().inalterables.size(), 1U);
  EXPECT_EQ(Pantalla().inalterables[0], (ElementoInalterable{"Portal", "De forja"}));
}

TEST_F(PaginaAdministrativaTest, UnTextoSeGuardaYSeDeshaceSinQuitarLosResultados) {
  sesion.GestorParaCalcular().Activo().SetCalculo(std::make_shared<calculo>());
  Teclear(Buscar<QLineEdit>("Edificio_Titulo"), "Casa de la cuesta");
  EXPECT_EQ(sesion.Caso().GetDatosGenerales().Edificio_Titulo, "Casa de la cuesta");
  EXPECT_NE(sesion.Caso().GetCalculo(), nullptr);
  EXPECT_EQ(sesion.QueDeshace(), "Nombre del edificio");
  sesion.Deshacer();
  EXPECT_NE(sesion.Caso().GetDatosGenerales().Edificio_Titulo, "Casa de la cuesta");
}

TEST_F(PaginaAdministrativaTest, ElCertificadorNoSeAlmacenaIncompleto) {
  auto* movil = Buscar<QLineEdit>("Certificador_Movil");
  movil->setFocus();
  movil->selectAll();
  QTest::keyClick(movil, Qt::Key_Delete);
  QTest::keyClick(movil, Qt::Key_Return);
  ASSERT_EQ(sesion.Caso().GetDatosGenerales().Certificador_Movil, "");
  Buscar<QPushButton>("AlmacenarCertificador")->click();
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].titulo, "Atención.");
  EXPECT_EQ(mensajes.recibidos[0].texto, "No se almacena por existir algún campo en blanco");
}

TEST_F(PaginaAdministrativaTest, LaImagenEsDeTodosLosCasos) {
  sesion.DuplicarCaso();
  emit ventana->Contexto().ProyectoCambiado();
  auto* marco = Buscar<MarcoImagen>("ImagenPlano");
  const auto ruta = carpeta / "plano.png";
  QPixmap dibujo(30, 20);
  dibujo.fill(Qt::blue);
  ASSERT_TRUE(dibujo.save(QString::fromStdString(ruta.string())));
  marco->Tomar(ruta);
  for (const char* nombre : {"Viejo", "Mejora_1"})
    EXPECT_NE(sesion.Gestor().Caso(nombre)->GetDatosPantalla().Plano, nullptr) << nombre;
  marco->Tomar(carpeta / "no_existe.png");
  EXPECT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_NE(Pantalla().Plano, nullptr);  // sigue la que había
  marco->findChild<QPushButton*>("Borrar")->click();
  EXPECT_EQ(Pantalla().Plano, nullptr);
  sesion.Deshacer();
  EXPECT_NE(Pantalla().Plano, nullptr);
}

}  // namespace
}  // namespace novex::gui::pruebas
