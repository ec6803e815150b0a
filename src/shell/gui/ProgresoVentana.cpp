#include "shell/gui/ProgresoVentana.h"

#include <QApplication>
#include <algorithm>

namespace novex::gui {

ProgresoVentana::ProgresoVentana(int esperaMs) : esperaMs_(esperaMs) {
  desde_.start();
}

ProgresoVentana::~ProgresoVentana() {
  delete panel_;
}

void ProgresoVentana::Avanzar(int porcentaje) {
  hecho_ = std::max(hecho_, std::min(porcentaje, 99));
  if (!panel_) {
    if (!desde_.hasExpired(esperaMs_)) return;
    panel_ = new QProgressDialog("Calculando, tardamos 15 segundos....................",
                                 QObject::tr("Cancelar"), 0, 100, QApplication::activeWindow());
    panel_->setObjectName("panelCalculo");
    panel_->setWindowTitle(QObject::tr("Cálculo"));
    panel_->setWindowModality(Qt::ApplicationModal);
    panel_->setMinimumDuration(0);
    panel_->setAutoClose(false);
    panel_->setAutoReset(false);
    panel_->show();
  }
  panel_->setValue(hecho_);
  QApplication::processEvents();
  if (!panel_ || panel_->wasCanceled()) throw CalculoCancelado();
}

}  // namespace novex::gui
