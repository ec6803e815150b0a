#pragma once

#include "shell/gui/Pagina.h"

namespace novex::gui {

/// El uso del edificio y sus medidas: perfil, superficie, viviendas, ventilación, iluminación y
/// agua caliente.
class PaginaUso : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaUso(ContextoGui& contexto, QWidget* padre = nullptr);
};

}  // namespace novex::gui
