#include "shell/gui/DibujoSeccion.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "base/NumeroTexto.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr double kMargen = 22;
constexpr double kEscalaMaxima = 900;  // píxeles por metro

struct Trama {
  const char* grupo;  // comienzo del nombre del grupo
  QRgb color;
  Qt::BrushStyle estilo;
};
constexpr std::array kTramas = {Trama{"Fábricas de ladrillo", 0xffc8714e, Qt::BDiagPattern},
                                Trama{"Fábricas", 0xffb39a86, Qt::CrossPattern},
                                Trama{"Hormigones", 0xff9aa0a6, Qt::Dense6Pattern},
                                Trama{"Forjados", 0xff9aa0a6, Qt::DiagCrossPattern},
                                Trama{"Losas", 0xff9aa0a6, Qt::DiagCrossPattern},
                                Trama{"Morteros", 0xffc9c3b6, Qt::Dense7Pattern},
                                Trama{"Yesos", 0xffdedbd2, Qt::NoBrush},
                                Trama{"Enlucidos", 0xffdedbd2, Qt::NoBrush},
                                Trama{"Aislantes", 0xffe9c84a, Qt::DiagCrossPattern},
                                Trama{"Maderas", 0xffb07a44, Qt::HorPattern},
                                Trama{"Metales", 0xff6f7b87, Qt::NoBrush},
                                Trama{"Pétreos", 0xffcbb58c, Qt::Dense6Pattern},
                                Trama{"Cerámicos", 0xffc8714e, Qt::NoBrush},
                                Trama{"Bituminosos", 0xff45484c, Qt::NoBrush},
                                Trama{"Vidrios", 0xff9fcbe0, Qt::NoBrush},
                                Trama{"Cámara", 0x00000000, Qt::NoBrush}};
constexpr Trama kOtra{"", 0xffa8a3b5, Qt::NoBrush};

const Trama& TramaDe(const Capa& capa) {
  const auto* it = std::find_if(kTramas.begin(), kTramas.end(),
                                [&](const Trama& t) { return capa.grupo.starts_with(t.grupo); });
  return it == kTramas.end() ? kOtra : *it;
}

double D(float x) {
  return static_cast<double>(x);
}

}  // namespace

DibujoSeccion::DibujoSeccion(QWidget* padre) : QWidget(padre) {
  setAccessibleName(tr("Sección del cerramiento a escala"));
}

void DibujoSeccion::Poner(const std::vector<Capa>& capas, std::size_t ranura, int elegida) {
  capas_ = capas;
  ranura_ = ranura;
  elegida_ = elegida;
  update();
}

QRectF DibujoSeccion::Marco() const {
  return QRectF(rect()).adjusted(kMargen, kMargen, -kMargen, -kMargen - 12);
}

double DibujoSeccion::Escala() const {
  double espesor = 0;
  for (const Capa& c : capas_) espesor += D(c.espesor);
  const QRectF m = Marco();
  const double cabe = EsVertical(FamiliaDeRanura(ranura_)) ? m.width() : m.height();
  return espesor > 0 ? std::min(cabe / espesor, kEscalaMaxima) : 0;
}

QRectF DibujoSeccion::RectanguloDe(std::size_t capa) const {
  const double escala = Escala();
  double antes = 0, total = 0;
  for (std::size_t i = 0; i < capas_.size(); ++i) {
    if (i < capa) antes += D(capas_[i].espesor) * escala;
    total += D(capas_[i].espesor) * escala;
  }
  const double propio = std::max(1.5, D(capas_[capa].espesor) * escala);
  const QRectF m = Marco();
  if (EsVertical(FamiliaDeRanura(ranura_)))
    return {m.center().x() - total / 2 + antes, m.top(), propio, m.height()};
  return {m.left(), m.center().y() - total / 2 + antes, m.width(), propio};
}

int DibujoSeccion::CapaEn(const QPointF& punto) const {
  for (std::size_t i = 0; i < capas_.size(); ++i)
    if (RectanguloDe(i).contains(punto)) return static_cast<int>(i);
  return -1;
}

