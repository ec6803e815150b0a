#include "gui/VentanaPrueba.h"

#include <QAction>
#include <algorithm>

namespace novex::gui::pruebas {

VentanaTest::VentanaTest(const std::filesystem::path& programa)
    : ficheros(EspacioTrabajo{programa}) {
  ventana = std::make_unique<TForm1>(sesion, mensajes, carpeta / "copias");
  ventana->resize(1366, 768);
  ventana->show();
}

// La plataforma sin pantalla puede olvidar la primera petición tras cerrarse otra ventana.
void VentanaTest::Activar() {
  for (int i = 0; i < 250 && !ventana->isActiveWindow(); ++i) {
    ventana->activateWindow();
    QTest::qWait(20);
  }
  EXPECT_TRUE(ventana->isActiveWindow());
}

void VentanaTest::EsperarVivo() {
  for (int i = 0; i < 1000 && ventana->Panel().Ocupado(); ++i) QTest::qWait(20);
}

void VentanaTest::Teclear(QLineEdit* linea, const QString& texto) {
  linea->setFocus();
  linea->selectAll();
  QTest::keyClicks(linea, texto);
  QTest::keyClick(linea, Qt::Key_Return);
}

void VentanaTest::Ordenar(const QString& texto) {
  for (QAction* orden : ventana->findChildren<QAction*>())
    if (orden->text() == texto) return orden->trigger();
  ADD_FAILURE() << "no hay orden " << texto.toStdString();
}

CopiaPrograma::CopiaPrograma() {
  const std::filesystem::path origen = NOVEX_PROGRAMA_PRUEBAS;
  for (const auto& entrada : std::filesystem::directory_iterator(origen))
    if (entrada.path().filename() != "database")
      std::filesystem::create_symlink(entrada.path(),
                                      programa / entrada.path().filename().string());
  std::filesystem::copy(
      origen / "database", programa / "database",
      std::filesystem::copy_options::recursive | std::filesystem::copy_options::copy_symlinks);
}

bool GuardarCaptura(QWidget& ventana, const QString& ruta) {
  const QImage imagen = ventana.grab().toImage().convertToFormat(QImage::Format_RGB888);
  return imagen.save(ruta, "PNG", 0);
}

std::filesystem::path Ejemplo(const std::string& nombre) {
  return std::filesystem::path(NOVEX_RAIZ_DATOS) / "proyectos" / nombre;
}

std::vector<std::filesystem::path> Ejemplos() {
  std::vector<std::filesystem::path> rutas;
  for (const auto& f :
       std::filesystem::directory_iterator(std::filesystem::path(NOVEX_RAIZ_DATOS) / "proyectos"))
    rutas.push_back(f.path());
  std::sort(rutas.begin(), rutas.end());
  return rutas;
}

}  // namespace novex::gui::pruebas
