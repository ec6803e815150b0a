#include "shell/gui/CalendarioUso.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "base/Calendario.h"
#include "outputs/PeriodoSerie.h"
#include "shell/gui/ColoresDia.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kAnchoMes = 92;
constexpr int kDiasFila = 31;

QString NombreMes(int mes) {
  return Q(kNombreMesCompleto.at(static_cast<std::size_t>(mes)));
}

}  // namespace

CalendarioUso::CalendarioUso(QWidget* padre) : QWidget(padre) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(tr("Calendario"));
}

void CalendarioUso::Poner(const std::array<int, 366>& calendario,
                          const std::array<bool, 13>& verano) {
  calendario_ = calendario;
  verano_ = verano;
  update();
}

QRectF CalendarioUso::Celda(int mes, int dia) const {
  const double ancho = static_cast<double>(width() - kAnchoMes) / kDiasFila;
  return {kAnchoMes + ancho * (dia - 1), static_cast<double>(kAltoCabecera + kAltoFila * (mes - 1)),
          ancho, kAltoFila};
}

QPoint CalendarioUso::Centro(int mes, int dia) const {
  return Celda(mes, dia).center().toPoint();
}

CalendarioUso::Dia CalendarioUso::DiaEn(const QPoint& punto) const {
  const int mes = (punto.y() - kAltoCabecera) / kAltoFila + 1;
  if (punto.y() < kAltoCabecera || mes > kMeses) return {};
  if (punto.x() < kAnchoMes) return {mes, 0};
  const int dia = (punto.x() - kAnchoMes) * kDiasFila / std::max(1, width() - kAnchoMes) + 1;
  return PosicionDia(mes, dia) ? Dia{mes, dia} : Dia{};
}

// Los días entre dos puntos del arrastre; en filas distintas, el recuadro que abarcan.
void CalendarioUso::Trazar(const Dia& desde, const Dia& hasta) {
  if (desde.mes == 0 || hasta.mes == 0) return;
  const auto [m1, m2] = std::minmax(desde.mes, hasta.mes);
  const bool enteros = desde.dia == 0 || hasta.dia == 0;
  const int d1 = enteros ? 1 : std::min(desde.dia, hasta.dia);
  const int d2 = enteros ? kDiasFila : std::max(desde.dia, hasta.dia);
  for (int m = m1; m <= m2; ++m)
    for (int d = d1; d <= d2; ++d)
      if (const auto posicion = PosicionDia(m, d)) trazo_.insert(*posicion);
  update();
}

void CalendarioUso::Acabar() {
  pintando_ = false;
  if (trazo_.empty()) return;
  const std::vector<std::size_t> posiciones(trazo_.begin(), trazo_.end());
  trazo_.clear();
  update();
  emit Pintado(posiciones);
}

void CalendarioUso::mousePressEvent(QMouseEvent* evento) {
  const Dia dia = DiaEn(evento->pos());
  if (evento->button() != Qt::LeftButton || dia.mes == 0) return;
  pintando_ = true;
  ultimo_ = dia;
  cursor_ = {dia.mes, std::max(1, dia.dia)};
  Trazar(dia, dia);
}

void CalendarioUso::mouseMoveEvent(QMouseEvent* evento) {
  const Dia dia = DiaEn(evento->pos());
  if (!pintando_ || dia.mes == 0 || dia == ultimo_) return;
  trazo_.clear();
  Trazar(ultimo_, dia);
}

void CalendarioUso::mouseReleaseEvent(QMouseEvent* evento) {
  if (evento->button() == Qt::LeftButton && pintando_) Acabar();
}

