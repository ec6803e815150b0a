#pragma once

#include <QDialog>

#include "shell/gui/GraficaSombra.h"

namespace novex::gui {

/// La sombra de los obstáculos lejanos, desde los huecos.
class DialogoSombra : public QDialog {
  Q_OBJECT

 public:
  /// \param fachada la que se enseña primero
  DialogoSombra(ContextoGui& contexto, Sector fachada, QWidget* padre);
  const QChart& Grafica() const { return grafica_->Grafica(); }

 private:
  GraficaSombra* grafica_;
};

}  // namespace novex::gui
