#pragma once

#include <QDialog>
#include <QTreeWidget>

#include "files/InformeLectura.h"

namespace novex::gui {

/// Qué ha sido de lo que decía un fichero de una versión anterior: lo que se ha cambiado, supuesto,
/// saltado y leído. No estorba al trabajo: se deja abierto mientras se revisa.
class DialogoLectura : public QDialog {
  Q_OBJECT

 public:
  /// \param fichero el nombre del que se ha abierto
  DialogoLectura(const InformeLectura& informe, const QString& fichero, QWidget* padre = nullptr);

 private:
  void Anadir(const QString& titulo, const InformeLectura::Lineas& lineas, bool abierta);
  void Copiar();
  QTreeWidget* lista_;
};

}  // namespace novex::gui
