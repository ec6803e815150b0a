#include "shell/gui/PaginaMensual.h"

#include <QVBoxLayout>

#include "outputs/TablasMensualesResultados.h"

namespace novex::gui {

PaginaMensual::PaginaMensual(ContextoGui& contexto, QWidget* padre)
    : PaginaResultados(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  tablas_ = new VistaTablas(this);
  columna->addWidget(tablas_);
}

void PaginaMensual::Ensenar(const CasoCalculado& caso) {
  std::vector<Tabla> tablas;
  for (RejillaMensual& rejilla : RejillasVisibles(caso, {})) tablas.push_back(rejilla.tabla);
  tablas_->Poner(tablas);
}

}  // namespace novex::gui
