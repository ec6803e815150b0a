#pragma once

#include <QWidget>

#include "shell/gui/ContextoGui.h"
#include "shell/gui/Enlaces.h"

namespace novex::gui {

/// Una página de la ventana. Enseña el caso activo y edita por el contexto; no tiene reglas.
class Pagina : public QWidget {
  Q_OBJECT

 public:
  explicit Pagina(ContextoGui& contexto, QWidget* padre = nullptr)
      : QWidget(padre), contexto_(contexto), enlaces_(contexto, this) {}

  /// Pone en la página lo que tiene el caso activo. Se llama al entrar y tras cada cambio.
  virtual void Refrescar() { enlaces_.Refrescar(); }
  /// Enseña una de sus páginas, si la tiene. \param subdestino su nombre en la navegación
  virtual void AbrirEn(const QString& subdestino) { static_cast<void>(subdestino); }
  /// Deja a la vista lo que hay que corregir y, si es un campo, con el foco.
  virtual void Senalar(const MensajePrevio& motivo);
  /// Los enlaces de la página y de las que lleva dentro, para recorrerlos.
  const Enlaces& Enlazados() const { return enlaces_; }

 protected:
  ContextoGui& contexto_;
  Enlaces enlaces_;
};

}  // namespace novex::gui
