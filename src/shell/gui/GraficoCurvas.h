#pragma once

#include <QtCharts/QChartView>

#include "entry/HojaCurvas.h"

namespace novex::gui {

/// El gráfico de un grupo de curvas, con los colores del escritorio.
class GraficoCurvas : public QChartView {
  Q_OBJECT

 public:
  GraficoCurvas(const QString& titulo, const QString& variable, QWidget* padre = nullptr);
  void Poner(const std::vector<LineaCurva>& lineas);

 private:
  QString variable_;
};

}  // namespace novex::gui
