#pragma once
#include <QDialog>
#include "shell/gui/ContextoGui.h"
namespace novex::gui {
class TbdEquipos : public QDialog {
  Q_OBJECT
 public:
  TbdEquipos(ContextoGui& c, std::size_t, QWidget* padre = nullptr) : QDialog(padre), c_(c) {}

 private:
  ContextoGui& c_;
};
}  // namespace novex::gui
