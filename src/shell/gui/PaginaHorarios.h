#pragma once

#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Los horarios de uso por familia y clase de día, el calendario del año y la acción de cada mes.
class PaginaHorarios : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaHorarios(ContextoGui& contexto, QWidget* padre = nullptr);
};

}  // namespace novex::gui
