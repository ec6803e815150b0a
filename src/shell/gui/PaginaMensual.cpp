#include "shell/gui/PaginaMensual.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "shell/gui/Filas.h"
#include "shell/gui/SelectorOpciones.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {

PaginaMensual::PaginaMensual(ContextoGui& contexto, QWidget* padre)
    : PaginaResultados(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  auto* fila = new QHBoxLayout;
  seleccion_ = AnadirLista(fila, {}, "RGSeleccion", kTextoVistaMensual, this);
  servicio_ = AnadirLista(fila, {}, "RGServicioMes", kTextoServicioMes, this);
  resultado_ = AnadirLista(fila, {}, "RGTipoResultado", kTextoResultado, this);
  for (QComboBox* lista : {seleccion_, servicio_, resultado_})
    connect(lista, &QComboBox::currentIndexChanged, this, [this] { Refrescar(); });
  fila->addStretch(1);
  const auto boton = [&](const char* objeto, const QString& texto, AlcanceExportacion alcance) {
    auto* exportar = new QPushButton(texto, this);
    exportar->setObjectName(objeto);
    connect(exportar, &QPushButton::clicked, this, [this, alcance] { Exportar(alcance); });
    fila->addWidget(exportar);
  };
  boton("SpeedButton1", tr("Guardar todas las tablas"), AlcanceExportacion::Todas);
  boton("SpeedButton3", tr("Guardar la tablas visibles"), AlcanceExportacion::Visible);
  columna->addLayout(fila);
  auto* partes = new QSplitter(Qt::Vertical, this);
  partes->setChildrenCollapsible(false);
  tablas_ = new VistaTablas(partes);
  auto* abajo = new QWidget(partes);
  auto* dibujo = new QVBoxLayout(abajo);
  dibujo->setContentsMargins(0, 4, 0, 0);
  dibujada_ = new QComboBox(abajo);
  dibujada_->setObjectName("rejillaDibujada");
  dibujada_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  dibujada_->setToolTip(tr("La rejilla que se dibuja"));
  connect(dibujada_, &QComboBox::activated, this, [this] { Dibujar(); });
  dibujo->addWidget(dibujada_, 0, Qt::AlignLeft);
  grafico_ = new VistaGrafico(abajo);
  dibujo->addWidget(grafico_, 1);
  sinValores_ = NuevaNota(abajo);
  sinValores_->setText(tr("Todos sus meses son 0"));
  dibujo->addWidget(sinValores_, 1, Qt::AlignTop);
  partes->setSizes({380, 240});
  partes->setStretchFactor(0, 3);
  partes->setStretchFactor(1, 2);
  columna->addWidget(partes, 1);
}

SeleccionMensual PaginaMensual::Seleccion() const {
  return {static_cast<VistaMensual>(seleccion_->currentIndex()),
          static_cast<ServicioMes>(servicio_->currentIndex()),
          static_cast<UnidadEnergia>(resultado_->currentIndex())};
}

void PaginaMensual::Ensenar(const CasoCalculado& caso) {
  const SeleccionMensual seleccion = Seleccion();
  const bool porServicio = seleccion.vista == VistaMensual::PorServicio;
  servicio_->setVisible(porServicio);
  resultado_->setVisible(porServicio);
  rejillas_ = RejillasVisibles(caso, seleccion);
  std::vector<Tabla> tablas;
  QStringList nombres;
  for (const RejillaMensual& rejilla : rejillas_) {
    tablas.push_back(rejilla.tabla);
    nombres << Q(rejilla.tabla.cabeceras.front());
  }
  tablas_->Poner(tablas);
  QStringList habia;
  for (int i = 0; i < dibujada_->count(); ++i) habia << dibujada_->itemText(i);
  if (habia != nombres) {
    dibujada_->clear();
    dibujada_->addItems(nombres);
  }
  dibujada_->setVisible(nombres.size() > 1);
  Dibujar();
}

void PaginaMensual::Dibujar() {
  const int cual = dibujada_->currentIndex();
  if (cual < 0 || static_cast<std::size_t>(cual) >= rejillas_.size()) return;
  const Grafico grafico = GraficoMeses(rejillas_[static_cast<std::size_t>(cual)].tabla);
  grafico_->Poner(grafico);
  grafico_->setVisible(!grafico.series.empty());
  sinValores_->setVisible(grafico.series.empty());
}

void PaginaMensual::Exportar(AlcanceExportacion alcance) {
  if (const auto caso = Calculado())
    ExportarTextoPreguntando(this, contexto_.Ficheros().Espacio().Proyectos(),
                             ExportarTablas(*caso, alcance, Seleccion()));
}

}  // namespace novex::gui
