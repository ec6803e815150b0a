#pragma once

#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Los grupos de huecos: medidas, vidrio, marco, protecciones y unidades por orientación.
class PaginaHuecos : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaHuecos(ContextoGui& contexto, QWidget* padre = nullptr);
};

}  // namespace novex::gui
