#pragma once

#include <QComboBox>

#include "outputs/ExportacionTablas.h"
#include "outputs/TablasMensualesResultados.h"
#include "shell/gui/PaginaResultados.h"
#include "shell/gui/VistaGrafico.h"
#include "shell/gui/VistaTablas.h"

namespace novex::gui {

/// Los resultados por meses, en sus tres vistas: las rejillas y, debajo, los meses de una de ellas.
class PaginaMensual : public PaginaResultados {
  Q_OBJECT

 public:
  explicit PaginaMensual(ContextoGui& contexto, QWidget* padre = nullptr);

 protected:
  void Ensenar(const CasoCalculado& caso) override;

 private:
  SeleccionMensual Seleccion() const;
  void Exportar(AlcanceExportacion alcance);
  void Dibujar();

  QComboBox *seleccion_, *servicio_, *resultado_, *dibujada_;
  VistaTablas* tablas_;
  VistaGrafico* grafico_;
  QLabel* sinValores_;
  std::vector<RejillaMensual> rejillas_;
};

}  // namespace novex::gui
