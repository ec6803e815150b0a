#pragma once

#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Los textos del certificado: recomendaciones, visitas, observaciones e intervenciones.
class TFDefinicion : public Pagina {
  Q_OBJECT

 public:
  explicit TFDefinicion(ContextoGui& contexto, QWidget* padre = nullptr);
};

}  // namespace novex::gui
