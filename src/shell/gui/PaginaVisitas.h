#pragma once

#include "shell/gui/CajasVisitas.h"
#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Las visitas, observaciones e intervenciones del caso base, junto a sus resultados.
class PaginaVisitas : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaVisitas(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 private:
  CajasVisitas cajas_;
};

}  // namespace novex::gui
