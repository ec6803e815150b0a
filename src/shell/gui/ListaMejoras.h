#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "improvements/EstudioMejoras.h"
#include "shell/gui/ContextoGui.h"
#include "shell/gui/VistaTabla.h"

namespace novex::gui {

/// Las medidas medidas de un caso por orden de lo que ahorran, y la que se elige: qué cambiaría en
/// los datos y la orden de aplicarla como caso de mejora.
class ListaMejoras : public QWidget {
  Q_OBJECT

 public:
  explicit ListaMejoras(ContextoGui& contexto, QWidget* padre = nullptr);
  /// \param medidas puede ser nula: no se ha medido ninguna
  void Ensenar(const ResultadoMedida& base, const std::vector<ResultadoMedida>* medidas);

 private:
  int Elegida() const;
  void AlElegir();
  void Aplicar();

  ContextoGui& contexto_;
  QLabel *ninguna_, *que_;
  VistaTabla* tabla_;
  QPushButton* aplicar_;
};

}  // namespace novex::gui
