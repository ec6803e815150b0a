#include "shell/gui/PaginaReferencia.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "outputs/TablaObjetoReferencia.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {

PaginaReferencia::PaginaReferencia(ContextoGui& contexto, QWidget* padre)
    : PaginaResultados(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  auto* fila = new QHBoxLayout;
  unidades_ = new QComboBox(this);
  unidades_->setObjectName("RGUnidades");
  for (const std::string_view texto : kTextoUnidadesReferencia) unidades_->addItem(Q(texto));
  unidades_->setToolTip(tr("Del edificio entero, o por m² de superficie útil"));
  connect(unidades_, &QComboBox::activated, this, [this] { Refrescar(); });
  fila->addWidget(unidades_);
  fila->addStretch(1);
  columna->addLayout(fila);
  tabla_ = new VistaTabla(this);
  tabla_->Estirar(true);
  columna->addWidget(tabla_, 1);
}

void PaginaReferencia::Ensenar(const CasoCalculado& caso) {
  const auto unidades = static_cast<UnidadesReferencia>(unidades_->currentIndex());
  tabla_->Poner(TablaObjetoReferencia(caso, unidades)
                    .value_or(Tabla{.titulo = std::string(kSinObjetoReferencia),
                                    .cabeceras = {},
                                    .filas = {},
                                    .notas = {}}));
}

}  // namespace novex::gui
