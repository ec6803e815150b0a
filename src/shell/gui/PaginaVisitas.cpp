#include "shell/gui/PaginaVisitas.h"

#include <QVBoxLayout>

#include "shell/gui/Filas.h"

namespace novex::gui {

PaginaVisitas::PaginaVisitas(ContextoGui& contexto, QWidget* padre)
    : Pagina(contexto, padre), cajas_(contexto, enlaces_, this) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(20, 8, 20, 16);
  auto* columnas = new DosColumnas(this);
  columnas->AnadirIzquierda(cajas_.Visitas());
  columnas->AnadirDerecha(cajas_.Observaciones());
  columnas->AnadirDerecha(cajas_.Intervenciones());
  columna->addWidget(columnas);
  columna->addStretch(1);
}

void PaginaVisitas::Refrescar() {
  Pagina::Refrescar();
  cajas_.Refrescar();
}

}  // namespace novex::gui
