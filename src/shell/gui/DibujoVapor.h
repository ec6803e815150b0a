#pragma once

#include <QWidget>

#include "compliance/Condensacion.h"

namespace novex::gui {

/// Presión de vapor y de saturación a través de un cerramiento, de fuera adentro. Donde la primera
/// pasa de la segunda hay condensación.
class DibujoVapor : public QWidget {
  Q_OBJECT

 public:
  explicit DibujoVapor(QWidget* padre = nullptr);
  /// \param condiciones las del mes de proyecto, que se escriben al pie
  void Poner(const CondensacionElemento& elemento, const CondicionesCondensacion& condiciones);
  /// No hay nada que dibujar, y por qué.
  void Vaciar(const QString& motivo);
  bool Vacio() const { return !motivo_.isEmpty(); }
  QSize minimumSizeHint() const override { return {180, 130}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  void PintarLinea(QPainter& pintor, const QRectF& marco, double maximo, bool saturacion) const;

  CondensacionElemento elemento_;
  QString pie_, motivo_;
};

}  // namespace novex::gui
