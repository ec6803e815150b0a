#pragma once

#include <QComboBox>

#include "shell/gui/Pagina.h"
#include "shell/gui/RejillaGraficos.h"
#include "shell/gui/SelectorOpciones.h"

namespace novex::gui {

/// Los casos del proyecto, lado a lado: un gráfico por servicio con una barra por caso y, debajo,
/// sus letras. Entrar en ella es calcular los que no lo están.
class PaginaComparacion : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaComparacion(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 private:
  void Ensenar();

  QLabel* fallo_;
  QComboBox* resultado_;
  SelectorOpciones* valor_;
  RejillaGraficos* graficos_;
};

}  // namespace novex::gui
