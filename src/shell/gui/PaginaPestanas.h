#pragma once

#include <QScrollArea>
#include <QTabWidget>
#include <functional>
#include <vector>

#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Una página hecha de otras, en pestañas. Solo se refresca la que está a la vista, y las que
/// tardan en construirse pueden esperar a que se enseñen.
class PaginaPestanas : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaPestanas(ContextoGui& contexto, QWidget* padre = nullptr);
  void Anadir(Pagina* pagina, const QString& titulo);
  /// Añade una pestaña cuya página se crea la primera vez que se enseña.
  void AnadirTarde(std::function<Pagina*()> crear, const QString& titulo);
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

 protected:
  /// Quita de la vista las pestañas, todas, o las devuelve.
  void Tapar(bool si) { tira_->setVisible(!si); }

 private:
  struct Pestana {
    QScrollArea* visor = nullptr;
    Pagina* pagina = nullptr;  ///< nula mientras no se ha creado
    std::function<Pagina*()> crear;
  };
  Pagina* ALaVista();

  QTabWidget* tira_;
  std::vector<Pestana> pestanas_;
};

}  // namespace novex::gui
