#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include "shell/gui/ContextoGui.h"
#include "systems/CatalogoEquipos.h"

namespace novex::gui {

/// Los modelos del catálogo de equipos que valen para un bloque. Elegir uno pone sus curvas y, si
/// es de un fabricante, sus potencias.
class DialogoCatalogo : public QDialog {
  Q_OBJECT

 public:
  /// \param numero el del bloque entre los de todos los sistemas, desde 1
  DialogoCatalogo(ContextoGui& contexto, std::size_t numero, QWidget* padre = nullptr);

 private:
  void LlenarModelos();
  void Aplicar();

  ContextoGui& contexto_;
  std::size_t numero_;
  CatalogoEquipos catalogo_;
  TipoCatalogo tipo_;
  std::string modelo_;
  QComboBox* fabricantes_;
  QTableWidget* tabla_;
  QLabel* nota_;
  QPushButton* aplicar_;
};

}  // namespace novex::gui
