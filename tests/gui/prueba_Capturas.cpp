#include <QComboBox>
#include <QTabWidget>

#include "gui/VentanaPrueba.h"

namespace novex::gui::pruebas {
namespace {

// Capturas de todas las páginas con un ejemplo abierto, para el manual. Las hace
// scripts/capturas.sh, que da la carpeta en NOVEX_CAPTURAS.
TEST_F(VentanaTest, Capturas) {
  const QString destino = qEnvironmentVariable("NOVEX_CAPTURAS");
  if (destino.isEmpty()) GTEST_SKIP() << "sin NOVEX_CAPTURAS";
  const QString ejemplo = qEnvironmentVariable("NOVEX_CAPTURAS_EJEMPLO");
  ASSERT_TRUE(ventana->Abrir(
      Ejemplo(ejemplo.isEmpty() ? "vivienda_unifamiliar_D3.xml" : ejemplo.toStdString())));
  EsperarVivo();
  const auto guardar = [&](const QString& nombre) {
    QTest::qWait(50);
    EXPECT_TRUE(ventana->grab().save(destino + "/" + nombre + ".png")) << nombre.toStdString();
  };
  constexpr std::array kNombres = {"titulo",        "global",      "edificio", "instalaciones",
                                   "certificacion", "comparacion", "he",       "definicion"};
  for (std::size_t i = 0; i < kNombres.size(); ++i) {
    ventana->Mostrar(static_cast<Destino>(i));
    auto* pestanas = ventana->PaginaDe(static_cast<Destino>(i))->findChild<QTabWidget*>();
    const int cuantas = pestanas == nullptr ? 1 : pestanas->count();
    for (int p = 0; p < cuantas; ++p) {
      if (pestanas != nullptr) pestanas->setCurrentIndex(p);
      guardar(QString(kNombres[i]) +
              (pestanas == nullptr ? QString()
                                   : "_" + pestanas->tabText(p).toLower().replace(' ', '_')));
    }
  }
}

}  // namespace
}  // namespace novex::gui::pruebas
