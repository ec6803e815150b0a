#include <QPushButton>
#include <QTabWidget>

#include "gui/VentanaPrueba.h"
#include "shell/gui/DialogoLectura.h"
#include "shell/gui/TImpresor.h"

namespace novex::gui::pruebas {
namespace {

// El título de una pestaña como nombre de fichero.
QString EnAscii(const QString& titulo) {
  QString nombre;
  for (const QChar c : titulo.toLower().normalized(QString::NormalizationForm_D))
    if (c.unicode() < 128) nombre += c.isLetterOrNumber() ? c : QChar('_');
  return nombre;
}

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
    EXPECT_TRUE(GuardarCaptura(*ventana, destino + "/" + nombre + ".png")) << nombre.toStdString();
  };
  constexpr std::array kNombres = {"titulo",        "global",      "edificio", "instalaciones",
                                   "certificacion", "comparacion", "he",       "definicion"};
  for (std::size_t i = 0; i < kNombres.size(); ++i) {
    ventana->Mostrar(static_cast<Destino>(i));
    auto* pestanas = ventana->PaginaDe(static_cast<Destino>(i))->findChild<QTabWidget*>();
    // Con un caso solo no hay con qué comparar: su captura va al final.
    if (static_cast<Destino>(i) == Destino::Comparacion) continue;
    const int cuantas = pestanas == nullptr ? 1 : pestanas->count();
    for (int p = 0; p < cuantas; ++p) {
      if (pestanas != nullptr && !pestanas->isTabVisible(p)) continue;
      if (pestanas != nullptr) pestanas->setCurrentIndex(p);
      const QString nombre =
          QString(kNombres[i]) + (pestanas == nullptr ? "" : "_" + EnAscii(pestanas->tabText(p)));
      guardar(nombre);
      // Las pestañas que una pestaña lleva dentro.
      auto* dentro = pestanas == nullptr ? nullptr : pestanas->widget(p)->findChild<QTabWidget*>();
      for (int d = 1; dentro != nullptr && d < dentro->count(); ++d) {
        dentro->setCurrentIndex(d);
        guardar(nombre + "_" + EnAscii(dentro->tabText(d)));
      }
    }
  }
  ventana->Mostrar(Destino::Certificacion);
  ConDialogo<TImpresor>([&] { Ordenar("Imprimir"); },
                        [&](TImpresor& d) {
                          EXPECT_TRUE(GuardarCaptura(d, destino + "/impresor.png"));
                          for (auto* boton : d.findChildren<QPushButton*>())
                            if (boton->isVisible() && !boton->icon().isNull() && !d.Ocupado())
                              boton->click();
                          for (int i = 0; i < 3000 && d.Ocupado(); ++i) QTest::qWait(20);
                          // Ninguna carpeta de la máquina en una imagen del manual.
                          for (auto* texto : d.findChildren<QLabel*>())
                            if (texto->text().startsWith('/'))
                              texto->setText("vivienda_unifamiliar_D3.pdf");
                          QTest::qWait(50);
                          EXPECT_TRUE(GuardarCaptura(d, destino + "/impresor_documento.png"));
                        });
  sesion.DuplicarCaso();
  sesion.Editar("U", [](Edificio& e) {
    for (const std::size_t cual : {ranura::MuroExt1, ranura::TechoExt1, ranura::SueloTerr1})
      e.GetComposicion(cual).U *= 0.5F;
  });
  emit ventana->Contexto().ProyectoCambiado();
  ventana->Mostrar(Destino::Comparacion);
  EsperarVivo();
  guardar("comparacion");
  sesion.Guardar();
  ASSERT_TRUE(
      ventana->Abrir(std::filesystem::path(NOVEX_RAIZ_PRUEBAS) / "casos/antiguos/v4_2.xml"));
  QTest::qWait(50);
  EXPECT_TRUE(
      GuardarCaptura(*ventana->findChild<DialogoLectura*>(), destino + "/proyecto_antiguo.png"));
}

}  // namespace
}  // namespace novex::gui::pruebas
