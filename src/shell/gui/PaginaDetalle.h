#pragma once

#include <QComboBox>

#include "outputs/DetalleResultados.h"
#include "shell/gui/PaginaResultados.h"
#include "shell/gui/RejillaGraficos.h"
#include "shell/gui/SelectorOpciones.h"
#include "shell/gui/VistaTabla.h"

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
  QComboBox *salida_, *analisis_;
  SelectorOpciones* servicios_;
  RejillaGraficos* graficos_;
  VistaTabla* elementos_;
};

}  // namespace novex::gui
