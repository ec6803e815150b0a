#pragma once

#include <QLabel>
#include <QPlainTextEdit>
#include <QWidget>

#include "shell/gui/ContextoGui.h"

namespace novex::gui {

/// Uno de los textos libres de un caso. Se guarda al salir de él, con las líneas que caben.
class EditorMemo : public QWidget {
  Q_OBJECT

 public:
  /// \param cual su posición en `DatosGenerales::Memo` \param nombre el de la edición
  EditorMemo(ContextoGui& contexto, std::size_t cual, const QString& nombre,
             QWidget* padre = nullptr);
  void Refrescar();
  QPlainTextEdit* Texto() { return texto_; }

 protected:
  bool eventFilter(QObject* quien, QEvent* evento) override;

 private:
  void Guardar();
  void Contar();

  ContextoGui& contexto_;
  std::size_t cual_;
  QString nombre_;
  QPlainTextEdit* texto_;
  QLabel* cuenta_;
};

}  // namespace novex::gui
