#pragma once

#include <QChart>
#include <QComboBox>
#include <QLabel>
#include <QWidget>

#include "shell/gui/ContextoGui.h"

namespace novex::gui {

/// Gráfica del porcentaje de sombra que los obstáculos lejanos dan a una fachada, que se elige, por
/// horas y de diciembre a junio.
class GraficaSombra : public QWidget {
  Q_OBJECT

 public:
  GraficaSombra(ContextoGui& contexto, Sector fachada, QWidget* padre);
  const QChart& Grafica() const { return *grafica_; }
  /// Enseña la sombra con los obstáculos que tiene el caso activo.
  void Refrescar();

 private:
  void CrearSeries();

  ContextoGui& contexto_;
  QChart* grafica_;
  QComboBox* fachada_;
  QLabel* nota_;
};

}  // namespace novex::gui
