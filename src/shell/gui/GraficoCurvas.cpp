#include "shell/gui/GraficoCurvas.h"

#include <QtCharts/QChart>
#include <QtCharts/QLegend>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>
#include <algorithm>
#include <array>

#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

// Se distinguen también con fondo oscuro y sin ver el color: van de frío a caliente.
constexpr std::array<QRgb, 4> kColores = {0xff3b7dd8, 0xff2a9d74, 0xffd9921a, 0xffcc4b37};

void Vestir(QValueAxis* eje, const QColor& texto) {
  QColor rejilla = texto;
  rejilla.setAlphaF(0.18F);
  eje->setLabelsColor(texto);
  eje->setTitleBrush(texto);
  eje->setGridLineColor(rejilla);
  eje->setLinePenColor(rejilla);
}

}  // namespace

GraficoCurvas::GraficoCurvas(const QString& titulo, const QString& variable, QWidget* padre)
    : QChartView(padre), variable_(variable) {
  const QColor texto = palette().color(QPalette::WindowText);
  chart()->setTitle(titulo);
  chart()->setTitleBrush(texto);
  chart()->setBackgroundVisible(false);
  chart()->setMargins({0, 0, 0, 0});
  chart()->legend()->setLabelColor(texto);
  chart()->legend()->setAlignment(Qt::AlignRight);
  setRenderHint(QPainter::Antialiasing);
  setFrameShape(QFrame::NoFrame);
  setStyleSheet("background: transparent");
  setMinimumSize(420, 240);
}

void GraficoCurvas::Poner(const std::vector<LineaCurva>& lineas) {
  const QColor texto = palette().color(QPalette::WindowText);
  chart()->removeAllSeries();
  for (QAbstractAxis* eje : chart()->axes()) {
    chart()->removeAxis(eje);
    eje->deleteLater();
  }
  auto* x = new QValueAxis(chart());
  auto* y = new QValueAxis(chart());
  x->setTitleText(variable_);
  Vestir(x, texto);
  Vestir(y, texto);
  chart()->addAxis(x, Qt::AlignBottom);
  chart()->addAxis(y, Qt::AlignLeft);
  double menor = 0, mayor = 1;
  for (std::size_t i = 0; i < lineas.size(); ++i) {
    auto* serie = new QLineSeries(chart());
    serie->setName(Q(lineas[i].rotulo));
    serie->setPen(QPen(QColor::fromRgb(kColores[i % kColores.size()]), 2));
    for (const auto& [px, py] : lineas[i].puntos) {
      serie->append(static_cast<double>(px), static_cast<double>(py));
      menor = std::min(menor, static_cast<double>(py));
      mayor = std::max(mayor, static_cast<double>(py));
    }
    chart()->addSeries(serie);
    serie->attachAxis(x);
    serie->attachAxis(y);
  }
  y->setRange(menor, mayor);
  y->applyNiceNumbers();
  chart()->legend()->setVisible(lineas.size() > 1);
}

}  // namespace novex::gui
