#include "shell/gui/MapaCalor.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "base/NumeroTexto.h"
#include "shell/gui/ColoresDia.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kHoras = 24;
constexpr int kIzquierda = 42;
constexpr int kAbajo = 38;
constexpr int kDerecha = 92;
constexpr int kAlturaLetra = 16;
constexpr double kOscuro = 128;

// De poco a mucho sin cambio de signo; las dos últimas, desde el fondo: 0 es que no hay nada.
constexpr std::array<QRgb, 6> kGradual = {0xff30307c, 0xff2f6fb0, 0xff2aa39a,
                                          0xff86c35a, 0xffecc846, 0xffd7482f};
constexpr std::array<QRgb, 4> kDesdeClaro = {0xfff7c873, 0xffe8813a, 0xffb5303a, 0xff5c1246};
constexpr std::array<QRgb, 4> kDesdeOscuro = {0xff5c1f4c, 0xffb5303a, 0xffe8813a, 0xfffbe08a};
// Lo más negativo y lo más positivo, con fondo claro y con fondo oscuro.
constexpr std::array<QRgb, 2> kSignos = {0xff2f6fb0, 0xffcf3f2c};
constexpr std::array<QRgb, 2> kSignosOscuro = {0xff74bbff, 0xffff8a66};

QColor Mezcla(const QColor& a, const QColor& b, double parte) {
  const auto canal = [&](int x, int y) {
    return static_cast<int>(std::lround(x + (y - x) * parte));
  };
  return {canal(a.red(), b.red()), canal(a.green(), b.green()), canal(a.blue(), b.blue())};
}

QColor EnEscala(std::span<const QRgb> colores, double parte) {
  const double donde = std::clamp(parte, 0.0, 1.0) * static_cast<double>(colores.size() - 1);
  const auto i = std::min(static_cast<std::size_t>(donde), colores.size() - 2);
  return Mezcla(QColor(colores[i]), QColor(colores[i + 1]), donde - static_cast<double>(i));
}

// Paso entre marcas: 1, 2 o 5 por una potencia de diez, con unas cinco en el intervalo.
double PasoRedondo(double intervalo) {
  const double base = std::pow(10.0, std::floor(std::log10(intervalo / 4)));
  for (const double factor : {1.0, 2.0, 5.0})
    if (intervalo / (base * factor) <= 6) return base * factor;
  return base * 10;
}

QString Cifra(double valor) {
  return Q(General(static_cast<float>(valor))).replace('.', ',');
}

}  // namespace

MapaCalor::MapaCalor(QWidget* padre) : QWidget(padre) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMouseTracking(true);
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(0, 0, 0, 0);
  auto* fila = new QHBoxLayout;
  titulo_ = new QLabel(this);
  titulo_->setProperty("papel", "seccion");
  titulo_->setWordWrap(true);
  fila->addWidget(titulo_, 1);
  lectura_ = new QLabel(this);
  lectura_->setObjectName("lecturaMapa");
  lectura_->setProperty("papel", "nota");
  fila->addWidget(lectura_, 0, Qt::AlignBottom);
  menu_ = new QToolButton(this);
  menu_->setText("⋯");
  menu_->setToolTip(tr("Guardar la imagen"));
  menu_->setAutoRaise(true);
  menu_->setPopupMode(QToolButton::InstantPopup);
  auto* ordenes = new QMenu(menu_);
  ordenes->addAction(tr("Guardar como PNG…"), this, &MapaCalor::Guardar);
  menu_->setMenu(ordenes);
  fila->addWidget(menu_, 0, Qt::AlignBottom);
  columna->addLayout(fila);
  columna->addStretch(1);
}

