#include "shell/gui/GraficoHorario.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "entry/Horarios.h"
#include "shell/gui/ColoresDia.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kHoras = 24;
constexpr int kArriba = 8;
constexpr int kAbajo = 20;
constexpr int kHorasEntreRotulos = 2;
constexpr int kTransparencia = 60;

float Maximo(const PerfilDiario& perfil) {
  return *std::max_element(perfil.begin() + 1, perfil.end());
}

// El escalón de un día en un recuadro cuya altura son `maximo` unidades.
QPainterPath Escalones(const PerfilDiario& perfil, const QRectF& zona, double maximo) {
  const auto y = [&](std::size_t h) {
    return zona.bottom() - zona.height() * static_cast<double>(perfil[h]) / maximo;
  };
  QPainterPath linea(QPointF(zona.left(), y(1)));
  for (std::size_t h = 1; h <= kHoras; ++h) {
    linea.lineTo(zona.left() + zona.width() * static_cast<double>(h - 1) / kHoras, y(h));
    linea.lineTo(zona.left() + zona.width() * static_cast<double>(h) / kHoras, y(h));
  }
  return linea;
}

void PintarRelleno(QPainter& p, QPainterPath linea, const QRectF& zona, QColor color) {
  linea.lineTo(zona.bottomRight());
  linea.lineTo(zona.bottomLeft());
  linea.closeSubpath();
  color.setAlpha(kTransparencia);
  p.fillPath(linea, color);
}

// Un final de eje redondo: 1, 2, 2.5 o 5 por una potencia de diez.
double FinDeEje(double maximo) {
  if (maximo <= 0) return 1;
  const double potencia = std::pow(10, std::floor(std::log10(maximo)));
  for (const double paso : {1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 8.0})
    if (maximo <= paso * potencia * 1.0001) return paso * potencia;
  return 10 * potencia;
}

}  // namespace

GraficoHorario::GraficoHorario(QWidget* padre) : QWidget(padre) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMaximumHeight(230);
}

void GraficoHorario::Poner(const Tablas& tablas, const std::array<bool, kClasesDia>& usadas,
                           const QString& unidad) {
  tablas_ = tablas;
  usadas_ = usadas;
  unidad_ = unidad;
  update();
}

void GraficoHorario::Elegir(std::size_t clase) {
  elegida_ = std::min(clase, kClasesDia - 1);
  update();
}

void GraficoHorario::Alinear(int izquierda, int ancho) {
  izquierda_ = izquierda;
  ancho_ = ancho;
  update();
}

void GraficoHorario::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QRectF zona(izquierda_, kArriba, ancho_ > 0 ? ancho_ : width() - izquierda_ - 8,
                    height() - kArriba - kAbajo);
  float mayor = Maximo(tablas_[elegida_]);
  for (std::size_t c = 0; c < kClasesDia; ++c)
    if (usadas_[c]) mayor = std::max(mayor, Maximo(tablas_[c]));
  const double maximo = FinDeEje(static_cast<double>(mayor));
  const QColor suave = ColorReja(palette());
  const QColor texto = palette().color(QPalette::PlaceholderText);

  for (const double parte : {0.0, 0.5, 1.0}) {
    const double y = zona.bottom() - zona.height() * parte;
    p.setPen(QPen(suave, 1, parte == 0.0 ? Qt::SolidLine : Qt::DotLine));
    p.drawLine(QPointF(zona.left(), y), QPointF(zona.right(), y));
    p.setPen(texto);
    p.drawText(QRectF(0, y - 9, izquierda_ - 8, 18), Qt::AlignRight | Qt::AlignVCenter,
               Q(TextoHora(static_cast<float>(maximo * parte))) +
                   (parte == 1.0 ? " " + unidad_ : QString()));
  }
  for (int h = 0; h <= kHoras; h += kHorasEntreRotulos) {
    const double x = zona.left() + zona.width() * h / kHoras;
    p.drawText(QRectF(x - 20, zona.bottom() + 2, 40, kAbajo - 2), Qt::AlignHCenter | Qt::AlignTop,
               QString::number(h) + (h == kHoras ? " h" : QString()));
  }
  p.setBrush(Qt::NoBrush);
  for (std::size_t c = 0; c < kClasesDia; ++c) {
    if (!usadas_[c] || c == elegida_) continue;
    p.setPen(QPen(ColorDia(static_cast<int>(c) + 1), 1));
    p.drawPath(Escalones(tablas_[c], zona, maximo));
  }
  const QColor color = ColorDia(static_cast<int>(elegida_) + 1);
  const QPainterPath linea = Escalones(tablas_[elegida_], zona, maximo);
  PintarRelleno(p, linea, zona, color);
  p.setPen(QPen(color, 2.5));
  p.drawPath(linea);
}

BotonFamilia::BotonFamilia(QWidget* padre) : QAbstractButton(padre) {
  setCheckable(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setFocusPolicy(Qt::StrongFocus);
}

void BotonFamilia::Poner(const QString& rotulo, const PerfilDiario& perfil, const QColor& color) {
  setText(rotulo);
  perfil_ = perfil;
  color_ = color;
  update();
}

void BotonFamilia::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QRectF borde = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  const bool senalado = isChecked() || hasFocus();
  p.setPen(QPen(palette().color(senalado ? QPalette::Highlight : QPalette::Midlight),
                isChecked() ? 2 : 1));
  p.setBrush(isChecked() || underMouse() ? palette().color(QPalette::Base)
                                         : QColor(Qt::transparent));
  p.drawRoundedRect(borde, 4, 4);
  QFont letra = font();
  letra.setPointSizeF(letra.pointSizeF() * 0.85);
  letra.setBold(isChecked());
  p.setFont(letra);
  p.setPen(palette().color(QPalette::WindowText));
  const QRectF arriba = borde.adjusted(6, 3, -4, 0);
  p.drawText(arriba, Qt::AlignLeft | Qt::AlignTop,
             QFontMetricsF(letra).elidedText(text(), Qt::ElideRight, arriba.width()));
  const QRectF zona = borde.adjusted(6, QFontMetricsF(letra).height() + 7, -6, -5);
  const double maximo = std::max(1e-6, static_cast<double>(Maximo(perfil_)));
  const QPainterPath linea = Escalones(perfil_, zona, maximo);
  PintarRelleno(p, linea, zona, color_);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(color_, 1.5));
  p.drawPath(linea);
}

}  // namespace novex::gui
