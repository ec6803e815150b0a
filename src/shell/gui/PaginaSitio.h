#pragma once

#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Dónde está el edificio: municipio, zona climática, clima y obstáculos remotos.
class PaginaSitio : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaSitio(ContextoGui& contexto, QWidget* padre = nullptr);
};

}  // namespace novex::gui
