#pragma once

#include <QWidget>
#include <vector>

#include "reference/Cerramiento.h"

namespace novex::gui {

/// La sección de un cerramiento a escala: un muro de izquierda a derecha, un forjado de arriba
/// abajo. Cada capa lleva la trama de su grupo de materiales y su número.
class DibujoSeccion : public QWidget {
  Q_OBJECT

 public:
  explicit DibujoSeccion(QWidget* padre = nullptr);
  /// \param capas en el orden en que se guardan \param ranura la posición de la envolvente
  /// \param elegida posición de la capa resaltada, o -1
  void Poner(const std::vector<Capa>& capas, std::size_t ranura, int elegida = -1);
  /// Lo que se lee cuando no hay capas.
  void PonerVacio(const QString& texto) { vacio_ = texto; }
  QSize sizeHint() const override { return {280, 170}; }
  QSize minimumSizeHint() const override { return {180, 130}; }

 signals:
  /// Se ha pulsado una capa.
  void Pulsada(int capa);

 protected:
  void paintEvent(QPaintEvent* evento) override;
  bool event(QEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;

 private:
  QRectF Marco() const;
  double Escala() const;  ///< píxeles por metro
  QRectF RectanguloDe(std::size_t capa) const;
  int CapaEn(const QPointF& punto) const;
  void PintarCaras(QPainter& pintor) const;
  void PintarEscala(QPainter& pintor) const;

  std::vector<Capa> capas_;
  std::size_t ranura_ = 0;  ///< posición de la envolvente, que da las caras
  int elegida_ = -1;
  QString vacio_;
};

}  // namespace novex::gui
