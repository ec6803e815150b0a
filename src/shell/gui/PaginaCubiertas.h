#pragma once

#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Las cubiertas por tipo constructivo y orientación.
class PaginaCubiertas : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaCubiertas(ContextoGui& contexto, QWidget* padre = nullptr);
};

}  // namespace novex::gui
