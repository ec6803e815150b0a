#include "shell/gui/RejillaGraficos.h"

#include <QVBoxLayout>

namespace novex::gui {

RejillaGraficos::RejillaGraficos(int porFila, const QString& rotulo, Qt::TextFormat formato,
                                 QWidget* padre)
    : QWidget(padre), porFila_(porFila), nombre_(rotulo), formato_(formato) {
  rejilla_ = new QGridLayout(this);
  rejilla_->setContentsMargins(0, 0, 8, 8);
  rejilla_->setSpacing(12);
}

RejillaGraficos::Vista RejillaGraficos::NuevaVista() {
  const int cual = static_cast<int>(vistas_.size());
  Vista vista{};
  vista.caja = new QWidget(this);
  auto* columna = new QVBoxLayout(vista.caja);
  columna->setContentsMargins(0, 0, 0, 0);
  vista.grafico = new VistaGrafico(vista.caja);
  columna->addWidget(vista.grafico, 1);
  vista.rotulo = new QLabel(vista.caja);
  vista.rotulo->setObjectName(nombre_ + QString::number(cual));
  vista.rotulo->setTextFormat(formato_);
  vista.rotulo->setAlignment(Qt::AlignCenter);
  vista.rotulo->setWordWrap(true);
  vista.rotulo->setTextInteractionFlags(Qt::TextSelectableByMouse);
  columna->addWidget(vista.rotulo);
  rejilla_->addWidget(vista.caja, cual / porFila_, cual % porFila_);
  return vista;
}

void RejillaGraficos::Poner(const std::vector<GraficoRotulado>& graficos) {
  while (vistas_.size() < graficos.size()) vistas_.push_back(NuevaVista());
  for (std::size_t i = 0; i < vistas_.size(); ++i) {
    vistas_[i].caja->setVisible(i < graficos.size());
    if (i >= graficos.size()) continue;
    vistas_[i].grafico->Poner(graficos[i].grafico);
    vistas_[i].rotulo->setText(graficos[i].rotulo);
  }
}

}  // namespace novex::gui
