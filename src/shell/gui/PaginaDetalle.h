#pragma once

#include <QComboBox>
#include <vector>

#include "outputs/DetalleResultados.h"
#include "shell/gui/PaginaResultados.h"
#include "shell/gui/SelectorOpciones.h"
#include "shell/gui/VistaGrafico.h"
#include "shell/gui/VistaTabla.h"

class QGridLayout;

namespace novex::gui {

/// A qué se debe cada resultado: por servicios, por vectores o por elementos de la envolvente, y al
/// lado los elementos por lo que pierden y ganan.
class PaginaDetalle : public PaginaResultados {
  Q_OBJECT

 public:
  explicit PaginaDetalle(ContextoGui& contexto, QWidget* padre = nullptr);

 protected:
  void Ensenar(const CasoCalculado& caso) override;

 private:
  struct Vista {
    QWidget* caja;
    QLabel* rotulo;
    VistaGrafico* grafico;
  };
  Vista NuevaVista(int cual);

  QComboBox *salida_, *analisis_;
  SelectorOpciones* servicios_;
  QGridLayout* graficos_;
  std::vector<Vista> vistas_;
  VistaTabla* elementos_;
};

}  // namespace novex::gui
