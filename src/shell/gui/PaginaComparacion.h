#pragma once

#include <QComboBox>
#include <vector>

#include "shell/gui/Pagina.h"
#include "shell/gui/SelectorOpciones.h"
#include "shell/gui/VistaGrafico.h"

class QGridLayout;

namespace novex::gui {

/// Los casos del proyecto, lado a lado: un gráfico por servicio con una barra por caso y, debajo,
/// sus letras. Entrar en ella es calcular los que no lo están.
class PaginaComparacion : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaComparacion(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 private:
  struct Vista {
    QWidget* caja;
    VistaGrafico* grafico;
    QLabel* letras;
  };
  Vista NuevaVista(int cual);
  void Ensenar();

  QLabel* fallo_;
  QComboBox* resultado_;
  SelectorOpciones* valor_;
  QGridLayout* graficos_;
  std::vector<Vista> vistas_;
};

}  // namespace novex::gui
