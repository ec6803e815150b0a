#pragma once

#include <QButtonGroup>

#include "shell/gui/Pagina.h"

namespace novex::gui {

/// La instalación solar térmica del edificio: captadores, depósito, bombas, tuberías y fluido.
class FichaSolar : public Pagina {
  Q_OBJECT

 public:
  explicit FichaSolar(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 private:
  QWidget* CajaFluido();
  void PonerFluido();

  QLabel *nota_, *fluido_;
  QButtonGroup* glicol_;
};

}  // namespace novex::gui
