#pragma once

#include "shell/gui/PaginaResultados.h"
#include "shell/gui/VistaTablas.h"

namespace novex::gui {

/// Los casos del proyecto comparados: energía final, emisiones, primaria y demanda.
class PaginaAnalisisTecnico : public PaginaResultados {
  Q_OBJECT

 public:
  explicit PaginaAnalisisTecnico(ContextoGui& contexto, QWidget* padre = nullptr);

 protected:
  void Ensenar(const CasoCalculado& caso) override;

 private:
  VistaTablas* tablas_;
};

}  // namespace novex::gui
