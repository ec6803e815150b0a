#pragma once

#include <QComboBox>

#include "shell/gui/PaginaResultados.h"
#include "shell/gui/VistaTabla.h"

namespace novex::gui {

/// El edificio objeto y el de referencia de un uso terciario.
class PaginaReferencia : public PaginaResultados {
  Q_OBJECT

 public:
  explicit PaginaReferencia(ContextoGui& contexto, QWidget* padre = nullptr);

 protected:
  void Ensenar(const CasoCalculado& caso) override;

 private:
  QComboBox* unidades_;
  VistaTabla* tabla_;
};

}  // namespace novex::gui
