#include "shell/gui/DibujoPlanta.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/NumeroTexto.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

// Rumbo de cada sector desde el norte, en grados hacia el este; el norte vale por su mitad entera.
constexpr std::array<double, kSectores> kRumbo = {0, 270, 225, 180, 135, 90};
constexpr std::array<const char*, kSectores> kRotulo = {"N", "O", "SO", "S", "SE", "E"};

QString Area(double m2) {
  return Q(Fijo(m2, m2 < 100 ? 1 : 0)).replace('.', ',');
}

QColor Mezcla(const QColor& a, const QColor& b, double parte) {
  const auto c = [&](int x, int y) {
    return static_cast<int>(std::lround(x * parte + y * (1 - parte)));
  };
  return {c(a.red(), b.red()), c(a.green(), b.green()), c(a.blue(), b.blue())};
}

QColor ColorOpaco(const QPalette& p) {
  return Mezcla(p.color(QPalette::Highlight), p.color(QPalette::WindowText), 0.55);
}
QColor ColorHueco(const QPalette& p) {
  return Mezcla(p.color(QPalette::Highlight), p.color(QPalette::Window), 0.40);
}

}  // namespace

DibujoPlanta::DibujoPlanta(QWidget* padre) : QWidget(padre) {
  setToolTip(tr("Área por orientación: oscuro lo opaco, claro los huecos"));
  setAccessibleName(tr("Planta con el área por orientación"));
}

void DibujoPlanta::Poner(const AreasPorSector& sectores, const std::optional<AreasSector>& centro) {
  sectores_ = sectores;
  centro_ = centro;
  update();
}

void DibujoPlanta::PintarBarra(QPainter& pintor, std::size_t sector, double maximo, double lado,
                               double largo) const {
  const AreasSector& area = sectores_[sector];
  const double angulo = kRumbo[sector] * std::numbers::pi / 180;
  const bool diagonal = sector == sur_oeste || sector == sur_este;
  const double arranque = lado / 2 * (diagonal ? std::numbers::sqrt2 : 1.0) + 3;
  const double ancho = lado * (diagonal ? 0.28 : 0.5);
  const double opaco = maximo > 0 ? largo * area.opaco / maximo : 0;
  const double hueco = maximo > 0 ? largo * area.huecos / maximo : 0;
  pintor.save();
  pintor.rotate(kRumbo[sector]);
  pintor.setPen(Qt::NoPen);
  pintor.setBrush(ColorOpaco(palette()));
  pintor.drawRect(QRectF(-ancho / 2, -arranque - opaco, ancho, opaco));
  pintor.setBrush(ColorHueco(palette()));
  pintor.drawRect(QRectF(-ancho / 2, -arranque - opaco - hueco, ancho, hueco));
  pintor.restore();
  const double lejos = arranque + opaco + hueco + (diagonal ? 16 : 13);
  const QPointF punto(
      lejos * std::sin(angulo) * (diagonal || sector == oeste || sector == este ? 1.12 : 1.0),
      -lejos * std::cos(angulo));
  const bool nada = area.Total() <= 0;
  pintor.setPen(
      palette().color(nada ? QPalette::Disabled : QPalette::Normal, QPalette::WindowText));
  const QString texto =
      nada ? QString(kRotulo[sector]) : QString(kRotulo[sector]) + "\n" + Area(area.Total());
  pintor.drawText(QRectF(punto.x() - 32, punto.y() - 16, 64, 32), Qt::AlignCenter, texto);
}

void DibujoPlanta::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  pintor.setRenderHint(QPainter::Antialiasing);
  QFont letra = font();
  letra.setPointSizeF(letra.pointSizeF() * 0.85);
  pintor.setFont(letra);
  pintor.translate(width() / 2.0, height() / 2.0);
  double maximo = 0;
  for (const AreasSector& s : sectores_) maximo = std::max(maximo, s.Total());
  // Los rótulos de este y oeste van al lado de sus barras.
  const double cabe = std::min(width() - 44, height()) / 2.0;
  const double lado = cabe * 0.62;
  const double largo = std::max(10.0, cabe - lado / 2 - 34);
  for (std::size_t s = 0; s < kSectores; ++s) PintarBarra(pintor, s, maximo, lado, largo);
  pintor.setBrush(palette().color(QPalette::Base));
  pintor.setPen(QPen(palette().color(QPalette::Mid), 1.2));
  const QRectF planta(-lado / 2, -lado / 2, lado, lado);
  pintor.drawRect(planta);
  pintor.setPen(palette().color(QPalette::WindowText));
  if (centro_ && centro_->Total() > 0) {
    if (centro_->huecos > 0) {
      const double parte = std::sqrt(centro_->huecos / centro_->Total()) * lado;
      pintor.setPen(Qt::NoPen);
      pintor.setBrush(ColorHueco(palette()));
      pintor.drawRect(QRectF(-parte / 2, -parte / 2, parte, parte));
      pintor.setPen(palette().color(QPalette::WindowText));
    }
    pintor.drawText(planta, Qt::AlignCenter, Area(centro_->Total()) + " m²");
  } else {
    double total = 0;
    for (const AreasSector& s : sectores_) total += s.Total();
    if (total > 0) pintor.drawText(planta, Qt::AlignCenter, Area(total) + " m²");
  }
}

DibujoReparto::DibujoReparto(QWidget* padre) : QWidget(padre) {
  setAccessibleName(tr("Área por clase de elemento"));
}

void DibujoReparto::Poner(const std::vector<Barra>& barras) {
  barras_.clear();
  std::copy_if(barras.begin(), barras.end(), std::back_inserter(barras_),
               [](const Barra& b) { return b.area > 0; });
  update();
}

void DibujoReparto::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  double maximo = 0;
  for (const Barra& b : barras_) maximo = std::max(maximo, b.area);
  const int paso = fontMetrics().height() * 2 + 6;
  int y = 4;
  for (const Barra& b : barras_) {
    pintor.setPen(palette().color(QPalette::WindowText));
    pintor.drawText(QRect(2, y, width() - 4, fontMetrics().height()), Qt::AlignLeft, b.nombre);
    pintor.drawText(QRect(2, y, width() - 4, fontMetrics().height()), Qt::AlignRight,
                    Area(b.area) + " m²");
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(ColorOpaco(palette()));
    pintor.drawRect(QRectF(2, y + fontMetrics().height() + 2, (width() - 4) * b.area / maximo, 8));
    y += paso;
  }
}

}  // namespace novex::gui
