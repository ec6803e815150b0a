#pragma once

#include <QChart>
#include <QComboBox>
#include <QDialog>
#include <QLabel>

#include "shell/gui/ContextoGui.h"

namespace novex::gui {

/// Gráfica del porcentaje de sombra que los obstáculos lejanos dan a una fachada, por horas, de
/// diciembre a junio.
class DialogoSombra : public QDialog {
  Q_OBJECT

 public:
  DialogoSombra(ContextoGui& contexto, Sector fachada, QWidget* padre);
  const QChart& Grafica() const { return *grafica_; }

 private:
  void CrearSeries();
  void Refrescar();

  ContextoGui& contexto_;
  QChart* grafica_;
  QComboBox* fachada_;
  QLabel* nota_;
};

}  // namespace novex::gui
