#include "shell/gui/VistaGrafico.h"

#include <QApplication>
#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QCategoryAxis>
#include <QClipboard>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLegend>
#include <QLineSeries>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QSvgGenerator>
#include <QVBoxLayout>
#include <QValueAxis>
#include <array>
#include <cmath>

#include "base/LineaAligerada.h"
#include "base/NumeroTexto.h"
#include "entry/HojaDeCalculo.h"
#include "outputs/TextoTabla.h"
#include "shell/gui/TextoQt.h"
#include "shell/gui/VistaTabla.h"

namespace novex::gui {
namespace {

// Se distinguen con fondo claro y oscuro y sin ver bien el color.
constexpr std::array<QRgb, 10> kColores = {0xff3b7dd8, 0xffcc4b37, 0xff2a9d74, 0xffd9921a,
                                           0xff8b5fbf, 0xff4aa3a3, 0xffb06a8f, 0xff7f8790,
                                           0xff9a7b4f, 0xff6f9b2f};
// Una línea con más se dibuja aligerada.
constexpr std::size_t kMuchosPuntos = 1500;
// Los puntos de una nube a menos píxeles no se distinguen.
constexpr int kSeparacionPuntos = 2;

QColor ColorDeSerie(std::size_t i) {
  return QColor::fromRgb(kColores[i % kColores.size()]);
}

void Vestir(QAbstractAxis* eje, const QString& titulo, const QColor& texto) {
  QColor rejilla = texto;
  rejilla.setAlphaF(0.16F);
  eje->setLabelsColor(texto);
  eje->setTitleText(titulo);
  eje->setTitleBrush(texto);
  eje->setGridLineColor(rejilla);
  eje->setLinePenColor(rejilla);
}

// Un eje de valores que incluye el 0 si las series andan cerca.
QValueAxis* EjeDeValores(const Grafico& grafico, bool desdeCero, QObject* padre) {
  double menor = 0, mayor = 0;
  bool primero = true;
  for (const SerieGrafico& serie : grafico.series)
    for (const double v : serie.valores) {
      menor = primero ? v : std::min(menor, v);
      mayor = primero ? v : std::max(mayor, v);
      primero = false;
    }
  if (desdeCero || menor * mayor <= 0 || menor < 0.5 * mayor) {
    menor = std::min(menor, 0.0);
    mayor = std::max(mayor, 0.0);
  }
  if (mayor - menor < 1e-9) mayor = menor + 1;
  auto* eje = new QValueAxis(padre);
  eje->setRange(menor, mayor);
  eje->setTruncateLabels(false);  // en un gráfico bajo no quedarían más que puntos
  eje->applyNiceNumbers();
  // Los decimales que distinguen una marca de otra.
  const double paso = (eje->max() - eje->min()) / (eje->tickCount() - 1);
  int decimales = 0;
  while (decimales < 6 && std::abs(std::round(paso * std::pow(10, decimales)) -
                                   paso * std::pow(10, decimales)) > 1e-6)
    ++decimales;
  eje->setLabelFormat("%." + QString::number(decimales) + "f");
  return eje;
}

double PosicionX(const Grafico& grafico, std::size_t i) {
  return i < grafico.x.size() ? grafico.x[i] : static_cast<double>(i);
}

// Un punto de una nube.
QImage Marca(const QColor& color, int ancho) {
  QImage imagen(ancho, ancho, QImage::Format_ARGB32_Premultiplied);
  imagen.fill(Qt::transparent);
  QPainter pintor(&imagen);
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.setPen(Qt::NoPen);
  pintor.setBrush(color);
  pintor.drawEllipse(imagen.rect());
  return imagen;
}

QString Valor(double v) {
  return Q(General(static_cast<float>(v))).replace('.', ',');
}

}  // namespace

VistaGrafico::VistaGrafico(QWidget* padre) : QWidget(padre) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(0, 0, 0, 0);
  columna->setSpacing(2);
  auto* fila = new QHBoxLayout;
  titulo_ = new QLabel(this);
  titulo_->setProperty("papel", "seccion");
  titulo_->setWordWrap(true);
  fila->addWidget(titulo_, 1);
  lectura_ = new QLabel(this);
  lectura_->setProperty("papel", "nota");
  fila->addWidget(lectura_, 0, Qt::AlignBottom);
  menu_ = new QToolButton(this);
  menu_->setText("⋯");
  menu_->setToolTip(tr("Copiar los datos o guardar la imagen"));
  menu_->setAutoRaise(true);
  menu_->setPopupMode(QToolButton::InstantPopup);
  auto* ordenes = new QMenu(menu_);
  ordenes->addAction(tr("Ver todo"), this, &VistaGrafico::VerTodo);
  ordenes->addSeparator();
  ordenes->addAction(tr("Copiar datos"), this, &VistaGrafico::CopiarDatos);
  ordenes->addAction(tr("Exportar datos…"), this, [this] {
    GuardarTextoPreguntando(this, Q(grafico_.titulo), tr("Texto separado por ; (*.csv *.txt)"),
                            TextoSeparado(Datos()));
  });
  ordenes->addAction(tr("Guardar como PNG…"), this, [this] { GuardarPreguntando("PNG (*.png)"); });
  ordenes->addAction(tr("Guardar como SVG…"), this, [this] { GuardarPreguntando("SVG (*.svg)"); });
  menu_->setMenu(ordenes);
  fila->addWidget(menu_, 0, Qt::AlignBottom);
  columna->addLayout(fila);
  vista_ = new QChartView(this);
  vista_->setRenderHint(QPainter::Antialiasing);
  vista_->setFrameShape(QFrame::NoFrame);
  vista_->setStyleSheet("background: transparent");
  vista_->setMinimumSize(260, 180);
  vista_->chart()->setBackgroundVisible(false);
  vista_->chart()->setMargins({0, 0, 0, 0});
  vista_->chart()->legend()->setAlignment(Qt::AlignBottom);
  vista_->viewport()->setMouseTracking(true);
  vista_->viewport()->installEventFilter(this);
  columna->addWidget(vista_, 1);
}

