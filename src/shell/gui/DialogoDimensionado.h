#pragma once

#include <QDialog>
#include <QTableWidget>

#include "shell/gui/ContextoGui.h"

namespace novex::gui {

/// Lo que el dimensionado cambiaría en un bloque, para tomarlo entero o en parte.
class DialogoDimensionado : public QDialog {
  Q_OBJECT

 public:
  /// \param numero el del bloque entre los de todos los sistemas, desde 1
  DialogoDimensionado(ContextoGui& contexto, std::size_t numero, QWidget* padre = nullptr);

 private:
  QString Cargas() const;
  void LlenarTabla();
  void Aplicar();

  ContextoGui& contexto_;
  std::size_t numero_;
  QTableWidget* tabla_;
};

}  // namespace novex::gui
