#pragma once

#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Los suelos por tipo constructivo.
class PaginaSuelos : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaSuelos(ContextoGui& contexto, QWidget* padre = nullptr);
};

}  // namespace novex::gui
