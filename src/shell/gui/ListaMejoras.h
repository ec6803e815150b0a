#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "improvements/EstudioMejoras.h"
#include "shell/gui/ContextoGui.h"
#include "shell/gui/VistaTabla.h"

namespace novex::gui {

/// Las medidas medidas de un caso por el orden que se elija, con su marca y, en las marcadas, su
/// coste y sus años; y la que se elige: qué cambiaría en los datos y la orden de aplicarla como
/// caso de mejora.
class ListaMejoras : public QWidget {
  Q_OBJECT

 public:
  explicit ListaMejoras(ContextoGui& contexto, QWidget* padre = nullptr);
  /// \param medidas puede ser nula: no se ha medido ninguna
  void Ensenar(const ResultadoMedida& base, const std::vector<ResultadoMedida>* medidas);

 signals:
  /// Se ha marcado o desmarcado una medida.
  void Marcada();

 private:
  QWidget* CajaOrden();
  void Ordenar();
  void PonerTabla(bool entera);
  void PonerCasillas();
  int CodigoDe(int fila) const;
  int Elegida() const;
  void AlCambiar(QTableWidgetItem* casilla);
  void CambiarMarca(int codigo, bool si);
  void CambiarCifra(int codigo, bool coste, const std::string& texto);
  void AlElegir();
  void Aplicar();

  ContextoGui& contexto_;
  ResultadoMedida base_;
  std::vector<ResultadoMedida> medidas_;
  QLabel *ninguna_, *que_;
  QWidget* orden_;
  QComboBox* criterio_;
  VistaTabla* tabla_;
  QPushButton* aplicar_;
};

}  // namespace novex::gui
