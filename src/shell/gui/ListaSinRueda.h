#pragma once

#include <QComboBox>
#include <QWheelEvent>

namespace novex::gui {

/// Una lista a la que la rueda que pasa por encima no cambia: hace falta que tenga el foco.
class ListaSinRueda : public QComboBox {
 public:
  explicit ListaSinRueda(QWidget* padre) : QComboBox(padre) { setFocusPolicy(Qt::StrongFocus); }

 protected:
  void wheelEvent(QWheelEvent* evento) override {
    if (hasFocus())
      QComboBox::wheelEvent(evento);
    else
      evento->ignore();
  }
};

}  // namespace novex::gui