void VistaGrafico::Poner(const Grafico& grafico, const std::optional<Grafico>& derecho) {
  largas_.clear();  // apuntan al gráfico que se cambia
  grafico_ = grafico;
  derecho_ = derecho;
  lectura_->clear();
  titulo_->setText(Q(grafico.titulo));
  titulo_->setVisible(!grafico.titulo.empty());
  QChart* dibujo = vista_->chart();
  dibujo->removeAllSeries();
  for (QAbstractAxis* eje : dibujo->axes()) {
    dibujo->removeAxis(eje);
    eje->deleteLater();
  }
  const bool barras = grafico.forma == Grafico::Forma::Barras;
  vista_->setRubberBand(barras ? QChartView::NoRubberBand : QChartView::RectangleRubberBand);
  if (barras) {
    PonerBarras(grafico);
  } else {
    PonerPuntos(grafico_, Qt::AlignLeft, 0);
    if (derecho_) PonerPuntos(*derecho_, Qt::AlignRight, grafico.series.size());
  }
  const std::size_t series = grafico.series.size() + (derecho ? derecho->series.size() : 0);
  dibujo->legend()->setVisible(series > 1);
  dibujo->legend()->setLabelColor(palette().color(QPalette::WindowText));
}

void VistaGrafico::PonerBarras(const Grafico& grafico) {
  QChart* dibujo = vista_->chart();
  const QColor texto = palette().color(QPalette::WindowText);
  auto* barras = new QBarSeries(dibujo);
  for (std::size_t s = 0; s < grafico.series.size(); ++s) {
    auto* conjunto = new QBarSet(Q(grafico.series[s].nombre), barras);
    for (const double v : grafico.series[s].valores) conjunto->append(v);
    conjunto->setColor(ColorDeSerie(s));
    conjunto->setBorderColor(Qt::transparent);
    barras->append(conjunto);
  }
  dibujo->addSeries(barras);
  auto* x = new QBarCategoryAxis(dibujo);
  // Una posición repetida no sería una barra más: se distingue con un blanco que no se ve.
  QStringList nombres;
  for (const std::string& p : grafico.posiciones) {
    QString nombre = Q(p);
    while (nombres.contains(nombre)) nombre += QChar(0x200b);
    nombres << nombre;
  }
  x->append(nombres);
  Vestir(x, Q(grafico.ejeX), texto);
  x->setGridLineVisible(false);
  QValueAxis* y = EjeDeValores(grafico, true, dibujo);
  Vestir(y, Q(grafico.ejeY), texto);
  dibujo->addAxis(x, Qt::AlignBottom);
  dibujo->addAxis(y, Qt::AlignLeft);
  barras->attachAxis(x);
  barras->attachAxis(y);
  barras->setBarWidth(0.7);
  InclinarRotulos();
}

