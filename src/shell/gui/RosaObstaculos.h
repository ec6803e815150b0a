#pragma once

#include <QPolygonF>
#include <QWidget>
#include <array>
#include <vector>

#include "model/Localizacion.h"

namespace novex::gui {

/// El cielo visto desde el edificio, con el norte arriba: el borde es el horizonte y el centro el
/// cenit. Enseña lo que tapan los obstáculos remotos y por dónde va el sol.
class RosaObstaculos : public QWidget {
  Q_OBJECT

 public:
  explicit RosaObstaculos(QWidget* padre = nullptr);
  /// \param latitud grados
  void Poner(const ObstaculosRemotos& obstaculos, double latitud);
  QSize sizeHint() const override { return {260, 260}; }
  QSize minimumSizeHint() const override { return {180, 180}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  /// Un punto del cielo en el dibujo, con el horizonte a distancia 1 del centro.
  void PintarSol(QPainter& p, const QPointF& centro, double radio);
  void PintarObstaculos(QPainter& p, const QPointF& centro, double radio);
  void PintarRumbos(QPainter& p, const QPointF& centro, double radio);

  std::array<double, 5> elevaciones_{};  ///< grados, de oeste a este
  std::array<QPolygonF, 3> soles_;       ///< solsticio de invierno, equinoccio y de verano
  double latitud_ = 0;
  bool trazados_ = false;
};

/// Ángulo sobre el horizonte de un obstáculo, grados; 90 si está pegado al edificio.
double ElevacionObstaculo(double altura, double distancia);

}  // namespace novex::gui
