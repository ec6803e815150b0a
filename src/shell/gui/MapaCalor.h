#pragma once

#include <QImage>
#include <QLabel>
#include <QToolButton>
#include <QWidget>

#include "outputs/SerieResultado.h"

namespace novex::gui {

/// La superficie de una serie como mapa: un día por columna, una hora por fila y el color del valor
/// por una escala, que va a la derecha. Se lee el valor bajo el puntero y se guarda como PNG.
class MapaCalor : public QWidget {
  Q_OBJECT

 public:
  explicit MapaCalor(QWidget* padre = nullptr);
  /// Enseña una superficie. \param tramos los del eje de los días
  void Poner(const SuperficieSerie& superficie, const std::vector<TramoPeriodo>& tramos);
  const SuperficieSerie& Puesta() const { return superficie_; }
  /// Lo que se lee en una casilla. \param dia posición en la superficie, desde 0
  /// \param hora 1 a 24
  QString Lectura(std::size_t dia, int hora) const;
  /// Lo que se lee en un punto del dibujo; vacío fuera del mapa.
  QString LecturaEn(const QPointF& punto) const;
  /// Dónde está el mapa en el dibujo.
  QRectF Zona() const;
  /// Color de un valor en la escala.
  QColor Color(double valor) const;
  QSize minimumSizeHint() const override { return {320, 220}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void leaveEvent(QEvent* evento) override;

 private:
  void HacerImagen();
  void PintarEjes(QPainter& p, const QRectF& zona) const;
  void PintarEscala(QPainter& p, const QRectF& zona) const;
  void Guardar();

  SuperficieSerie superficie_;
  std::vector<TramoPeriodo> tramos_;
  QLabel *titulo_, *lectura_;
  QToolButton* menu_;
  QImage imagen_;
  double menor_ = 0, mayor_ = 1;
};

}  // namespace novex::gui
