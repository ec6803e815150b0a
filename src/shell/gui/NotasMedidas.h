#pragma once

#include <QLabel>
#include <QWidget>
#include <array>

#include "shell/gui/EditorMemo.h"

namespace novex::gui {

/// Las notas de las medidas señaladas, hasta tres, cada una bajo su texto.
class NotasMedidas : public QWidget {
  Q_OBJECT

 public:
  explicit NotasMedidas(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar();

 private:
  struct Nota {
    QLabel* texto = nullptr;
    EditorMemo* memo = nullptr;
  };
  int Codigo(std::size_t cual) const;

  ContextoGui& contexto_;
  QLabel* ninguna_;
  std::array<Nota, 3> notas_;
};

}  // namespace novex::gui
