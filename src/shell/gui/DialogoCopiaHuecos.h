#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <array>

#include "entry/GruposHuecos.h"
#include "shell/gui/ContextoGui.h"

namespace novex::gui {

/// Copia de las propiedades térmicas de un grupo de huecos a otros.
class DialogoCopiaHuecos : public QDialog {
  Q_OBJECT

 public:
  DialogoCopiaHuecos(ContextoGui& contexto, std::size_t grupo, QWidget* padre);

 private:
  void LlenarGrupos();
  void MarcarTodos(bool marcados);
  /// Lo que hay marcado: grupos de destino y conjuntos.
  std::vector<std::size_t> Destinos() const;
  SeleccionPropiedades Conjuntos() const;
  void Revisar();
  void Aplicar();

  ContextoGui& contexto_;
  std::size_t grupo_;
  QListWidget* grupos_;
  QCheckBox* todos_;
  std::array<QCheckBox*, kConjuntosPropiedades> conjuntos_{};
  QPushButton* aplicar_;
  QLabel* resultado_;
};

}  // namespace novex::gui
