#include "shell/gui/SeccionHueco.h"

#include <QPainter>
#include <algorithm>

#include "base/NumeroTexto.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

// Lo que no es un dato se dibuja con medidas corrientes, m.
constexpr double kMuro = 0.30;
constexpr double kAntepecho = 0.35;
constexpr double kVidrio = 0.06;
constexpr double kCanto = 0.10;
constexpr double kMargen = 30;

QString Metros(double valor) {
  return Q(Fijo(valor, 2)).replace('.', ',');
}

QColor Mezcla(const QColor& a, const QColor& b, double parte) {
  const auto canal = [parte](int x, int y) { return static_cast<int>(x + (y - x) * parte); };
  return {canal(a.red(), b.red()), canal(a.green(), b.green()), canal(a.blue(), b.blue())};
}

// Pasa de metros a puntos: x hacia el interior, y hacia arriba.
struct Escala {
  double puntos;
  QPointF origen;
  QPointF operator()(double x, double y) const {
    return {origen.x() + x * puntos, origen.y() - y * puntos};
  }
  QRectF Caja(double x0, double y0, double x1, double y1) const {
    return QRectF((*this)(x0, y1), (*this)(x1, y0)).normalized();
  }
};

Escala Encajar(const QSize& sitio, double x0, double x1, double y0, double y1) {
  const double ancho = std::max(x1 - x0, 0.1), alto = std::max(y1 - y0, 0.1);
  const double puntos =
      std::min((sitio.width() - 2 * kMargen) / ancho, (sitio.height() - 2 * kMargen) / alto);
  return {puntos, QPointF(sitio.width() / 2.0 - (x0 + x1) / 2 * puntos,
                          sitio.height() / 2.0 + (y0 + y1) / 2 * puntos)};
}

}  // namespace

SeccionHueco::SeccionHueco(QWidget* padre) : QWidget(padre) {
  setMinimumSize(200, 190);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SeccionHueco::Poner(const Huecos& grupo) {
  grupo_ = grupo;
  const QString que = grupo.Tipo_de_hueco == kLucernario
                          ? tr("Sección de un lucernario con pozo de %1 m")
                                .arg(Metros(static_cast<double>(grupo.Longitud_alero_m)))
                          : tr("Sección del hueco: retranqueo de %1 m y alero de %2 m")
                                .arg(Metros(static_cast<double>(grupo.Retranqueo_m)),
                                     Metros(static_cast<double>(grupo.Longitud_alero_m)));
  setAccessibleName(que);
  update();
}

void SeccionHueco::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  QFont letra = font();
  letra.setPointSizeF(letra.pointSizeF() * 0.85);
  p.setFont(letra);
  if (grupo_.Tipo_de_hueco == kLucernario)
    PintarLucernario(p);
  else
    PintarVentana(p);
}

void SeccionHueco::Cota(QPainter& p, QPointF desde, QPointF hasta, const QString& texto) {
  p.setPen(Mezcla(palette().color(QPalette::Window), palette().color(QPalette::Text), 0.6));
  p.drawLine(desde, hasta);
  const bool horizontal = qAbs(desde.y() - hasta.y()) < 0.5;
  const QPointF tope = horizontal ? QPointF(0, 3) : QPointF(3, 0);
  for (const QPointF& punto : {desde, hasta}) p.drawLine(punto - tope, punto + tope);
  p.setPen(palette().color(QPalette::Text));
  const QPointF medio = (desde + hasta) / 2;
  const double ancho = p.fontMetrics().horizontalAdvance(texto);
  // Siempre dentro del dibujo, aunque la cota esté en un borde.
  double x = horizontal ? medio.x() - ancho / 2 : medio.x() + 6;
  x = std::clamp(x, 2.0, std::max(2.0, width() - ancho - 2));
  p.drawText(QPointF(x, horizontal ? medio.y() - 5 : medio.y() + 4), texto);
}

