#pragma once

#include "shell/gui/Pagina.h"

namespace novex::gui {

class GraficaSombra;
class RosaObstaculos;

/// Lo que rodea al edificio: los obstáculos lejanos, lo que tapan del cielo y la sombra que dan a
/// cada fachada.
class PaginaCiudadEntorno : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaCiudadEntorno(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 private:
  QLayout* Rejilla();

  QLabel* lugar_;
  RosaObstaculos* rosa_;
  GraficaSombra* sombra_;
};

}  // namespace novex::gui
