#pragma once

#include <QLabel>
#include <QPlainTextEdit>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "shell/gui/ContextoGui.h"

namespace novex::gui {

/// Qué texto de líneas se edita.
struct OpcionesMemo {
  QString nombre;          ///< el de la edición
  std::size_t lineas = 0;  ///< las que caben
  std::function<std::vector<std::string>(const Edificio&)> leer;
  std::function<void(Edificio&, std::string_view texto, Mensajes&)> poner;
};

/// Uno de los textos libres de un caso. Se guarda al salir de él, con las líneas que caben.
class EditorMemo : public QWidget {
  Q_OBJECT

 public:
  /// \param cual su posición en `DatosGenerales::Memo` \param nombre el de la edición
  EditorMemo(ContextoGui& contexto, std::size_t cual, const QString& nombre,
             QWidget* padre = nullptr);
  EditorMemo(ContextoGui& contexto, OpcionesMemo opciones, QWidget* padre = nullptr);
  void Refrescar();
  QPlainTextEdit* Texto() { return texto_; }

 protected:
  bool eventFilter(QObject* quien, QEvent* evento) override;

 private:
  void Guardar();
  void Contar();

  ContextoGui& contexto_;
  OpcionesMemo opciones_;
  QPlainTextEdit* texto_;
  QLabel* cuenta_;
};

}  // namespace novex::gui
