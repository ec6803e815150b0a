#include "shell/gui/PaginaDetalle.h"

#include <QHBoxLayout>
#include <QSplitter>
#include <QVBoxLayout>

#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kGraficosPorFila = 2;
constexpr int kAnchoElementos = 360;

}  // namespace

PaginaDetalle::PaginaDetalle(ContextoGui& contexto, QWidget* padre)
    : PaginaResultados(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  auto* fila = new QHBoxLayout;
  salida_ = AnadirLista(fila, {}, "RGTipoSalida", kSalidasDetalle, this);
  servicios_ = new SelectorOpciones("RadioGroup7", kServiciosDetalle, this);
  fila->addWidget(servicios_);
  analisis_ = AnadirLista(fila, {}, "RBTipoAnalisis", kAnalisisDetalle, this);
  fila->addStretch(1);
  columna->addLayout(fila);
  for (QComboBox* lista : {salida_, analisis_})
    connect(lista, &QComboBox::currentIndexChanged, this, [this] { Refrescar(); });
  connect(servicios_, &SelectorOpciones::Cambiada, this, [this] { Refrescar(); });

  auto* partes = new QSplitter(this);
  partes->setChildrenCollapsible(false);
  graficos_ = new RejillaGraficos(kGraficosPorFila, "rotulo", Qt::PlainText, partes);
  elementos_ = new VistaTabla(partes);
  elementos_->setObjectName("elementos");
  elementos_->setMinimumWidth(kAnchoElementos);
  elementos_->Estirar(true);
  partes->setStretchFactor(0, 1);
  columna->addWidget(partes, 1);
}

void PaginaDetalle::Ensenar(const CasoCalculado& caso) {
  const SeleccionDetalle seleccion = {static_cast<SalidaDetalle>(salida_->currentIndex()),
                                      static_cast<ServiciosDetalle>(servicios_->Elegida()),
                                      static_cast<AnalisisDetalle>(analisis_->currentIndex())};
  // De los totales y de los vectores no hay reparto.
  analisis_->setEnabled(seleccion.salida != SalidaDetalle::Vectores &&
                        seleccion.servicios != ServiciosDetalle::Totales);
  std::vector<GraficoRotulado> graficos;
  for (GraficoDetalle& g : novex::PaginaDetalle(caso, seleccion))
    graficos.push_back({std::move(g.grafico), Q(g.rotulo)});
  graficos_->Poner(graficos);
  elementos_->Poner(TablaElementos(caso, seleccion.salida));
}

}  // namespace novex::gui