void DibujoSeccion::PintarCaras(QPainter& pintor) const {
  const Caras caras = CarasDeRanura(ranura_);
  const QString primera = Q(caras.primera), ultima = Q(caras.ultima);
  pintor.setPen(palette().color(QPalette::WindowText));
  if (EsVertical(FamiliaDeRanura(ranura_))) {
    const QRectF banda(2, 1, width() - 4, kMargen - 3);
    pintor.drawText(banda, Qt::AlignLeft | Qt::AlignVCenter, primera);
    pintor.drawText(banda, Qt::AlignRight | Qt::AlignVCenter, ultima);
    return;
  }
  pintor.drawText(QRectF(2, 1, width() - 4, kMargen - 3), Qt::AlignCenter, primera);
  const QRectF m = Marco();
  pintor.drawText(QRectF(2, m.bottom() + 2, width() - 4, kMargen - 3), Qt::AlignCenter, ultima);
}

void DibujoSeccion::PintarEscala(QPainter& pintor) const {
  const double largo = 0.1 * Escala();
  if (largo <= 0 || largo > width() / 2.0) return;
  const double y = height() - 6;
  pintor.setPen(QPen(palette().color(QPalette::Mid), 2));
  pintor.drawLine(QPointF(kMargen, y), QPointF(kMargen + largo, y));
  pintor.setPen(palette().color(QPalette::WindowText));
  pintor.drawText(QPointF(kMargen + largo + 5, y + 4), "10 cm");
}

void DibujoSeccion::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  QFont letra = font();
  letra.setPointSizeF(letra.pointSizeF() * 0.85);
  pintor.setFont(letra);
  if (capas_.empty()) {
    pintor.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    pintor.drawText(rect().adjusted(12, 0, -12, 0), Qt::AlignCenter | Qt::TextWordWrap, vacio_);
    return;
  }
  const QColor borde = palette().color(QPalette::WindowText);
  for (std::size_t i = 0; i < capas_.size(); ++i) {
    const Trama& trama = TramaDe(capas_[i]);
    const QRectF r = RectanguloDe(i);
    QColor color = QColor::fromRgba(trama.color);
    pintor.fillRect(r, color);
    if (trama.estilo != Qt::NoBrush) pintor.fillRect(r, QBrush(color.darker(135), trama.estilo));
    pintor.setPen(QPen(borde, 0.6));
    pintor.drawRect(r);
    if (static_cast<int>(i) == elegida_) {
      pintor.setPen(QPen(palette().color(QPalette::Highlight), 2.5));
      pintor.drawRect(r);
    }
    const QString numero = QString::number(i + 1);
    const double hueco = EsVertical(FamiliaDeRanura(ranura_)) ? r.width() : r.height();
    if (hueco < pintor.fontMetrics().height() * 0.9) continue;
    const QRectF placa(r.center().x() - 8, r.center().y() - 8, 16, 16);
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(palette().color(QPalette::Base));
    pintor.drawEllipse(placa);
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(palette().color(QPalette::Text));
    pintor.drawText(placa, Qt::AlignCenter, numero);
  }
  PintarCaras(pintor);
  PintarEscala(pintor);
}

bool DibujoSeccion::event(QEvent* evento) {
  if (evento->type() != QEvent::ToolTip) return QWidget::event(evento);
  const auto* ayuda = static_cast<QHelpEvent*>(evento);
  const int cual = CapaEn(ayuda->pos());
  if (cual < 0) {
    QToolTip::hideText();
    return true;
  }
  const Capa& c = capas_[static_cast<std::size_t>(cual)];
  QToolTip::showText(ayuda->globalPos(), QString("%1. %2\n%3 m · R %4 m²K/W")
                                             .arg(cual + 1)
                                             .arg(Q(c.especificacion), Q(Fijo(D(c.espesor), 3)),
                                                  Q(Fijo(D(c.rterm), 3))));
  return true;
}

void DibujoSeccion::mousePressEvent(QMouseEvent* evento) {
  const int cual = CapaEn(evento->position());
  if (cual >= 0) emit Pulsada(cual);
}

}  // namespace novex::gui
