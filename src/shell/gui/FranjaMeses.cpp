#include "shell/gui/FranjaMeses.h"

#include <QPainter>

namespace novex::gui {
namespace {

constexpr const char* kIniciales = "EFMAMJJASOND";
constexpr int kMesesAno = 12;

}  // namespace

FranjaMeses::FranjaMeses(QWidget* padre) : QWidget(padre) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void FranjaMeses::Poner(const std::array<bool, 13>& verano) {
  verano_ = verano;
  update();
}

void FranjaMeses::paintEvent(QPaintEvent*) {
  QPainter p(this);
  const double ancho = static_cast<double>(width()) / kMesesAno;
  for (int mes = 1; mes <= kMesesAno; ++mes) {
    const QRectF r((mes - 1) * ancho + 1, 0, ancho - 2, height());
    const bool verano = verano_[static_cast<std::size_t>(mes)];
    p.fillRect(r, palette().color(verano ? QPalette::Highlight : QPalette::Midlight));
    p.setPen(palette().color(verano ? QPalette::HighlightedText : QPalette::WindowText));
    p.drawText(r, Qt::AlignCenter, QString(QChar(kIniciales[mes - 1])));
  }
}

}  // namespace novex::gui
