#include "shell/gui/VistaTablas.h"

namespace novex::gui {

VistaTablas::VistaTablas(QWidget* padre) : QScrollArea(padre) {
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  auto* hoja = new QWidget;
  columna_ = new QVBoxLayout(hoja);
  columna_->setContentsMargins(0, 0, 8, 8);
  columna_->setSpacing(12);
  columna_->addStretch(1);
  setWidget(hoja);
}

void VistaTablas::Poner(const std::vector<Tabla>& tablas) {
  while (vistas_.size() > tablas.size()) {
    delete vistas_.back();
    vistas_.pop_back();
  }
  while (vistas_.size() < tablas.size()) {
    vistas_.push_back(new VistaTabla(widget()));
    columna_->insertWidget(static_cast<int>(vistas_.size()) - 1, vistas_.back());
  }
  for (std::size_t i = 0; i < tablas.size(); ++i) vistas_[i]->Poner(tablas[i]);
}

}  // namespace novex::gui
