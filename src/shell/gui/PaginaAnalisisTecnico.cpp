#include "shell/gui/PaginaAnalisisTecnico.h"

#include <QVBoxLayout>

#include "outputs/AnalisisTecnico.h"

namespace novex::gui {

PaginaAnalisisTecnico::PaginaAnalisisTecnico(ContextoGui& contexto, QWidget* padre)
    : PaginaResultados(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  tablas_ = new VistaTablas(this);
  columna->addWidget(tablas_);
}

void PaginaAnalisisTecnico::Ensenar(const CasoCalculado& caso) {
  // Compara los casos: el activo es uno más.
  static_cast<void>(caso);
  const auto tablas = TablasAnalisisTecnico(Casos());
  tablas_->Poner({tablas.begin(), tablas.end()});
}

}  // namespace novex::gui
