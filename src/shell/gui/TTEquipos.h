#pragma once

#include <QStackedWidget>
#include <QTreeWidget>

#include "shell/gui/Pagina.h"

class QPushButton;

namespace novex::gui {

class FichaSistema;
class FichaSolar;
class FichaFotovoltaica;

/// Las instalaciones: sistemas y generadores, solar térmica y fotovoltaica.
class TTEquipos : public Pagina {
  Q_OBJECT

 public:
  explicit TTEquipos(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  /// Lo que enseña un nodo del árbol: un bloque por su número, o una de las otras fichas.
  struct Nodo {
    enum class Ficha { Ninguna, Sistema, Solar, Fotovoltaica } ficha = Ficha::Ninguna;
    std::size_t numero = 0;
    bool operator==(const Nodo&) const = default;
  };

  QWidget* CajaArbol();
  QWidget* PaginaVacia();
  /// \param ruta lo que distingue al nodo de los demás mientras el árbol se rehace
  QTreeWidgetItem* Anadir(QTreeWidgetItem* padre, const QString& texto, Nodo nodo,
                          const QString& ruta);
  static Nodo NodoDe(const QTreeWidgetItem* item);
  void LlenarArbol();
  void AjustarElegido();
  QTreeWidgetItem* ItemElegido(const QString& ruta) const;
  void PonerSistemas();
  void Elegir(Nodo nodo);
  void Ensenar();
  void Crear();
  void Eliminar();

  QTreeWidget* arbol_;
  QStackedWidget* fichas_;
  FichaSistema* sistema_;
  FichaSolar* solar_;
  FichaFotovoltaica* fotovoltaica_;
  QLabel* sinSistema_;
  QPushButton *eliminar_, *renombrar_;
  Nodo elegido_;
};

}  // namespace novex::gui
