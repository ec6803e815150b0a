#pragma once

#include "shell/gui/PaginaEnvolvente.h"

namespace novex::gui {

/// Los suelos por tipo constructivo.
class PaginaSuelos : public PaginaEnvolvente {
  Q_OBJECT

 public:
  explicit PaginaSuelos(ContextoGui& contexto, QWidget* padre = nullptr);
};

}  // namespace novex::gui