void MapaCalor::Poner(const SuperficieSerie& superficie, const std::vector<TramoPeriodo>& tramos) {
  superficie_ = superficie;
  tramos_ = tramos;
  titulo_->setText(Q(superficie.titulo));
  lectura_->clear();
  bool primero = true;
  for (const auto& dia : superficie.valores)
    for (const float v : dia) {
      const auto valor = static_cast<double>(v);
      menor_ = primero ? valor : std::min(menor_, valor);
      mayor_ = primero ? valor : std::max(mayor_, valor);
      primero = false;
    }
  if (mayor_ - menor_ < 1e-9) mayor_ = menor_ + 1;
  HacerImagen();
  update();
}

QColor MapaCalor::Color(double valor) const {
  const QColor fondo = palette().color(QPalette::Base);
  const bool oscuro = fondo.lightness() < kOscuro;
  if (menor_ < 0 && mayor_ >= 0 && superficie_.unidad != "ºC") {
    const double tope = std::max(-menor_, mayor_);
    return Mezcla(fondo, QColor((oscuro ? kSignosOscuro : kSignos)[valor < 0 ? 0 : 1]),
                  std::pow(std::min(1.0, std::abs(valor) / tope), 0.7));
  }
  const double parte = (valor - menor_) / (mayor_ - menor_);
  if (menor_ != 0) return EnEscala(kGradual, parte);
  const auto& colores = oscuro ? kDesdeOscuro : kDesdeClaro;
  std::array<QRgb, 5> escala{};
  escala[0] = fondo.rgb();
  std::copy(colores.begin(), colores.end(), escala.begin() + 1);
  return EnEscala(escala, parte);
}

void MapaCalor::HacerImagen() {
  if (superficie_.valores.empty()) {
    imagen_ = QImage();
    return;
  }
  imagen_ = QImage(static_cast<int>(superficie_.valores.size()), kHoras, QImage::Format_RGB32);
  for (int d = 0; d < imagen_.width(); ++d)
    for (int h = 0; h < kHoras; ++h)
      imagen_.setPixel(
          d, kHoras - 1 - h,
          Color(static_cast<double>(
                    superficie_.valores[static_cast<std::size_t>(d)][static_cast<std::size_t>(h)]))
              .rgb());
}

void MapaCalor::changeEvent(QEvent* evento) {
  if (evento->type() == QEvent::PaletteChange) HacerImagen();
  QWidget::changeEvent(evento);
}

QRectF MapaCalor::Zona() const {
  const double arriba = std::max(titulo_->geometry().bottom(), menu_->geometry().bottom()) + 8.0;
  return {kIzquierda, arriba, static_cast<double>(width() - kIzquierda - kDerecha),
          height() - arriba - kAbajo};
}

QString MapaCalor::Lectura(std::size_t dia, int hora) const {
  const int h = (superficie_.dias.at(dia) - 1) * kHoras + hora;
  const float valor = superficie_.valores.at(dia).at(static_cast<std::size_t>(hora - 1));
  return Q(TextoHora(h)) + ": " + Cifra(static_cast<double>(valor)) + " " + Q(superficie_.unidad);
}

QString MapaCalor::LecturaEn(const QPointF& punto) const {
  const QRectF zona = Zona();
  if (!zona.contains(punto) || superficie_.dias.empty()) return {};
  const auto dias = static_cast<double>(superficie_.dias.size());
  const auto dia =
      static_cast<std::size_t>(std::min(dias - 1, (punto.x() - zona.left()) / zona.width() * dias));
  const int hora = std::clamp(
      static_cast<int>((zona.bottom() - punto.y()) / zona.height() * kHoras) + 1, 1, kHoras);
  return Lectura(dia, hora);
}

void MapaCalor::mouseMoveEvent(QMouseEvent* evento) {
  lectura_->setText(LecturaEn(evento->position()));
}

void MapaCalor::leaveEvent(QEvent*) {
  lectura_->clear();
}

void MapaCalor::paintEvent(QPaintEvent*) {
  if (imagen_.isNull()) return;
  QPainter p(this);
  const QRectF zona = Zona();
  p.drawImage(zona, imagen_);
  p.setPen(ColorReja(palette()));
  p.setBrush(Qt::NoBrush);
  p.drawRect(zona);
  PintarEjes(p, zona);
  PintarEscala(p, zona);
}

