#pragma once

#include <QLineEdit>
#include <QTreeWidget>
#include <QWidget>
#include <string>
#include <vector>

#include "outputs/ArbolVariables.h"

namespace novex::gui {

/// El árbol de las variables de un caso, por grupos, con una casilla que busca en él. Se elige una
/// o, con las marcas puestas, varias.
class ArbolSeries : public QWidget {
  Q_OBJECT

 public:
  explicit ArbolSeries(QWidget* padre = nullptr);

  /// Enseña las variables. Lo elegido y lo marcado que siga habiendo se conserva; sin nada elegido,
  /// se elige `primera`.
  void Poner(const std::vector<NodoVariable>& nodos, const std::string& primera);
  /// Código de la variable elegida; vacío si no hay.
  std::string Elegida() const { return elegida_; }
  void Elegir(const std::string& codigo);
  /// Deja marcar varias variables, o solo elegir una. La elegida se marca si no hay otra.
  void Marcar(bool si);
  /// Códigos marcados, en el orden del árbol.
  std::vector<std::string> Marcadas() const;

 signals:
  void Cambiada();
  void MarcasCambiadas();

 private:
  void Rehacer();
  void Filtrar();
  QTreeWidgetItem* Nodo(const std::string& codigo) const;
  void PonerMarcas(const std::vector<std::string>& codigos);

  QLineEdit* buscar_;
  QTreeWidget* arbol_;
  std::vector<NodoVariable> nodos_;
  std::vector<QTreeWidgetItem*> variables_;  // las de `nodos_`, en su orden
  std::string elegida_;
  bool marcas_ = false;
};

}  // namespace novex::gui
