#include "shell/gui/PaginaCalificacion.h"

#include <QVBoxLayout>

#include "outputs/HojaCalificacion.h"

namespace novex::gui {

PaginaCalificacion::PaginaCalificacion(ContextoGui& contexto, QWidget* padre)
    : PaginaResultados(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  tablas_ = new VistaTablas(this);
  columna->addWidget(tablas_);
}

void PaginaCalificacion::Ensenar(const CasoCalculado& caso) {
  tablas_->Poner(TablasHoja(HojaDeCalificacion(caso, BaseCalificacion::PrimariaNoRenovable)));
}

}  // namespace novex::gui
