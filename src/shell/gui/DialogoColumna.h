#pragma once

#include <QDialog>
#include <QLabel>
#include <array>

#include "shell/gui/ContextoGui.h"
#include "shell/gui/Enlaces.h"

namespace novex::gui {

/// Los huecos de un grupo en una orientación: cuántos son, cuánto los separa en altura y qué
/// obstáculos cercanos tienen delante.
class DialogoColumna : public QDialog {
  Q_OBJECT

 public:
  /// \param columna de oeste a este: las que tienen obstáculos
  DialogoColumna(ContextoGui& contexto, std::size_t grupo, Sector columna, QWidget* padre);

 private:
  QWidget* CajaObstaculos(const std::string& hueco);
  QWidget* CajaMeses();
  void Refrescar();

  ContextoGui& contexto_;
  Enlaces enlaces_;
  std::size_t grupo_;
  Sector columna_;
  QLabel* avisos_;
  std::array<QLabel*, 12> meses_{};
};

/// Nombre de un sector como se lee: "Suroeste".
QString NombreDeSector(std::size_t sector);

}  // namespace novex::gui
