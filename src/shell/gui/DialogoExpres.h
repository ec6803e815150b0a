#pragma once

#include <QDialog>

#include "shell/gui/ContextoGui.h"

namespace novex::gui {

/// La definición exprés: un edificio entero a partir de unas pocas cifras, en un diálogo.
class DialogoExpres : public QDialog {
  Q_OBJECT

 public:
  explicit DialogoExpres(ContextoGui& contexto, QWidget* padre = nullptr);
};

}  // namespace novex::gui
