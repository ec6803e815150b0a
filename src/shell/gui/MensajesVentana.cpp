#include "shell/gui/MensajesVentana.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

// Un aviso a mitad de un cálculo se contesta con el puntero de siempre, no con el de espera.
int Contestar(QMessageBox& caja) {
  const bool espera = QApplication::overrideCursor() != nullptr;
  if (espera) QApplication::setOverrideCursor(Qt::ArrowCursor);
  const int respuesta = caja.exec();
  if (espera) QApplication::restoreOverrideCursor();
  return respuesta;
}

}  // namespace

void MensajesVentana::Avisar(const std::string& titulo, const std::string& texto) {
  QMessageBox caja(QMessageBox::NoIcon, Q(titulo), Q(texto), QMessageBox::Ok, padre_);
  caja.button(QMessageBox::Ok)->setText(QObject::tr("Aceptar"));
  Contestar(caja);
}

bool MensajesVentana::Preguntar(const std::string& titulo, const std::string& texto) {
  QMessageBox caja(QMessageBox::Question, Q(titulo), Q(texto), QMessageBox::Yes | QMessageBox::No,
                   padre_);
  caja.button(QMessageBox::Yes)->setText(QObject::tr("Sí"));
  caja.button(QMessageBox::No)->setText(QObject::tr("No"));
  return Contestar(caja) == QMessageBox::Yes;
}

}  // namespace novex::gui