void VistaGrafico::InclinarRotulos() {
  constexpr int kEje = 80;  // lo que ocupan los valores y los márgenes
  const auto ejes = vista_->chart()->axes(Qt::Horizontal);
  for (QAbstractAxis* eje : ejes) {
    auto* x = qobject_cast<QBarCategoryAxis*>(eje);
    if (x == nullptr || x->count() == 0) continue;
    int ancho = 0;
    const QStringList nombres = x->categories();
    for (const QString& nombre : nombres)
      ancho = std::max(ancho, QFontMetrics(x->labelsFont()).horizontalAdvance(nombre));
    const bool caben = ancho + 6 <= (vista_->width() - kEje) / x->count();
    x->setLabelsAngle(caben ? 0 : -90);  // inclinados, los de los bordes no salen
    x->setTruncateLabels(caben);
  }
}

void VistaGrafico::resizeEvent(QResizeEvent* evento) {
  QWidget::resizeEvent(evento);
  InclinarRotulos();
}

QValueAxis* VistaGrafico::PonerEjeX(const Grafico& grafico) {
  QChart* dibujo = vista_->chart();
  const QColor texto = palette().color(QPalette::WindowText);
  QValueAxis* x = nullptr;
  if (!tramosX_.empty()) {
    auto* partido = new QCategoryAxis(dibujo);
    partido->setStartValue(inicioX_);
    for (const auto& [rotulo, fin] : tramosX_) partido->append(rotulo, fin);
    partido->setRange(inicioX_, tramosX_.back().second);
    x = partido;
  } else {
    x = new QValueAxis(dibujo);
    const std::size_t cuantas = std::max(grafico.x.size(), grafico.posiciones.size());
    double menor = PosicionX(grafico, 0), mayor = menor;
    for (std::size_t i = 0; i < cuantas; ++i) {
      menor = std::min(menor, PosicionX(grafico, i));
      mayor = std::max(mayor, PosicionX(grafico, i));
    }
    x->setRange(menor, mayor > menor ? mayor : menor + 1);
    x->setTickCount(cuantas > 2 && cuantas < 14 ? static_cast<int>(cuantas) : 9);
    x->setLabelFormat(mayor - menor < 8 ? "%.2g" : "%.0f");
    if (grafico.forma == Grafico::Forma::Puntos) x->applyNiceNumbers();
  }
  Vestir(x, tramosX_.empty() ? Q(grafico.ejeX) : tituloTramos_, texto);
  dibujo->addAxis(x, Qt::AlignBottom);
  connect(x, &QValueAxis::rangeChanged, this, [this] {
    for (const Larga& larga : largas_) Aligerar(larga);
  });
  return x;
}

void VistaGrafico::PonerPuntos(const Grafico& grafico, Qt::Alignment lado,
                               std::size_t primerColor) {
  QChart* dibujo = vista_->chart();
  auto ejesX = dibujo->axes(Qt::Horizontal);
  auto* x = ejesX.isEmpty() ? PonerEjeX(grafico) : qobject_cast<QValueAxis*>(ejesX.first());
  if (grafico.series.empty()) return;
  QValueAxis* y = EjeDeValores(grafico, false, dibujo);
  Vestir(y, Q(grafico.ejeY), palette().color(QPalette::WindowText));
  if (lado == Qt::AlignRight && !grafico_.series.empty()) y->setGridLineVisible(false);
  dibujo->addAxis(y, lado);
  for (std::size_t s = 0; s < grafico.series.size(); ++s) {
    const SerieGrafico& serie = grafico.series[s];
    const QColor color = ColorDeSerie(primerColor + s);
    auto* linea = new QLineSeries(dibujo);
    if (grafico.forma == Grafico::Forma::Puntos) {
      // Una línea sin trazo y con marcas: una serie de puntos crea un objeto por cada uno.
      const int ancho = serie.valores.size() > 500 ? 3 : 6;
      linea->setPen(QPen(color, 1, Qt::NoPen));
      linea->setLightMarker(Marca(color, ancho));
      linea->setMarkerSize(ancho);
    } else {
      linea->setPen(QPen(color, serie.valores.size() > 1000 ? 1 : 2));
    }
    linea->setName(Q(serie.nombre) +
                   (lado == Qt::AlignRight ? " " + tr("(eje derecho)") : QString()));
    PonerPuntosDe(linea, grafico, serie);
    dibujo->addSeries(linea);
    linea->attachAxis(x);
    linea->attachAxis(y);
  }
}

