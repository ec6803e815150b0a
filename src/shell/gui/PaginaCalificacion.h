#pragma once

#include <vector>

#include "outputs/HojaCalificacion.h"
#include "shell/gui/EtiquetaEnergetica.h"
#include "shell/gui/PaginaResultados.h"
#include "shell/gui/SelectorOpciones.h"

class QGridLayout;
class QToolButton;

namespace novex::gui {

/// La hoja de calificación, dibujada como en el certificado: la demanda, el indicador elegido por
/// servicios y su total, cada uno en su escala, con las notas debajo.
class PaginaCalificacion : public PaginaResultados {
  Q_OBJECT

 public:
  explicit PaginaCalificacion(ContextoGui& contexto, QWidget* padre = nullptr);

 protected:
  void Ensenar(const CasoCalculado& caso) override;

 private:
  QWidget* Columnas();
  void EnsenarNotas(const HojaCalificacion& hoja);
  QToolButton* Menu();
  void Copiar() const;
  void Exportar();
  void GuardarImagen();

  SelectorOpciones* base_;
  QToolButton* menu_;
  QWidget* columnas_;
  HojaCalificacion hoja_;
  QLabel *sinHoja_, *tituloDemanda_, *tituloServicios_, *zona_, *horas_;
  std::vector<EtiquetaEnergetica*> demanda_, servicios_;
  EtiquetaEnergetica* total_;
};

}  // namespace novex::gui
