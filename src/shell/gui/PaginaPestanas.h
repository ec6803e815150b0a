#pragma once

#include <QTabWidget>
#include <vector>

#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Una página hecha de otras, en pestañas. Solo se refresca la que está a la vista.
class PaginaPestanas : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaPestanas(ContextoGui& contexto, QWidget* padre = nullptr);
  void Anadir(Pagina* pagina, const QString& titulo);
  void Refrescar() override;
  /// Enseña la pestaña que tiene el campo.
  void Senalar(const MensajePrevio& motivo) override;
  void AbrirEn(const QString& subdestino) override { Mostrar(subdestino); }
  /// Enseña la de ese título, si está.
  void Mostrar(const QString& titulo);
  /// Esconde o enseña la de ese título.
  void Esconder(const QString& titulo, bool si);
  /// Pone a la de ese título un icono y lo que quiere decir.
  void Marcar(const QString& titulo, const QIcon& icono, const QString& ayuda);
  const std::vector<Pagina*>& Paginas() const { return paginas_; }

 protected:
  /// Quita de la vista las pestañas, todas, o las devuelve.
  void Tapar(bool si) { pestanas_->setVisible(!si); }

 private:
  QTabWidget* pestanas_;
  std::vector<Pagina*> paginas_;
};

}  // namespace novex::gui
