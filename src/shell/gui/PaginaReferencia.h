#pragma once

#include "outputs/TablaObjetoReferencia.h"
#include "shell/gui/PaginaResultados.h"
#include "shell/gui/SelectorOpciones.h"
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
  UnidadesReferencia Unidades() const;
  void Exportar();

  SelectorOpciones* unidades_;
  VistaTabla* tabla_;
  QLabel* horas_;
};

}  // namespace novex::gui