void SeccionHueco::PintarVentana(QPainter& p) {
  const double alto = static_cast<double>(grupo_.Alto_m);
  const double alero = static_cast<double>(grupo_.Longitud_alero_m);
  const double sobre = static_cast<double>(grupo_.Distancia_alero_m);
  const double retranqueo = static_cast<double>(grupo_.Retranqueo_m);
  const bool hayCaja = grupo_.Existe_Caja_persiana == 0;
  const double caja = hayCaja ? static_cast<double>(grupo_.Altura_Caja_de_persiana_m) : 0;
  const double muro = std::max(kMuro, retranqueo + kVidrio);
  const double techo = alto + std::max({caja, sobre + kCanto, 0.2}) + 0.15;
  const double fuera = std::max(alero, 0.25);
  const Escala e = Encajar(size(), -fuera, muro + 0.25, -kAntepecho, techo);

  const QColor trazo = palette().color(QPalette::Text);
  const QColor macizo = Mezcla(palette().color(QPalette::Window), trazo, 0.22);
  const QColor vidrio = palette().color(QPalette::Highlight);
  p.setPen(QPen(trazo, 1));
  p.setBrush(macizo);
  p.drawRect(e.Caja(0, -kAntepecho, muro, 0));
  p.drawRect(e.Caja(0, alto + caja, muro, techo));
  if (hayCaja && caja > 0) {
    p.setBrush(Mezcla(palette().color(QPalette::Window), trazo, 0.06));
    p.drawRect(e.Caja(0, alto, muro, alto + caja));
    const double radio = std::min(muro, caja) * 0.3;
    p.drawEllipse(e(muro / 2, alto + caja / 2), radio * e.puntos, radio * e.puntos);
  }
  p.setBrush(Mezcla(palette().color(QPalette::Window), vidrio, 0.5));
  p.drawRect(e.Caja(retranqueo, 0, retranqueo + kVidrio, alto));
  p.setBrush(macizo);
  if (alero > 0) p.drawRect(e.Caja(-alero, alto + sobre, 0, alto + sobre + kCanto));

  Cota(p, e(muro, 0) + QPointF(12, 0), e(muro, alto) + QPointF(12, 0), Metros(alto));
  if (retranqueo > 0)
    Cota(p, e(0, -kAntepecho) + QPointF(0, 18), e(retranqueo, -kAntepecho) + QPointF(0, 18),
         Metros(retranqueo));
  if (alero > 0)
    Cota(p, e(-alero, alto + sobre + kCanto) - QPointF(0, 8),
         e(0, alto + sobre + kCanto) - QPointF(0, 8), Metros(alero));
  p.setPen(Mezcla(palette().color(QPalette::Window), trazo, 0.6));
  const QRectF pie(4, height() - 16, width() - 8, 16);
  p.drawText(pie, Qt::AlignLeft | Qt::AlignBottom, tr("exterior"));
  p.drawText(pie, Qt::AlignRight | Qt::AlignBottom, tr("interior"));
}

void SeccionHueco::PintarLucernario(QPainter& p) {
  const double alto = std::max(static_cast<double>(grupo_.Alto_m), 0.05);
  const double pozo = static_cast<double>(grupo_.Longitud_alero_m);
  const double forjado = std::max(pozo, 0.15);
  const Escala e = Encajar(size(), -0.5, alto + 0.5, -forjado - 0.1, 0.25);
  const QColor trazo = palette().color(QPalette::Text);
  p.setPen(QPen(trazo, 1));
  p.setBrush(Mezcla(palette().color(QPalette::Window), trazo, 0.22));
  p.drawRect(e.Caja(-0.5, -forjado, 0, 0));
  p.drawRect(e.Caja(alto, -forjado, alto + 0.5, 0));
  p.setBrush(Mezcla(palette().color(QPalette::Window), palette().color(QPalette::Highlight), 0.5));
  p.drawRect(e.Caja(0, 0, alto, kVidrio));
  Cota(p, e(0, 0.06) - QPointF(0, 10), e(alto, 0.06) - QPointF(0, 10), Metros(alto));
  if (pozo > 0) Cota(p, e(0, -pozo) + QPointF(10, 0), e(0, 0) + QPointF(10, 0), Metros(pozo));
}

}  // namespace novex::gui
