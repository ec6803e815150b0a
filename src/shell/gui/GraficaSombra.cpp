#include "shell/gui/GraficaSombra.h"

#include <QChartView>
#include <QHBoxLayout>
#include <QLineSeries>
#include <QVBoxLayout>
#include <QValueAxis>

#include "entry/GraficoSombra.h"
#include "shell/gui/DialogoColumna.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

// Las que tienen obstáculos: al norte no hay sol que tapar.
constexpr std::array<Sector, 5> kFachadas = {sur, sur_este, este, oeste, sur_oeste};
constexpr std::array<const char*, 12> kMeses = {"Enero",      "Febrero", "Marzo",     "Abril",
                                                "Mayo",       "Junio",   "Julio",     "Agosto",
                                                "Septiembre", "Octubre", "Noviembre", "Diciembre"};
// Del invierno al verano, de frío a cálido; se distinguen en claro y en oscuro.
constexpr std::array<const char*, kMesesGraficoSombra.size()> kColores = {
    "#3465c0", "#2f8fc9", "#28a99e", "#6aab3d", "#c2a51e", "#e07f1f", "#cc4a3a"};

}  // namespace

GraficaSombra::GraficaSombra(ContextoGui& contexto, Sector fachada, QWidget* padre)
    : QWidget(padre), contexto_(contexto), grafica_(nullptr) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(0, 0, 0, 0);
  auto* fila = new QHBoxLayout;
  auto* rotulo = new QLabel(tr("Orientación"), this);
  fachada_ = new QComboBox(this);
  for (const Sector sector : kFachadas) {
    fachada_->addItem(NombreDeSector(sector), static_cast<int>(sector));
    if (sector == fachada) fachada_->setCurrentIndex(fachada_->count() - 1);
  }
  rotulo->setBuddy(fachada_);
  fila->addWidget(rotulo);
  fila->addWidget(fachada_);
  fila->addStretch(1);
  columna->addLayout(fila);

  auto* vista = new QChartView(this);
  grafica_ = vista->chart();
  vista->setRenderHint(QPainter::Antialiasing);
  vista->setMinimumSize(420, 300);
  columna->addWidget(vista, 1);
  nota_ = new QLabel(this);
  nota_->setProperty("papel", "nota");
  nota_->setWordWrap(true);
  columna->addWidget(nota_);
  connect(fachada_, &QComboBox::currentIndexChanged, this, &GraficaSombra::Refrescar);
  CrearSeries();
  Refrescar();
}

void GraficaSombra::CrearSeries() {
  const auto eje = [this](Qt::AlignmentFlag lado, const QString& titulo, double desde, double hasta,
                          int marcas) {
    auto* e = new QValueAxis(grafica_);
    e->setRange(desde, hasta);
    e->setTickCount(marcas);
    e->setLabelFormat("%d");
    e->setTitleText(titulo);
    e->setTitleBrush(palette().color(QPalette::Text));
    e->setLabelsColor(palette().color(QPalette::Text));
    e->setGridLineColor(palette().color(QPalette::Mid));
    grafica_->addAxis(e, lado);
    return e;
  };
  QValueAxis* horas = eje(Qt::AlignBottom, tr("Hora solar"), 1, 24, 2);
  horas->setTickType(QValueAxis::TicksDynamic);
  horas->setTickAnchor(2);
  horas->setTickInterval(2);
  QValueAxis* sombra = eje(Qt::AlignLeft, tr("Sombra, %"), 0, 100, 6);
  for (std::size_t i = 0; i < kMesesGraficoSombra.size(); ++i) {
    auto* serie = new QLineSeries(grafica_);
    serie->setName(tr(kMeses[static_cast<std::size_t>(kMesesGraficoSombra[i] - 1)]));
    serie->setPen(QPen(QColor(kColores[i]), 2));
    grafica_->addSeries(serie);
    serie->attachAxis(horas);
    serie->attachAxis(sombra);
  }
  grafica_->setBackgroundBrush(palette().color(QPalette::Base));
  grafica_->legend()->setLabelColor(palette().color(QPalette::Text));
  grafica_->legend()->setAlignment(Qt::AlignRight);
}

void GraficaSombra::Refrescar() {
  const auto fachada = static_cast<Sector>(fachada_->currentData().toInt());
  const GraficoSombra datos = CalcularGraficoSombra(fachada, contexto_.Caso());
  for (std::size_t i = 0; i < datos.size(); ++i) {
    QList<QPointF> puntos;
    for (int hora = 1; hora <= 24; ++hora) {
      const float valor = datos[i].porcentaje[static_cast<std::size_t>(hora)];
      puntos.append(QPointF(hora, static_cast<double>(valor)));
    }
    static_cast<QLineSeries*>(grafica_->series()[static_cast<qsizetype>(i)])->replace(puntos);
  }
  nota_->setText(Q(NotaGraficoSombra(datos, contexto_.Caso())));
}

}  // namespace novex::gui
