#include "shell/gui/PaginaReferencia.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "outputs/ExportacionTablas.h"
#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {

PaginaReferencia::PaginaReferencia(ContextoGui& contexto, QWidget* padre)
    : PaginaResultados(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  auto* fila = new QHBoxLayout;
  unidades_ = new SelectorOpciones("RGUnidades", kTextoUnidadesReferencia, this);
  unidades_->setToolTip(tr("Del edificio entero, o por m² de superficie útil"));
  connect(unidades_, &SelectorOpciones::Cambiada, this, [this] { Refrescar(); });
  fila->addWidget(unidades_);
  fila->addStretch(1);
  auto* guardar = new QPushButton(tr("Guardar datos"), this);
  guardar->setObjectName("SpeedButton2");
  connect(guardar, &QPushButton::clicked, this, &PaginaReferencia::Exportar);
  fila->addWidget(guardar);
  columna->addLayout(fila);
  tabla_ = new VistaTabla(this);
  tabla_->Estirar(true);
  columna->addWidget(tabla_, 1);
  horas_ = NuevaNota(this);
  horas_->setObjectName("horasFueraReferencia");
  columna->addWidget(horas_);
}

UnidadesReferencia PaginaReferencia::Unidades() const {
  return static_cast<UnidadesReferencia>(unidades_->Elegida());
}

void PaginaReferencia::Exportar() {
  if (const auto caso = Calculado())
    ExportarTextoPreguntando(this, contexto_.Ficheros().Espacio().Proyectos(),
                             ExportarObjetoReferencia(*caso, Unidades()));
}

void PaginaReferencia::Ensenar(const CasoCalculado& caso) {
  Tabla tabla = TablaObjetoReferencia(caso, Unidades())
                    .value_or(Tabla{.titulo = std::string(kSinObjetoReferencia),
                                    .cabeceras = {},
                                    .filas = {},
                                    .notas = {}});
  // La última de sus notas puede ir marcada.
  const HorasFueraConsigna horas = TextoHorasFuera(caso);
  std::erase(tabla.notas, horas.texto);
  tabla_->Poner(tabla);
  PonerHorasFuera(horas_, horas);
}

}  // namespace novex::gui
