#pragma once

#include "shell/gui/PaginaResultados.h"
#include "shell/gui/VistaTablas.h"

namespace novex::gui {

/// La hoja de calificación: indicadores con su letra, su escala y sus notas.
class PaginaCalificacion : public PaginaResultados {
  Q_OBJECT

 public:
  explicit PaginaCalificacion(ContextoGui& contexto, QWidget* padre = nullptr);

 protected:
  void Ensenar(const CasoCalculado& caso) override;

 private:
  VistaTablas* tablas_;
};

}  // namespace novex::gui
