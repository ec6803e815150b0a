#pragma once

#include <QWidget>
#include <optional>

#include "entry/ResumenEnvolvente.h"

namespace novex::gui {

/// Una planta con una barra por orientación, de largo según su área: opaco y huecos. El norte está
/// arriba.
class DibujoPlanta : public QWidget {
  Q_OBJECT

 public:
  explicit DibujoPlanta(QWidget* padre = nullptr);
  /// \param sectores áreas de las barras \param centro las del cuadro, si se enseñan
  void Poner(const AreasPorSector& sectores, const std::optional<AreasSector>& centro = {});
  QSize sizeHint() const override { return {260, 240}; }
  QSize minimumSizeHint() const override { return {190, 180}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  void PintarBarra(QPainter& pintor, std::size_t sector, double maximo, double lado,
                   double largo) const;

  AreasPorSector sectores_;
  std::optional<AreasSector> centro_;
};

/// Barras con su nombre y su área, una por clase de elemento.
class DibujoReparto : public QWidget {
  Q_OBJECT

 public:
  struct Barra {
    QString nombre;
    double area = 0;  ///< m2
  };
  explicit DibujoReparto(QWidget* padre = nullptr);
  /// Las barras sin área no se dibujan.
  void Poner(const std::vector<Barra>& barras);
  QSize sizeHint() const override { return {260, 180}; }
  QSize minimumSizeHint() const override { return {190, 90}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  std::vector<Barra> barras_;
};

}  // namespace novex::gui
