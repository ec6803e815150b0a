#pragma once

#include "shell/gui/PaginaPestanas.h"

namespace novex::gui {

/// La envolvente del edificio: una pestaña por clase de elemento, con la línea de sumas debajo.
class TDefEdificio : public PaginaPestanas {
  Q_OBJECT

 public:
  explicit TDefEdificio(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;
  void Senalar(const MensajePrevio& motivo) override;

 private:
  QLabel* sumas_;
};

}  // namespace novex::gui
