#include "shell/gui/DibujoVapor.h"

#include <QPainter>
#include <algorithm>

#include "base/NumeroTexto.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {

DibujoVapor::DibujoVapor(QWidget* padre) : QWidget(padre) {
  setAccessibleName(tr("Presiones de vapor y de saturación"));
  setToolTip(
      tr("Método de Glaser con el mes de proyecto (CTE DA DB-HE/2): continua, presión de "
         "vapor; a trazos, de saturación"));
}

void DibujoVapor::Poner(const CondensacionElemento& elemento,
                        const CondicionesCondensacion& condiciones) {
  motivo_.clear();
  elemento_ = elemento;
  const auto cifra = [](double valor) { return Q(Fijo(valor, 1)).replace('.', ','); };
  pie_ = tr("%1 · exterior %2 °C · interior %3 °C y %4 %")
             .arg(elemento.cumpleIntersticial ? tr("Sin condensación intersticial")
                                              : tr("Condensación intersticial"),
                  cifra(condiciones.Te), cifra(condiciones.Ti), Q(Fijo(condiciones.HR, 0)));
  update();
}

void DibujoVapor::Vaciar(const QString& motivo) {
  motivo_ = motivo;
  update();
}

void DibujoVapor::PintarLinea(QPainter& pintor, const QRectF& marco, double maximo,
                              bool saturacion) const {
  const double ancho = elemento_.interfaces.back().x;
  QPolygonF linea;
  for (const InterfazCondensacion& i : elemento_.interfaces)
    linea << QPointF(marco.left() + (ancho > 0 ? i.x / ancho : 0) * marco.width(),
                     marco.bottom() - (saturacion ? i.Psat : i.P) / maximo * marco.height());
  const bool mal = !saturacion && !elemento_.cumpleIntersticial;
  QPen pluma(mal ? QColor(0xd0, 0x45, 0x35) : palette().color(QPalette::Highlight), 2);
  if (saturacion) pluma = QPen(palette().color(QPalette::WindowText), 1.5, Qt::DashLine);
  pintor.setPen(pluma);
  pintor.drawPolyline(linea);
}

void DibujoVapor::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  pintor.setRenderHint(QPainter::Antialiasing);
  if (!motivo_.isEmpty() || elemento_.interfaces.size() < 2) {
    pintor.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    pintor.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, motivo_);
    return;
  }
  QFont letra = font();
  letra.setPointSizeF(letra.pointSizeF() * 0.85);
  pintor.setFont(letra);
  double maximo = 1;
  for (const InterfazCondensacion& i : elemento_.interfaces)
    maximo = std::max({maximo, i.P, i.Psat});
  const QRectF marco = QRectF(rect()).adjusted(46, 18, -10, -34);
  pintor.setPen(QPen(palette().color(QPalette::Mid), 1));
  for (const InterfazCondensacion& i : elemento_.interfaces) {
    const double x = marco.left() + i.x / elemento_.interfaces.back().x * marco.width();
    pintor.drawLine(QPointF(x, marco.top()), QPointF(x, marco.bottom()));
  }
  pintor.drawRect(marco);
  pintor.setPen(palette().color(QPalette::WindowText));
  pintor.drawText(QRectF(0, marco.top() - 8, 42, 16), Qt::AlignRight, Q(Fijo(maximo, 0)));
  pintor.drawText(QRectF(0, marco.bottom() - 8, 42, 16), Qt::AlignRight, "0");
  pintor.drawText(QRectF(0, marco.center().y() - 8, 42, 16), Qt::AlignRight, "Pa");
  pintor.drawText(QRectF(marco.left(), 0, marco.width(), 16), Qt::AlignLeft, tr("Exterior"));
  pintor.drawText(QRectF(marco.left(), 0, marco.width(), 16), Qt::AlignRight, tr("Interior"));
  PintarLinea(pintor, marco, maximo, true);
  PintarLinea(pintor, marco, maximo, false);
  pintor.setPen(palette().color(QPalette::WindowText));
  pintor.drawText(QRectF(4, marco.bottom() + 2, width() - 8, 32),
                  Qt::AlignCenter | Qt::TextWordWrap, pie_);
}

}  // namespace novex::gui
