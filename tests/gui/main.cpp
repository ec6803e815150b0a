#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "shell/gui/Estilo.h"

namespace {

// Un aviso de Qt es un fallo de la página que lo provoca.
void Apuntar(QtMsgType tipo, const QMessageLogContext&, const QString& texto) {
  if (tipo == QtDebugMsg || tipo == QtInfoMsg) return;
  // La plataforma sin pantalla no los admite, y no son de las páginas.
  if (texto.contains("propagateSizeHints") || texto.contains("XDG_RUNTIME_DIR")) return;
  if (texto.startsWith("This plugin does not support")) return;
  ADD_FAILURE() << "Qt: " << texto.toStdString();
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QStandardPaths::setTestModeEnabled(true);
  QApplication aplicacion(argc, argv);
  QApplication::setOrganizationName("novex");
  QApplication::setApplicationName("novex-pruebas");
  // Dos pruebas a la vez no se pisan los ajustes.
  const QTemporaryDir ajustes;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ajustes.path());
  novex::gui::PonerEstilo(aplicacion);
  qInstallMessageHandler(Apuntar);
  return RUN_ALL_TESTS();
}