void MapaCalor::PintarEjes(QPainter& p, const QRectF& zona) const {
  const QColor texto = palette().color(QPalette::WindowText);
  const double porDia = zona.width() / static_cast<double>(superficie_.dias.size());
  double x = zona.left();
  const int antes = (superficie_.dias.front() - 1) * kHoras;
  for (const TramoPeriodo& tramo : tramos_) {
    const double fin = zona.left() + porDia * (tramo.ultima - antes) / kHoras;
    p.setPen(ColorReja(palette()));
    p.drawLine(QPointF(fin, zona.bottom()), QPointF(fin, zona.bottom() + 4));
    p.setPen(texto);
    p.drawText(QRectF(x, zona.bottom() + 3, fin - x, kAlturaLetra), Qt::AlignCenter,
               Q(tramo.nombre));
    x = fin;
  }
  // Los meses y los días con su mes se entienden sin decirlo.
  if (tramos_.size() > kMeses)
    p.drawText(QRectF(zona.left(), zona.bottom() + 3 + kAlturaLetra, zona.width(), kAlturaLetra),
               Qt::AlignCenter, tr("Día"));
  for (const int h : {0, 6, 12, 18, 24}) {
    const double y = zona.bottom() - zona.height() * h / kHoras;
    p.setPen(ColorReja(palette()));
    p.drawLine(QPointF(zona.left() - 4, y), QPointF(zona.left(), y));
    p.setPen(texto);
    p.drawText(QRectF(0, y - kAlturaLetra / 2.0, zona.left() - 7, kAlturaLetra),
               Qt::AlignRight | Qt::AlignVCenter, QString::number(h) + " h");
  }
}

void MapaCalor::PintarEscala(QPainter& p, const QRectF& zona) const {
  const QRectF escala(zona.right() + 14, zona.top() + kAlturaLetra + 4, 14,
                      zona.height() - kAlturaLetra - 4);
  const QColor texto = palette().color(QPalette::WindowText);
  for (int i = 0; i < static_cast<int>(escala.height()); ++i)
    p.fillRect(QRectF(escala.left(), escala.bottom() - i - 1, escala.width(), 1),
               Color(menor_ + (mayor_ - menor_) * i / escala.height()));
  p.setPen(ColorReja(palette()));
  p.drawRect(escala);
  p.setPen(texto);
  p.drawText(QRectF(escala.left(), zona.top() - 4, width() - escala.left(), kAlturaLetra),
             Qt::AlignLeft | Qt::AlignVCenter, Q(superficie_.unidad));
  const double paso = PasoRedondo(mayor_ - menor_);
  for (double v = std::ceil(menor_ / paso) * paso; v <= mayor_ + paso * 1e-6; v += paso) {
    const double y = escala.bottom() - (v - menor_) / (mayor_ - menor_) * escala.height();
    p.drawLine(QPointF(escala.right(), y), QPointF(escala.right() + 3, y));
    p.drawText(QRectF(escala.right() + 6, y - kAlturaLetra / 2.0, width() - escala.right() - 6,
                      kAlturaLetra),
               Qt::AlignLeft | Qt::AlignVCenter, Cifra(std::abs(v) < paso * 1e-6 ? 0 : v));
  }
}

void MapaCalor::Guardar() {
  QString ruta = QFileDialog::getSaveFileName(this, tr("Guardar gráfico"), {}, "PNG (*.png)");
  if (ruta.isEmpty()) return;
  if (!ruta.endsWith(".png", Qt::CaseInsensitive)) ruta += ".png";
  if (!grab().save(ruta, "PNG"))
    QMessageBox::warning(this, "AVISO", tr("No se puede escribir %1").arg(ruta));
}

}  // namespace novex::gui
