#include "shell/gui/EtiquetaEnergetica.h"

#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <algorithm>
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
  Poner(letra, valor, {}, {});
}

void EtiquetaEnergetica::Poner(const QString& letra, const QString& valor,
                               const QStringList& escala, const QString& aviso) {
  letra_ = letra;
  valor_ = valor;
  escala_ = escala;
  aviso_ = aviso;
  QStringList descripcion = {titulo_ + ": " + letra + " " + valor};
  descripcion << escala << aviso;
  descripcion.removeAll(QString());
  setAccessibleDescription(descripcion.join("; "));
  update();
}

// El título y, en la que lleva umbrales, su valor y su aviso. \returns dónde acaba
double EtiquetaEnergetica::PintarCabecera(QPainter& p) const {
  const double linea = fontMetrics().height() * 1.6;
  p.setPen(palette().color(QPalette::WindowText));
  if (escala_.isEmpty()) {
    p.drawText(QRectF(0, 0, width(), linea), Qt::AlignLeft | Qt::AlignVCenter, titulo_);
    return linea;
  }
  QFont negrita = font();
  negrita.setBold(true);
  p.setFont(negrita);
  const QRectF donde(0, 0, width(), linea);
  p.drawText(donde, Qt::AlignRight | Qt::AlignVCenter, valor_);
  const double valor = QFontMetricsF(negrita).horizontalAdvance(valor_) + 10;
  p.drawText(donde.adjusted(0, 0, -valor, 0), Qt::AlignLeft | Qt::AlignVCenter,
             QFontMetricsF(negrita).elidedText(titulo_, Qt::ElideRight, width() - valor));
  p.setFont(font());
  if (aviso_.isEmpty()) return linea;
  p.setPen(QColor(kColores.back()));
  const double alto = fontMetrics().height();
  p.drawText(QRectF(0, linea - 4, width(), alto), Qt::AlignLeft | Qt::AlignVCenter, aviso_);
  return linea + alto;
}

void EtiquetaEnergetica::PintarSencilla(QPainter& p, double arriba) const {
  const double paso = (height() - arriba) / kLetras;
  const int cual = PosicionLetra(letra_);
  QFont letras = font();
  letras.setBold(true);
  p.setFont(letras);
  for (int i = 0; i < kLetras; ++i) {
    const QString letra(QChar(u'A' + i));
    const QRectF r(0, arriba + i * paso + 1, width() * (0.22 + 0.06 * i), paso - 3);
    p.fillPath(Barra(r), ColorLetra(letra));
    p.setPen(TextoSobreLetra(letra));
    p.drawText(r.adjusted(0, 0, -r.height() * 0.6, 0), Qt::AlignRight | Qt::AlignVCenter, letra);
  }
  if (cual < 0) return;
  const QRectF flecha(width() * 0.66, arriba + cual * paso + 1, width() * 0.33, paso - 3);
  p.fillPath(Flecha(flecha), ColorLetra(letra_));
  p.setPen(TextoSobreLetra(letra_));
  p.drawText(flecha.adjusted(flecha.height() * 0.5, 0, -4, 0), Qt::AlignCenter, valor_);
}

void EtiquetaEnergetica::PintarConUmbrales(QPainter& p, double arriba) const {
  const bool entera = escala_.size() == kLetras;
  // Las bandas que no hay quedan al final.
  const auto bandas = entera ? kLetras - escala_.count(QString()) : kLetras;
  const double paso = std::min((height() - arriba) / static_cast<double>(bandas), width() * 0.15);
  const int cual = PosicionLetra(letra_);
  const double punta = (paso - 3) / 2;
  double texto = 0;
  for (const QString& banda : escala_)
    texto = std::max(texto, p.fontMetrics().horizontalAdvance(banda) * 1.0);
  const double flecha = std::max(38.0, width() * 0.2);
  const double ultima = width() - flecha - 6;
  const double primera = std::min(ultima, std::max(width() * 0.42, texto + punta + 12));
  for (int i = 0; i < kLetras; ++i) {
    if (entera && escala_[i].isEmpty()) continue;
    const QString letra(QChar(u'A' + i));
    const double ancho = primera + (ultima - primera) * i / (kLetras - 1);
    const QRectF r(0, arriba + i * paso + 1, ancho, paso - 3);
    QColor fondo = entera ? ColorLetra(letra) : palette().color(QPalette::WindowText);
    if (!entera) fondo.setAlphaF(0.08F);
    p.fillPath(Barra(r), fondo);
    if (!entera) continue;
    p.setPen(TextoSobreLetra(letra));
    p.drawText(r.adjusted(6, 0, -punta, 0), Qt::AlignLeft | Qt::AlignVCenter, escala_[i]);
  }
  QFont negrita = font();
  negrita.setBold(true);
  if (!entera) {
    p.setFont(negrita);
    p.setPen(palette().color(QPalette::WindowText));
    p.drawText(QRectF(0, arriba, primera, paso * kLetras), Qt::AlignCenter, escala_.join(" "));
  }
  if (!entera || cual < 0) return;
  negrita.setPixelSize(static_cast<int>(std::clamp(paso * 0.72, 11.0, 24.0)));
  p.setFont(negrita);
  const QRectF panel(width() - flecha, arriba + cual * paso + 1, flecha, paso - 3);
  p.fillPath(Flecha(panel), ColorLetra(letra_));
  p.setPen(TextoSobreLetra(letra_));
  p.drawText(panel.adjusted(punta, 0, -4, 0), Qt::AlignCenter, letra_);
}

void EtiquetaEnergetica::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const double arriba = PintarCabecera(p);
  if (escala_.isEmpty())
    PintarSencilla(p, arriba);
  else
    PintarConUmbrales(p, arriba);
}

QString ConLetrasDeColor(const QString& texto) {
  static const QRegularExpression kSuelta("\\b([A-G])\\b");
  QString rico;
  qsizetype hasta = 0;
  for (const QRegularExpressionMatch& m : kSuelta.globalMatch(texto)) {
    const QString letra = m.captured(1);
    rico += texto.mid(hasta, m.capturedStart() - hasta).toHtmlEscaped();
    rico += QString("<b style=\"background-color:%1;color:%2\">&nbsp;%3&nbsp;</b>")
                .arg(ColorLetra(letra).name(), TextoSobreLetra(letra).name(), letra);
    hasta = m.capturedEnd();
  }
  rico += texto.mid(hasta).toHtmlEscaped();
  return rico.replace("  ", "&nbsp; ");  // los blancos seguidos también separan
}

}  // namespace novex::gui
