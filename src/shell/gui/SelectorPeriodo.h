#pragma once

#include <QComboBox>
#include <QToolButton>
#include <QWidget>

#include "outputs/PeriodoSerie.h"

namespace novex::gui {

/// Elige la parte del año que se mira: el año, un mes, una semana o un día. Con las flechas se pasa
/// a la siguiente o a la anterior.
class SelectorPeriodo : public QWidget {
  Q_OBJECT

 public:
  explicit SelectorPeriodo(QWidget* padre = nullptr);
  PeriodoSerie Periodo() const;

 signals:
  void Cambiado();

 private:
  QComboBox* Lista(const char* nombre, const QString& ayuda);
  QToolButton* Flecha(Qt::ArrowType flecha, const QString& ayuda, int pasos);
  void Mover(int pasos);
  void Ajustar();

  QComboBox *tipo_, *mes_, *semana_, *dia_;
  QToolButton *anterior_, *siguiente_;
};

}  // namespace novex::gui
