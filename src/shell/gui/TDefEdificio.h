#pragma once

#include "shell/gui/PaginaPestanas.h"

namespace novex::gui {

/// La envolvente del edificio: una pestaña por clase de elemento, con la línea de sumas debajo.
class TDefEdificio : public PaginaPestanas {
  Q_OBJECT

 public:
  explicit TDefEdificio(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 private:
  QLabel* sumas_;
};

/// La pestaña en que se corrige lo que dice un mensaje previo; vacía si no es de la envolvente.
QString PestanaDe(PaginaProyecto pagina);

}  // namespace novex::gui
