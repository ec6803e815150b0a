#pragma once

#include <QScrollArea>
#include <QVBoxLayout>
#include <vector>

#include "shell/gui/VistaTabla.h"

namespace novex::gui {

/// Varias tablas de resultados, una bajo otra.
class VistaTablas : public QScrollArea {
  Q_OBJECT

 public:
  explicit VistaTablas(QWidget* padre = nullptr);
  /// Enseña unas tablas. Las que ya había se aprovechan: conservan sus anchos y el desplazamiento.
  void Poner(const std::vector<Tabla>& tablas);

 private:
  QVBoxLayout* columna_;
  std::vector<VistaTabla*> vistas_;
};

}  // namespace novex::gui
