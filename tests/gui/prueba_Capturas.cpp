#include <QPushButton>
#include <QTabWidget>

#include "gui/VentanaPrueba.h"
#include "shell/gui/TImpresor.h"

namespace novex::gui::pruebas {
namespace {

// Capturas de todas las páginas con un ejemplo abierto, para el manual. Las hace
// scripts/capturas.sh, que da la carpeta en NOVEX_CAPTURAS.
TEST_F(VentanaTest, Capturas) {
  const QString destino = qEnvironmentVariable("NOVEX_CAPTURAS");
  if (destino.isEmpty()) GTEST_SKIP() << "sin NOVEX_CAPTURAS";
  const QString ejemplo = qEnvironmentVariable("NOVEX_CAPTURAS_EJEMPLO");
  const std::string proyecto =
      ejemplo.isEmpty() ? "vivienda_unifamiliar_D3.xml" : ejemplo.toStdString();
  std::filesystem::copy_file(Ejemplo(proyecto), carpeta / proyecto);  // el documento va a su lado
  ASSERT_TRUE(ventana->Abrir(carpeta / proyecto));
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
      // Las pestañas que una pestaña lleva dentro.
      auto* dentro = pestanas == nullptr ? nullptr : pestanas->widget(p)->findChild<QTabWidget*>();
      for (int d = 1; dentro != nullptr && d < dentro->count(); ++d) {
        dentro->setCurrentIndex(d);
        guardar(QString("%1_%2_%3").arg(kNombres[i]).arg(p).arg(d));
      }
    }
  }
  ventana->Mostrar(Destino::Certificacion);
  ConDialogo<TImpresor>([&] { Ordenar("Imprimir"); },
                        [&](TImpresor& d) {
                          EXPECT_TRUE(d.grab().save(destino + "/impresor.png"));
                          for (auto* boton : d.findChildren<QPushButton*>())
                            if (boton->isVisible() && !boton->icon().isNull() && !d.Ocupado())
                              boton->click();
                          for (int i = 0; i < 3000 && d.Ocupado(); ++i) QTest::qWait(20);
                          QTest::qWait(50);
                          EXPECT_TRUE(d.grab().save(destino + "/impresor_documento.png"));
                        });
}

}  // namespace
}  // namespace novex::gui::pruebas
