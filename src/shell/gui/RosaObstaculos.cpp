#include "shell/gui/RosaObstaculos.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>
#include <cmath>

#include "base/NumeroTexto.h"
#include "demand/PosicionSolar.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr std::array<const char*, 5> kRumbos = {"O", "SO", "S", "SE", "E"};
// Desde el sur, positivo hacia el oeste, grados.
constexpr std::array<double, 5> kAcimutes = {90, 45, 0, -45, -90};
constexpr double kSemiancho = 22.5;
constexpr std::array<int, 3> kDias = {355, 80, 172};
constexpr int kHoras = 24;

QPointF EnElCielo(double acimut, double cenit) {
  const double a = qDegreesToRadians(acimut);
  return {-std::sin(a) * cenit / 90, std::cos(a) * cenit / 90};
}

QPolygonF Recorrido(double latitud, int dia) {
  QPolygonF camino;
  for (int hora = 1; hora <= kHoras; ++hora) {
    const PosicionSolar sol = CalcularPosicionSolar(latitud, dia, hora);
    if (sol.cosenoCenit > 0) camino << EnElCielo(sol.acimut, sol.cenit);
  }
  return camino;
}

// El trozo de cielo que hay bajo un ángulo en una dirección.
QPainterPath Sector(const QPointF& centro, double radio, double acimut, double elevacion) {
  QPainterPath sector;
  const auto borde = [&](double cenit, double desde, double hasta) {
    const double paso = (hasta - desde) / 12;
    for (int i = 0; i <= 12; ++i) {
      const QPointF punto = centro + radio * EnElCielo(desde + i * paso, cenit);
      if (sector.elementCount() == 0)
        sector.moveTo(punto);
      else
        sector.lineTo(punto);
    }
  };
  borde(90, acimut - kSemiancho, acimut + kSemiancho);
  borde(90 - elevacion, acimut + kSemiancho, acimut - kSemiancho);
  sector.closeSubpath();
  return sector;
}

}  // namespace

double ElevacionObstaculo(double altura, double distancia) {
  return altura <= 0 ? 0 : qRadiansToDegrees(std::atan2(altura, distancia));
}

RosaObstaculos::RosaObstaculos(QWidget* padre) : QWidget(padre) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  setToolTip(
      tr("El cielo visto desde el edificio: el borde es el horizonte y el centro el cenit. Las "
         "líneas son el camino del sol en los solsticios y en los equinoccios."));
}

void RosaObstaculos::Poner(const ObstaculosRemotos& o, double latitud) {
  elevaciones_ = {ElevacionObstaculo(o.Oeste_Altura, o.Oeste_Distancia),
                  ElevacionObstaculo(o.SurOeste_Altura, o.SurOeste_Distancia),
                  ElevacionObstaculo(o.Sur_Altura, o.Sur_Distancia),
                  ElevacionObstaculo(o.SurEste_Altura, o.SurEste_Distancia),
                  ElevacionObstaculo(o.Este_Altura, o.Este_Distancia)};
  if (!trazados_ || latitud != latitud_)
    for (std::size_t i = 0; i < soles_.size(); ++i) soles_[i] = Recorrido(latitud, kDias[i]);
  trazados_ = true;
  latitud_ = latitud;
  update();
}

void RosaObstaculos::PintarSol(QPainter& p, const QPointF& centro, double radio) {
  QColor color(0xd9, 0x8e, 0x04);
  p.setBrush(Qt::NoBrush);
  for (std::size_t i = 0; i < soles_.size(); ++i) {
    p.setPen(QPen(color, i == 1 ? 1.0 : 1.8));
    QPolygonF camino;
    for (const QPointF& punto : soles_[i]) camino << centro + radio * punto;
    p.drawPolyline(camino);
  }
}

void RosaObstaculos::PintarObstaculos(QPainter& p, const QPointF& centro, double radio) {
  QColor lleno = palette().color(QPalette::WindowText);
  lleno.setAlpha(110);
  p.setPen(Qt::NoPen);
  p.setBrush(lleno);
  for (std::size_t i = 0; i < kRumbos.size(); ++i)
    if (elevaciones_[i] > 0) p.drawPath(Sector(centro, radio, kAcimutes[i], elevaciones_[i]));
}

void RosaObstaculos::PintarRumbos(QPainter& p, const QPointF& centro, double radio) {
  const double fuera = 90 * (1 + 1.1 * fontMetrics().height() / radio);
  const auto rotulo = [&](double acimut, const QString& texto) {
    const QPointF punto = centro + radio * EnElCielo(acimut, fuera);
    QRectF caja(0, 0, 60, fontMetrics().height() * 2.2);
    caja.moveCenter(punto);
    p.drawText(caja, Qt::AlignCenter, texto);
  };
  p.setPen(palette().color(QPalette::WindowText));
  rotulo(180, "N");
  for (std::size_t i = 0; i < kRumbos.size(); ++i) {
    const QString grados =
        elevaciones_[i] > 0 ? "\n" + Q(Fijo(elevaciones_[i], 0)) + "º" : QString();
    rotulo(kAcimutes[i], kRumbos[i] + grados);
  }
}

void RosaObstaculos::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QPointF centro = QRectF(rect()).center();
  const double radio = std::min(width(), height()) / 2.0 - fontMetrics().height() * 2.2;
  if (radio < 20) return;
  p.setPen(QPen(palette().color(QPalette::Mid), 1));
  p.setBrush(palette().color(QPalette::Base));
  p.drawEllipse(centro, radio, radio);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(palette().color(QPalette::Mid), 0.8, Qt::DotLine));
  for (const double parte : {1.0 / 3, 2.0 / 3}) p.drawEllipse(centro, radio * parte, radio * parte);
  PintarObstaculos(p, centro, radio);
  PintarSol(p, centro, radio);
  PintarRumbos(p, centro, radio);
  p.setPen(Qt::NoPen);
  p.setBrush(palette().color(QPalette::Highlight));
  p.drawRect(QRectF(centro.x() - 4, centro.y() - 4, 8, 8));
}

}  // namespace novex::gui
