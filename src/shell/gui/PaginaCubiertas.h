#pragma once

#include "shell/gui/PaginaEnvolvente.h"

namespace novex::gui {

/// Las cubiertas y los techos por tipo constructivo.
class PaginaCubiertas : public PaginaEnvolvente {
  Q_OBJECT

 public:
  explicit PaginaCubiertas(ContextoGui& contexto, QWidget* padre = nullptr);
};

}  // namespace novex::gui
