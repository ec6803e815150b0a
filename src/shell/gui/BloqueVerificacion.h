#pragma once

#include <QBoxLayout>
#include <QComboBox>
#include <QIcon>
#include <QLabel>
#include <QWidget>
#include <vector>

#include "outputs/HojasVerificacion.h"
#include "shell/gui/VistaGrafico.h"
#include "shell/gui/VistaTabla.h"

namespace novex::gui {

/// Icono de una marca: se distingue por su forma además de por su color.
QIcon IconoMarca(MarcaHE marca);

/// Una comprobación del DB-HE: título, veredicto, textos, tablas y gráfico.
class BloqueVerificacion : public QWidget {
  Q_OBJECT

 public:
  explicit BloqueVerificacion(QWidget* padre = nullptr);
  /// La enseña. El gráfico elegido se conserva si sigue estando.
  void Poner(const BloqueHE& bloque);

 private:
  void PonerVeredicto(const BloqueHE& bloque);
  void PonerTablas(const std::vector<Tabla>& tablas);
  void PonerGraficos(const std::vector<Grafico>& graficos);

  QLabel *titulo_, *icono_, *veredicto_, *textos_;
  QBoxLayout* cuerpo_;
  QVBoxLayout* columna_;
  QWidget* dibujos_;
  QComboBox* cual_;
  VistaGrafico* grafico_;
  std::vector<VistaTabla*> tablas_;
  std::vector<Grafico> graficos_;
};

}  // namespace novex::gui
