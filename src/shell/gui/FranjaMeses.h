#pragma once

#include <QWidget>
#include <array>

namespace novex::gui {

/// Los doce meses en una franja, con los de verano señalados.
class FranjaMeses : public QWidget {
  Q_OBJECT

 public:
  explicit FranjaMeses(QWidget* padre = nullptr);
  /// \param verano por mes, 1 a 12; el 0 no se usa
  void Poner(const std::array<bool, 13>& verano);
  QSize sizeHint() const override { return {264, 22}; }
  QSize minimumSizeHint() const override { return {150, 22}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  std::array<bool, 13> verano_{};
};

}  // namespace novex::gui