void VistaGrafico::PonerPuntosDe(QXYSeries* dibujada, const Grafico& grafico,
                                 const SerieGrafico& serie) {
  if (serie.valores.size() > kMuchosPuntos && grafico.x.size() == serie.valores.size()) {
    largas_.push_back({dibujada, &grafico, &serie});
    return Aligerar(largas_.back());
  }
  QList<QPointF> puntos;
  puntos.reserve(static_cast<qsizetype>(serie.valores.size()));
  for (std::size_t i = 0; i < serie.valores.size(); ++i)
    puntos.append({PosicionX(grafico, i), serie.valores[i]});
  dibujada->replace(puntos);
}

void VistaGrafico::Aligerar(const Larga& l) {
  const auto* x = qobject_cast<QValueAxis*>(vista_->chart()->axes(Qt::Horizontal).first());
  if (x == nullptr) return;
  const auto aligerada =
      l.grafico->forma == Grafico::Forma::Puntos
          ? AligerarNube(l.grafico->x, l.serie->valores, x->min(), x->max(),
                         vista_->width() / kSeparacionPuntos, vista_->height() / kSeparacionPuntos)
          : AligerarLinea(l.grafico->x, l.serie->valores, x->min(), x->max(), vista_->width());
  QList<QPointF> puntos;
  puntos.reserve(static_cast<qsizetype>(aligerada.size()));
  for (const auto& [donde, valor] : aligerada) puntos.append({donde, valor});
  l.dibujada->replace(puntos);
}

void VistaGrafico::PartirX(double inicio, std::vector<std::pair<QString, double>> tramos,
                           const QString& titulo) {
  inicioX_ = inicio;
  tituloTramos_ = titulo;
  tramosX_ = std::move(tramos);
}

QString VistaGrafico::Lectura(double x) const {
  const std::size_t cuantas = std::max(grafico_.x.size(), grafico_.posiciones.size());
  if (cuantas == 0) return {};
  std::size_t cerca = 0;
  for (std::size_t i = 1; i < cuantas; ++i)
    if (std::abs(PosicionX(grafico_, i) - x) < std::abs(PosicionX(grafico_, cerca) - x)) cerca = i;
  QStringList textos;
  const auto anadir = [&](const Grafico& grafico, bool varias) {
    for (const SerieGrafico& serie : grafico.series)
      if (cerca < serie.valores.size())
        textos << (varias ? Q(serie.nombre) + " " : QString()) + Valor(serie.valores[cerca]);
  };
  anadir(grafico_, grafico_.series.size() > 1 || derecho_);
  if (derecho_) anadir(*derecho_, true);
  const QString donde = cerca < grafico_.posiciones.size() ? Q(grafico_.posiciones[cerca])
                        : decirX_                          ? decirX_(PosicionX(grafico_, cerca))
                                                           : Valor(PosicionX(grafico_, cerca));
  return donde + ": " + textos.join(" · ");
}

QString VistaGrafico::LecturaEn(const QPointF& donde) const {
  if (grafico_.forma != Grafico::Forma::Puntos || grafico_.series.empty())
    return Lectura(donde.x());
  const auto ancho = [&](Qt::Orientation lado) {
    const auto* eje = qobject_cast<QValueAxis*>(vista_->chart()->axes(lado).first());
    return eje == nullptr ? 1.0 : eje->max() - eje->min();
  };
  const double anchoX = ancho(Qt::Horizontal), anchoY = ancho(Qt::Vertical);
  QPointF cerca;
  double menor = -1;
  for (const SerieGrafico& serie : grafico_.series)
    for (std::size_t i = 0; i < serie.valores.size(); ++i) {
      const QPointF punto(PosicionX(grafico_, i), serie.valores[i]);
      const double lejos =
          std::hypot((punto.x() - donde.x()) / anchoX, (punto.y() - donde.y()) / anchoY);
      if (menor >= 0 && lejos >= menor) continue;
      menor = lejos;
      cerca = punto;
    }
  return Q(grafico_.ejeX) + " " + Valor(cerca.x()) + " · " + Q(grafico_.ejeY) + " " +
         Valor(cerca.y());
}

