#pragma once

#include "shell/gui/PaginaResultados.h"
#include "shell/gui/VistaTablas.h"

namespace novex::gui {

/// Los resultados por meses, en sus tres vistas.
class PaginaMensual : public PaginaResultados {
  Q_OBJECT

 public:
  explicit PaginaMensual(ContextoGui& contexto, QWidget* padre = nullptr);

 protected:
  void Ensenar(const CasoCalculado& caso) override;

 private:
  VistaTablas* tablas_;
};

}  // namespace novex::gui
