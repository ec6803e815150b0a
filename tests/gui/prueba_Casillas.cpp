#include <QCheckBox>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>

#include "files/AccesoCampos.h"
#include "gui/VentanaPrueba.h"

namespace novex::gui::pruebas {
namespace {

class CasillasTest : public VentanaTest {
 protected:
  std::string Valor(const std::string& direccion) {
    return LectorCampos(sesion.Caso()).Valor(direccion).value_or("");
  }
  // Marca y desmarca cada casilla que se ve y que está enlazada con un campo.
  void Pulsar(Pagina* pagina) {
    for (auto* casilla : pagina->findChildren<QCheckBox*>()) {
      const std::string direccion = casilla->objectName().toStdString();
      if (!casilla->isVisible() || !BuscarDatosCampo(direccion)) continue;
      SCOPED_TRACE(direccion);
      ++pulsadas;
      const std::string antes = Valor(direccion);
      const bool marcada = casilla->isChecked();
      casilla->click();
      EXPECT_NE(Valor(direccion), antes);
      EXPECT_EQ(casilla->isChecked(), !marcada);
      casilla->click();
      EXPECT_EQ(Valor(direccion), antes);
      EXPECT_EQ(casilla->isChecked(), marcada);
    }
  }
  void PulsarTodas() {
    for (int i = 0; i <= static_cast<int>(Destino::Definicion); ++i) {
      const auto destino = static_cast<Destino>(i);
      if (destino == Destino::Certificacion || destino == Destino::Comparacion ||
          destino == Destino::HE)
        continue;
      ventana->Mostrar(destino);
      Pagina* pagina = ventana->PaginaDe(destino);
      auto* pestanas = pagina->findChild<QTabWidget*>();
      for (int p = 0; p < (pestanas == nullptr ? 1 : pestanas->count()); ++p) {
        if (pestanas != nullptr) pestanas->setCurrentIndex(p);
        Pulsar(pagina);
      }
    }
  }
  int pulsadas = 0;
};

// Una casilla cuyos textos no son los del campo no guardaría nada.
TEST_F(CasillasTest, CadaCasillaCambiaSuCampoYVuelve) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("casa_antigua_E1.xml")));
  ventana->Mostrar(Destino::Instalaciones);
  auto* arbol = ventana->PaginaDe(Destino::Instalaciones)->findChild<QTreeWidget*>("LVSistemas");
  arbol->setCurrentItem(arbol->topLevelItem(arbol->topLevelItemCount() - 1));  // fotovoltaica
  PulsarTodas();
  ASSERT_TRUE(sesion.DuplicarCaso());
  emit ventana->Contexto().ProyectoCambiado();
  ventana->Mostrar(Destino::Definicion);
  Pulsar(ventana->PaginaDe(Destino::Definicion));
  // 13 intervenciones, 9 condiciones, la zona, las renovaciones, la fotovoltaica y los equipos.
  EXPECT_GE(pulsadas, 26);
}

// El punto de un editor que más se aparta de su fondo.
int Contraste(QWidget& editor, const QPalette& paleta) {
  editor.setPalette(paleta);
  editor.resize(60, 24);
  const QImage imagen = editor.grab().toImage();
  const int fondo = paleta.color(QPalette::Window).lightness();
  int mayor = 0;
  for (int y = 0; y < imagen.height(); ++y)
    for (int x = 0; x < imagen.width(); ++x)
      mayor = std::max(mayor, std::abs(imagen.pixelColor(x, y).lightness() - fondo));
  return mayor;
}

TEST(CasillasSinMarcar, SeVenTambienConFondoOscuro) {
  QCheckBox casilla;
  QRadioButton opcion;
  QPalette oscura(QColor(50, 53, 57), QColor(36, 39, 42));
  oscura.setColor(QPalette::Base, QColor(30, 32, 35));
  EXPECT_GT(Contraste(casilla, oscura), 80);
  EXPECT_GT(Contraste(opcion, oscura), 80);
}

}  // namespace
}  // namespace novex::gui::pruebas
