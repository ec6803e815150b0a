#pragma once

#include <QImage>
#include <QWidget>

#include "demand/Series.h"

namespace novex::gui {

/// Una serie del año como mapa: un día por columna, una hora por fila y más color cuanto más vale.
class MapaAno : public QWidget {
  Q_OBJECT

 public:
  explicit MapaAno(QWidget* padre = nullptr);
  void Poner(const SerieHoraria& serie, const QString& unidad);
  QSize minimumSizeHint() const override { return {400, 120}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  bool event(QEvent* evento) override;

 private:
  void HacerImagen();
  QRectF Zona() const;

  SerieHoraria serie_;
  QString unidad_;
  QImage imagen_;
  float maximo_ = 0;
};

}  // namespace novex::gui
