#include "shell/gui/MapaAno.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "base/Calendario.h"
#include "entry/Horarios.h"
#include "outputs/PeriodoSerie.h"
#include "shell/gui/ColoresDia.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kDias = 365;
constexpr int kHoras = 24;
constexpr int kIzquierda = 36;
constexpr int kAbajo = 18;
constexpr int kDerecha = 84;
constexpr int kLetrasMes = 3;
constexpr QRgb kAbiertas = 0xff2ba3a3;

// Entre el fondo y el color de la serie.
QColor Mezcla(const QColor& a, const QColor& b, double parte) {
  const auto canal = [&](int x, int y) { return static_cast<int>(x + (y - x) * parte); };
  return {canal(a.red(), b.red()), canal(a.green(), b.green()), canal(a.blue(), b.blue())};
}

QColor ColorSerie(const QPalette& paleta, double parte) {
  return parte <= 0 ? paleta.color(QPalette::Base)
                    : Mezcla(paleta.color(QPalette::Base), paleta.color(QPalette::Highlight),
                             0.15 + 0.85 * std::min(1.0, parte));
}

QString Valor(float valor, const QString& unidad) {
  return valor == kVentanasAbiertas ? QObject::tr("ventanas abiertas")
                                    : Q(TextoHora(valor)) + " " + unidad;
}

}  // namespace

MapaAno::MapaAno(QWidget* padre) : QWidget(padre) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMaximumHeight(220);
}

void MapaAno::Poner(const SerieHoraria& serie, const QString& unidad) {
  serie_ = serie;
  unidad_ = unidad;
  HacerImagen();
  update();
}

void MapaAno::HacerImagen() {
  maximo_ = 0;
  for (const float v : serie_)
    if (v != kVentanasAbiertas) maximo_ = std::max(maximo_, v);
  imagen_ = QImage(kDias, kHoras, QImage::Format_RGB32);
  for (int h = 1; h <= kHorasAno; ++h) {
    const float v = serie_[h];
    const double parte = maximo_ > 0 ? static_cast<double>(v) / static_cast<double>(maximo_) : 0;
    const QRgb color = v == kVentanasAbiertas ? kAbiertas : ColorSerie(palette(), parte).rgb();
    imagen_.setPixel(DiaDelAno(h) - 1, kHoras - HoraDelDia(h), color);
  }
}

void MapaAno::changeEvent(QEvent* evento) {
  if (evento->type() == QEvent::PaletteChange) HacerImagen();
  QWidget::changeEvent(evento);
}

QRectF MapaAno::Zona() const {
  return {kIzquierda, 4, static_cast<double>(width() - kIzquierda - kDerecha),
          static_cast<double>(height() - 4 - kAbajo)};
}

bool MapaAno::event(QEvent* evento) {
  if (evento->type() != QEvent::ToolTip) return QWidget::event(evento);
  const auto* ayuda = static_cast<QHelpEvent*>(evento);
  const QRectF zona = Zona();
  if (!zona.contains(ayuda->pos())) {
    QToolTip::hideText();
    return true;
  }
  const int dia =
      std::min(kDias - 1, static_cast<int>((ayuda->x() - zona.left()) / zona.width() * kDias));
  const int hora = std::clamp(
      kHoras - static_cast<int>((ayuda->y() - zona.top()) / zona.height() * kHoras), 1, kHoras);
  const int h = dia * kHoras + hora;
  const int mes = HoraDelMes(h);
  const int primero = kUltimaHoraMes.at(static_cast<std::size_t>(mes - 1)) / kHoras;
  QToolTip::showText(
      ayuda->globalPos(),
      tr("%1 de %2, de %3 a %4 h: %5")
          .arg(QString::number(dia - primero + 1),
               Q(kNombreMesCompleto.at(static_cast<std::size_t>(mes))).toLower(),
               QString::number(hora - 1), QString::number(hora), Valor(serie_[h], unidad_)),
      this);
  return true;
}

void MapaAno::paintEvent(QPaintEvent*) {
  QPainter p(this);
  const QRectF zona = Zona();
  p.drawImage(zona, imagen_);
  p.setPen(ColorReja(palette()));
  p.setBrush(Qt::NoBrush);
  p.drawRect(zona);
  QFont pequena = font();
  pequena.setPointSizeF(pequena.pointSizeF() * 0.85);
  p.setFont(pequena);
  const QColor texto = palette().color(QPalette::PlaceholderText);
  for (std::size_t m = 1; m <= kMeses; ++m) {
    const double x = zona.left() + zona.width() * kUltimaHoraMes.at(m - 1) / kHorasAno;
    const double ancho = zona.width() * kDiasMes.at(m) / kDias;
    p.setPen(ColorReja(palette()));
    if (m > 1) p.drawLine(QPointF(x, zona.bottom()), QPointF(x, zona.bottom() + 4));
    p.setPen(texto);
    p.drawText(QRectF(x, zona.bottom() + 2, ancho, kAbajo), Qt::AlignHCenter | Qt::AlignTop,
               Q(kNombreMesCompleto.at(m)).left(kLetrasMes).toLower());
  }
  for (const int h : {0, 12, 24})
    p.drawText(QRectF(0, zona.bottom() - zona.height() * h / kHoras - 8, kIzquierda - 5, 16),
               Qt::AlignRight | Qt::AlignVCenter, QString::number(h) + " h");
  // La escala, a la derecha.
  const QRectF escala(zona.right() + 10, zona.top(), 10, zona.height());
  for (int i = 0; i < static_cast<int>(escala.height()); ++i)
    p.fillRect(QRectF(escala.left(), escala.bottom() - i - 1, escala.width(), 1),
               ColorSerie(palette(), (i + 1) / escala.height()));
  const double derecha = width() - escala.right() - 4;
  p.drawText(QRectF(escala.right() + 4, escala.top(), derecha, 16), Qt::AlignLeft,
             Valor(maximo_, unidad_));
  p.drawText(QRectF(escala.right() + 4, escala.bottom() - 14, derecha, 16), Qt::AlignLeft, "0");
}

}  // namespace novex::gui
