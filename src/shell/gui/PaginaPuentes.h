#pragma once

#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Los puentes térmicos: cómo se definen, sus valores y sus longitudes.
class PaginaPuentes : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaPuentes(ContextoGui& contexto, QWidget* padre = nullptr);
};

}  // namespace novex::gui