Tabla VistaGrafico::Datos() const {
  Tabla tabla;
  tabla.titulo = grafico_.titulo;
  tabla.cabeceras = {grafico_.ejeX};
  std::vector<const SerieGrafico*> series;
  for (const SerieGrafico& s : grafico_.series) series.push_back(&s);
  if (derecho_)
    for (const SerieGrafico& s : derecho_->series) series.push_back(&s);
  for (const SerieGrafico* s : series)
    tabla.cabeceras.push_back(s->nombre.empty() ? grafico_.ejeY : s->nombre);
  const std::size_t cuantas = std::max(grafico_.x.size(), grafico_.posiciones.size());
  for (std::size_t i = 0; i < cuantas; ++i) {
    auto& fila = tabla.filas.emplace_back();
    if (i < grafico_.posiciones.size())
      fila.push_back(grafico_.posiciones[i]);
    else
      fila.push_back(General(static_cast<float>(PosicionX(grafico_, i))));
    for (const SerieGrafico* s : series)
      fila.push_back(i < s->valores.size() ? Celda(General(static_cast<float>(s->valores[i])))
                                           : Celda());
  }
  return tabla;
}

bool VistaGrafico::GuardarImagen(const QString& ruta) {
  if (!ruta.endsWith(".svg", Qt::CaseInsensitive)) {
    QPixmap imagen(vista_->size() * 2);
    imagen.setDevicePixelRatio(2);
    imagen.fill(palette().color(QPalette::Window));
    QPainter pintor(&imagen);
    vista_->render(&pintor);
    pintor.end();
    return imagen.save(ruta, "PNG");
  }
  QSvgGenerator svg;
  svg.setFileName(ruta);
  svg.setSize(vista_->size());
  svg.setViewBox(vista_->rect());
  svg.setTitle(Q(grafico_.titulo));
  QPainter pintor;
  if (!pintor.begin(&svg)) return false;
  vista_->render(&pintor);
  return pintor.end();
}

void VistaGrafico::GuardarPreguntando(const QString& filtro) {
  const QString ruta = QFileDialog::getSaveFileName(this, tr("Guardar gráfico"), {}, filtro);
  if (ruta.isEmpty()) return;
  const QString fin = filtro.startsWith("SVG") ? ".svg" : ".png";
  const QString conFin = ruta.endsWith(fin, Qt::CaseInsensitive) ? ruta : ruta + fin;
  if (!GuardarImagen(conFin))
    QMessageBox::warning(this, "AVISO", tr("No se puede escribir %1").arg(conFin));
}

void VistaGrafico::CopiarDatos() const {
  const Tabla tabla = Datos();
  CasillasHoja casillas = {tabla.cabeceras};
  for (const auto& fila : tabla.filas) {
    auto& otra = casillas.emplace_back();
    for (const Celda& celda : fila) otra.push_back(celda.texto);
  }
  QApplication::clipboard()->setText(Q(TextoDeCasillas(casillas)));
}

void VistaGrafico::VerTodo() {
  vista_->chart()->zoomReset();
}

bool VistaGrafico::AlRaton(QEvent* evento) {
  QChart* dibujo = vista_->chart();
  if (evento->type() == QEvent::Wheel && grafico_.forma != Grafico::Forma::Barras) {
    dibujo->zoom(static_cast<QWheelEvent*>(evento)->angleDelta().y() > 0 ? 1.25 : 0.8);
    return true;
  }
  if (evento->type() == QEvent::Leave) lectura_->clear();
  if (evento->type() != QEvent::MouseMove && evento->type() != QEvent::MouseButtonPress &&
      evento->type() != QEvent::MouseButtonRelease)
    return false;
  const auto* raton = static_cast<QMouseEvent*>(evento);
  if (evento->type() == QEvent::MouseButtonPress && raton->button() == Qt::LeftButton &&
      raton->modifiers().testFlag(Qt::ShiftModifier)) {
    agarrado_ = raton->position();
    arrastra_ = true;
    return true;
  }
  if (evento->type() == QEvent::MouseButtonRelease) {
    if (raton->button() == Qt::RightButton) {
      VerTodo();
      return true;
    }
    const bool arrastraba = arrastra_;
    arrastra_ = false;
    return arrastraba;
  }
  if (evento->type() != QEvent::MouseMove) return false;
  if (arrastra_) {
    const QPointF va = raton->position();
    dibujo->scroll(agarrado_.x() - va.x(), va.y() - agarrado_.y());
    agarrado_ = va;
    return true;
  }
  if (!dibujo->series().isEmpty())
    lectura_->setText(LecturaEn(dibujo->mapToValue(raton->position())));
  return false;
}

bool VistaGrafico::eventFilter(QObject* objeto, QEvent* evento) {
  return AlRaton(evento) || QWidget::eventFilter(objeto, evento);
}

}  // namespace novex::gui
