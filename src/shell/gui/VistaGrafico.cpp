#include "shell/gui/VistaGrafico.h"

#include <QApplication>
#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QClipboard>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLegend>
#include <QLineSeries>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QScatterSeries>
#include <QSvgGenerator>
#include <QVBoxLayout>
#include <QValueAxis>
#include <array>
#include <cmath>

#include "base/NumeroTexto.h"
#include "entry/HojaDeCalculo.h"
#include "outputs/TextoTabla.h"
#include "shell/gui/TextoQt.h"
#include "shell/gui/VistaTabla.h"

namespace novex::gui {
namespace {

// Se distinguen con fondo claro y oscuro y sin ver bien el color.
constexpr std::array<QRgb, 8> kColores = {0xff3b7dd8, 0xffcc4b37, 0xff2a9d74, 0xffd9921a,
                                          0xff8b5fbf, 0xff4aa3a3, 0xffb06a8f, 0xff7f8790};

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
  eje->applyNiceNumbers();
  return eje;
}

double PosicionX(const Grafico& grafico, std::size_t i) {
  return i < grafico.x.size() ? grafico.x[i] : static_cast<double>(i);
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
    PonerPuntos(grafico, Qt::AlignLeft, 0);
    if (derecho) PonerPuntos(*derecho, Qt::AlignRight, grafico.series.size());
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
  if (nombres.size() > 9) x->setLabelsAngle(-60);
  Vestir(x, Q(grafico.ejeX), texto);
  x->setGridLineVisible(false);
  QValueAxis* y = EjeDeValores(grafico, true, dibujo);
  Vestir(y, Q(grafico.ejeY), texto);
  dibujo->addAxis(x, Qt::AlignBottom);
  dibujo->addAxis(y, Qt::AlignLeft);
  barras->attachAxis(x);
  barras->attachAxis(y);
  barras->setBarWidth(0.7);
}

void VistaGrafico::PonerPuntos(const Grafico& grafico, Qt::Alignment lado,
                               std::size_t primerColor) {
  QChart* dibujo = vista_->chart();
  const QColor texto = palette().color(QPalette::WindowText);
  auto ejesX = dibujo->axes(Qt::Horizontal);
  auto* x = ejesX.isEmpty() ? nullptr : qobject_cast<QValueAxis*>(ejesX.first());
  if (x == nullptr) {
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
    Vestir(x, Q(grafico.ejeX), texto);
    dibujo->addAxis(x, Qt::AlignBottom);
  }
  QValueAxis* y = EjeDeValores(grafico, false, dibujo);
  Vestir(y, Q(grafico.ejeY), texto);
  dibujo->addAxis(y, lado);
  for (std::size_t s = 0; s < grafico.series.size(); ++s) {
    const SerieGrafico& serie = grafico.series[s];
    QList<QPointF> puntos;
    puntos.reserve(static_cast<qsizetype>(serie.valores.size()));
    for (std::size_t i = 0; i < serie.valores.size(); ++i)
      puntos.append({PosicionX(grafico, i), serie.valores[i]});
    const QColor color = ColorDeSerie(primerColor + s);
    QXYSeries* linea = nullptr;
    if (grafico.forma == Grafico::Forma::Puntos) {
      auto* nube = new QScatterSeries(dibujo);
      nube->setMarkerSize(puntos.size() > 500 ? 3 : 6);
      nube->setBorderColor(Qt::transparent);
      nube->setColor(color);
      linea = nube;
    } else {
      linea = new QLineSeries(dibujo);
      linea->setPen(QPen(color, puntos.size() > 1000 ? 1 : 2));
    }
    linea->setName(Q(serie.nombre));
    linea->replace(puntos);
    dibujo->addSeries(linea);
    linea->attachAxis(x);
    linea->attachAxis(y);
  }
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
    lectura_->setText(Lectura(dibujo->mapToValue(raton->position()).x()));
  return false;
}

bool VistaGrafico::eventFilter(QObject* objeto, QEvent* evento) {
  return AlRaton(evento) || QWidget::eventFilter(objeto, evento);
}

}  // namespace novex::gui
