#pragma once

#include <QDialog>

namespace novex::gui {

/// Qué es el programa: para qué sirve, en qué se basa y qué versión es. No cambia nada.
class DialogoAcerca : public QDialog {
  Q_OBJECT

 public:
  explicit DialogoAcerca(QWidget* padre = nullptr);
};

}  // namespace novex::gui
