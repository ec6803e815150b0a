#pragma once

#include <QWidget>

#include "model/Huecos.h"

namespace novex::gui {

/// La sección vertical de un hueco: muro, retranqueo, alero y caja de persiana, o el pozo de un
/// lucernario. A escala, con los colores de la paleta.
class SeccionHueco : public QWidget {
  Q_OBJECT

 public:
  explicit SeccionHueco(QWidget* padre = nullptr);
  void Poner(const Huecos& grupo);
  QSize sizeHint() const override { return {240, 210}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  void PintarVentana(QPainter& p);
  void PintarLucernario(QPainter& p);
  /// Traza una cota horizontal o vertical con su texto.
  void Cota(QPainter& p, QPointF desde, QPointF hasta, const QString& texto);

  Huecos grupo_;
};

}  // namespace novex::gui
