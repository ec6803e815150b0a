#include "shell/gui/PaginaVisitas.h"

#include <QPushButton>
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
  auto* administracion = new QPushButton(tr("Genera el fichero para la administración"), this);
  administracion->setObjectName("BitBtn6");
  administracion->setToolTip(tr("Guarda el proyecto y escribe a su lado el informe del registro"));
  connect(administracion, &QPushButton::clicked, &contexto_, &ContextoGui::PideAdministracion);
  columna->addWidget(administracion, 0, Qt::AlignLeft);
  columna->addStretch(1);
}

void PaginaVisitas::Refrescar() {
  Pagina::Refrescar();
  cajas_.Refrescar();
}

}  // namespace novex::gui
