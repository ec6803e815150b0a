#include "shell/gui/PaginaDetalle.h"

#include <QGridLayout>
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
  auto* dibujos = new QWidget(partes);
  graficos_ = new QGridLayout(dibujos);
  graficos_->setContentsMargins(0, 0, 8, 0);
  elementos_ = new VistaTabla(partes);
  elementos_->setObjectName("elementos");
  elementos_->setMinimumWidth(kAnchoElementos);
  elementos_->Estirar(true);
  partes->setStretchFactor(0, 1);
  columna->addWidget(partes, 1);
}

PaginaDetalle::Vista PaginaDetalle::NuevaVista(int cual) {
  Vista vista{};
  vista.caja = new QWidget(this);
  auto* columna = new QVBoxLayout(vista.caja);
  columna->setContentsMargins(0, 0, 0, 0);
  vista.grafico = new VistaGrafico(vista.caja);
  columna->addWidget(vista.grafico, 1);
  vista.rotulo = new QLabel(vista.caja);
  vista.rotulo->setObjectName(QString("rotulo%1").arg(cual));
  vista.rotulo->setAlignment(Qt::AlignCenter);
  vista.rotulo->setWordWrap(true);
  vista.rotulo->setTextInteractionFlags(Qt::TextSelectableByMouse);
  columna->addWidget(vista.rotulo);
  graficos_->addWidget(vista.caja, cual / kGraficosPorFila, cual % kGraficosPorFila);
  return vista;
}

void PaginaDetalle::Ensenar(const CasoCalculado& caso) {
  const SeleccionDetalle seleccion = {static_cast<SalidaDetalle>(salida_->currentIndex()),
                                      static_cast<ServiciosDetalle>(servicios_->Elegida()),
                                      static_cast<AnalisisDetalle>(analisis_->currentIndex())};
  // De los totales y de los vectores no hay reparto.
  analisis_->setEnabled(seleccion.salida != SalidaDetalle::Vectores &&
                        seleccion.servicios != ServiciosDetalle::Totales);
  const auto graficos = novex::PaginaDetalle(caso, seleccion);
  while (vistas_.size() < graficos.size())
    vistas_.push_back(NuevaVista(static_cast<int>(vistas_.size())));
  for (std::size_t i = 0; i < vistas_.size(); ++i) {
    vistas_[i].caja->setVisible(i < graficos.size());
    if (i >= graficos.size()) continue;
    vistas_[i].grafico->Poner(graficos[i].grafico);
    vistas_[i].rotulo->setText(Q(graficos[i].rotulo));
  }
  elementos_->Poner(TablaElementos(caso, seleccion.salida));
}

}  // namespace novex::gui
