#pragma once

#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Los datos administrativos: referencias catastrales, textos, certificador e imágenes.
class PaginaAdministrativa : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaAdministrativa(ContextoGui& contexto, QWidget* padre = nullptr);
};

}  // namespace novex::gui