void CalendarioUso::keyPressEvent(QKeyEvent* evento) {
  Dia nuevo = cursor_;
  switch (evento->key()) {
    case Qt::Key_Left:
      --nuevo.dia;
      break;
    case Qt::Key_Right:
      ++nuevo.dia;
      break;
    case Qt::Key_Up:
      --nuevo.mes;
      break;
    case Qt::Key_Down:
      ++nuevo.mes;
      break;
    case Qt::Key_Space:
      Trazar(cursor_, cursor_);
      return Acabar();
    default:
      if (evento->key() >= Qt::Key_0 && evento->key() <= Qt::Key_9)
        return emit PincelPedido(evento->key() - Qt::Key_0);
      return QWidget::keyPressEvent(evento);
  }
  if (!PosicionDia(nuevo.mes, nuevo.dia)) return;
  // Con mayúsculas se pinta por donde se pasa.
  if (evento->modifiers().testFlag(Qt::ShiftModifier)) {
    Trazar(cursor_, nuevo);
    Acabar();
  }
  cursor_ = nuevo;
  update();
}

bool CalendarioUso::event(QEvent* evento) {
  if (evento->type() != QEvent::ToolTip) return QWidget::event(evento);
  const auto* ayuda = static_cast<QHelpEvent*>(evento);
  const Dia dia = DiaEn(ayuda->pos());
  if (dia.mes == 0) {
    QToolTip::hideText();
  } else if (dia.dia == 0) {
    QToolTip::showText(ayuda->globalPos(), tr("Pinta todo %1").arg(NombreMes(dia.mes).toLower()),
                       this);
  } else {
    const int codigo = calendario_.at(*PosicionDia(dia.mes, dia.dia));
    const QString clase = codigo >= 0 && codigo < static_cast<int>(kCodigosDia)
                              ? Q(kNombresDia.at(static_cast<std::size_t>(codigo)))
                              : QString::number(codigo);
    QToolTip::showText(
        ayuda->globalPos(),
        tr("%1 de %2: %3").arg(QString::number(dia.dia), NombreMes(dia.mes).toLower(), clase),
        this);
  }
  return true;
}

void CalendarioUso::PintarDia(QPainter& p, int mes, int dia) const {
  const auto posicion = PosicionDia(mes, dia);
  if (!posicion) return;
  const int codigo = trazo_.count(*posicion) > 0 ? pincel_ : calendario_.at(*posicion);
  const QRectF celda = Celda(mes, dia).adjusted(1, 1, -1, -1);
  p.setPen(Qt::NoPen);
  p.setBrush(ColorDia(codigo));
  p.drawRoundedRect(celda, 2, 2);
  // La cifra de la clase, para quien no distingue los colores.
  QColor cifra = TextoSobreDia(codigo);
  cifra.setAlpha(170);
  p.setPen(cifra);
  p.drawText(celda, Qt::AlignCenter, QString::number(codigo));
  if (hasFocus() && cursor_ == Dia{mes, dia}) {
    p.setPen(QPen(palette().color(QPalette::WindowText), 2));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(celda, 2, 2);
  }
}

void CalendarioUso::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  QFont pequena = font();
  pequena.setPointSizeF(pequena.pointSizeF() * 0.8);
  p.setPen(palette().color(QPalette::PlaceholderText));
  p.setFont(pequena);
  for (int d = 1; d <= kDiasFila; ++d) {
    QRectF celda = Celda(1, d);
    celda.moveBottom(kAltoCabecera);
    p.drawText(celda, Qt::AlignHCenter | Qt::AlignBottom, QString::number(d));
  }
  for (int m = 1; m <= kMeses; ++m) {
    const QRectF nombre(0, kAltoCabecera + kAltoFila * (m - 1), kAnchoMes - 6, kAltoFila);
    QFont letra = font();
    letra.setBold(verano_.at(static_cast<std::size_t>(m)));
    p.setFont(letra);
    p.setPen(palette().color(QPalette::WindowText));
    p.drawText(nombre, Qt::AlignLeft | Qt::AlignVCenter, NombreMes(m));
    p.setFont(pequena);
    for (int d = 1; d <= kDiasMes.at(static_cast<std::size_t>(m)); ++d) PintarDia(p, m, d);
  }
}

}  // namespace novex::gui
