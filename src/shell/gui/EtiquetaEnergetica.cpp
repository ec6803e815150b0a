#include "shell/gui/EtiquetaEnergetica.h"

#include <QPainter>
#include <QPainterPath>
#include <array>

namespace novex::gui {
namespace {

constexpr int kLetras = 7;
constexpr std::array<QRgb, kLetras> kColores = {0xff009640, 0xff50ae32, 0xffbdd630, 0xffffe600,
                                                0xfffdb913, 0xfff37021, 0xffe31e24};

int PosicionLetra(const QString& letra) {
  if (letra.size() != 1) return -1;
  const int posicion = letra[0].unicode() - u'A';
  return posicion >= 0 && posicion < kLetras ? posicion : -1;
}

QPainterPath Barra(const QRectF& r) {
  const double punta = r.height() / 2;
  QPainterPath barra(r.topLeft());
  barra.lineTo(r.right() - punta, r.top());
  barra.lineTo(r.right(), r.center().y());
  barra.lineTo(r.right() - punta, r.bottom());
  barra.lineTo(r.bottomLeft());
  barra.closeSubpath();
  return barra;
}

QPainterPath Flecha(const QRectF& r) {
  const double punta = r.height() / 2;
  QPainterPath flecha(QPointF(r.left(), r.center().y()));
  flecha.lineTo(r.left() + punta, r.top());
  flecha.lineTo(r.topRight());
  flecha.lineTo(r.bottomRight());
  flecha.lineTo(r.left() + punta, r.bottom());
  flecha.closeSubpath();
  return flecha;
}

}  // namespace

QColor ColorLetra(const QString& letra) {
  const int posicion = PosicionLetra(letra);
  return posicion < 0 ? QColor(0xa0, 0xa6, 0xad)
                      : QColor(kColores[static_cast<std::size_t>(posicion)]);
}

QColor TextoSobreLetra(const QString& letra) {
  const int posicion = PosicionLetra(letra);
  return posicion >= 2 && posicion <= 4 ? QColor(0x22, 0x28, 0x2e) : QColor(Qt::white);
}

EtiquetaEnergetica::EtiquetaEnergetica(const QString& titulo, QWidget* padre)
    : QWidget(padre), titulo_(titulo) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void EtiquetaEnergetica::Poner(const QString& letra, const QString& valor) {
  letra_ = letra;
  valor_ = valor;
  setAccessibleDescription(titulo_ + ": " + letra + " " + valor);
  update();
}

void EtiquetaEnergetica::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const double alturaTitulo = fontMetrics().height() * 1.6;
  p.setPen(palette().color(QPalette::WindowText));
  p.drawText(QRectF(0, 0, width(), alturaTitulo), Qt::AlignLeft | Qt::AlignVCenter, titulo_);
  const double paso = (height() - alturaTitulo) / kLetras;
  const int cual = PosicionLetra(letra_);
  QFont letras = font();
  letras.setBold(true);
  p.setFont(letras);
  for (int i = 0; i < kLetras; ++i) {
    const QString letra(QChar(u'A' + i));
    const QRectF r(0, alturaTitulo + i * paso + 1, width() * (0.22 + 0.06 * i), paso - 3);
    p.fillPath(Barra(r), ColorLetra(letra));
    p.setPen(TextoSobreLetra(letra));
    p.drawText(r.adjusted(0, 0, -r.height() * 0.6, 0), Qt::AlignRight | Qt::AlignVCenter, letra);
  }
  if (cual < 0) return;
  const QRectF flecha(width() * 0.66, alturaTitulo + cual * paso + 1, width() * 0.33, paso - 3);
  p.fillPath(Flecha(flecha), ColorLetra(letra_));
  p.setPen(TextoSobreLetra(letra_));
  p.drawText(flecha.adjusted(flecha.height() * 0.5, 0, -4, 0), Qt::AlignCenter, valor_);
}

}  // namespace novex::gui
