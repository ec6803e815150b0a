#include <QApplication>
#include <QMessageBox>
#include <QTranslator>
#include <iostream>

#include "base/ErrorFichero.h"
#include "shell/gui/Estilo.h"
#include "shell/gui/MensajesVentana.h"
#include "shell/gui/TForm1.h"
#include "shell/gui/TextoQt.h"

namespace {

using namespace novex;

std::filesystem::path CarpetaPrograma() {
  return BuscarCarpetaPrograma(
      std::filesystem::path(QCoreApplication::applicationFilePath().toStdString()));
}

int Ejecutar(const std::optional<QString>& proyecto, gui::MensajesVentana& mensajes) {
  const std::filesystem::path programa = CarpetaPrograma();
  if (programa.empty()) {
    mensajes.Avisar("AVISO", "No se encuentra la carpeta de programa");
    return EXIT_FAILURE;
  }
  FicherosPrograma ficheros(EspacioTrabajo{programa});
  SesionProyecto sesion(ficheros, mensajes);
  gui::TForm1 ventana(sesion, mensajes, CarpetaRecuperacion());
  mensajes.PonerPadre(&ventana);
  ventana.showMaximized();
  ventana.OfrecerRecuperado();
  if (proyecto) ventana.Abrir(proyecto->toStdString());
  const int salida = QApplication::exec();
  mensajes.PonerPadre(nullptr);
  return salida;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication aplicacion(argc, argv);
  QApplication::setApplicationName("novex");
  QApplication::setOrganizationName("novex");
  gui::PonerEstilo(aplicacion);
  gui::MensajesVentana mensajes;
  const QStringList argumentos = QApplication::arguments();
  if (argumentos.size() > 2) {
    mensajes.Avisar("AVISO", "Mal uso");
    return EXIT_FAILURE;
  }
  try {
    return Ejecutar(argumentos.size() == 2 ? std::optional(argumentos[1]) : std::nullopt, mensajes);
  } catch (const ErrorFichero& error) {
    // Un fichero de la carpeta de programa: sin él no hay ventana.
    mensajes.PonerPadre(nullptr);
    mensajes.Avisar("AVISO", error.what());
    return gui::kXmlErroneo;
  }
}
