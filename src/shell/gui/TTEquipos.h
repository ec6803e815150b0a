#pragma once

#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Las instalaciones: sistemas y generadores, solar térmica y fotovoltaica.
class TTEquipos : public Pagina {
  Q_OBJECT

 public:
  explicit TTEquipos(ContextoGui& contexto, QWidget* padre = nullptr);
};

}  // namespace novex::gui
