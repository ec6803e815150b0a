#include "shell/gui/MensajesVentana.h"

#include <QAbstractButton>
#include <QMessageBox>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

void MensajesVentana::Avisar(const std::string& titulo, const std::string& texto) {
  QMessageBox caja(QMessageBox::NoIcon, Q(titulo), Q(texto), QMessageBox::Ok, padre_);
  caja.button(QMessageBox::Ok)->setText(QObject::tr("Aceptar"));
  caja.exec();
}

bool MensajesVentana::Preguntar(const std::string& titulo, const std::string& texto) {
  QMessageBox caja(QMessageBox::Question, Q(titulo), Q(texto), QMessageBox::Yes | QMessageBox::No,
                   padre_);
  caja.button(QMessageBox::Yes)->setText(QObject::tr("Sí"));
  caja.button(QMessageBox::No)->setText(QObject::tr("No"));
  return caja.exec() == QMessageBox::Yes;
}

}  // namespace novex::gui
