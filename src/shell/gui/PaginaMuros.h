#pragma once

#include "shell/gui/PaginaEnvolvente.h"

namespace novex::gui {

/// Los muros por tipo constructivo y orientación.
class PaginaMuros : public PaginaEnvolvente {
  Q_OBJECT

 public:
  explicit PaginaMuros(ContextoGui& contexto, QWidget* padre = nullptr);
};

}  // namespace novex::gui
