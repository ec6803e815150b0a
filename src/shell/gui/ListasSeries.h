#pragma once

#include <QComboBox>
#include <QStandardItemModel>
#include <QVBoxLayout>
#include <string>
#include <vector>

#include "outputs/ArbolVariables.h"

namespace novex::gui {

/// Listas desplegables que eligen entre las mismas variables, por grupos y con "Ninguno".
class ListasSeries : public QWidget {
  Q_OBJECT

 public:
  explicit ListasSeries(QWidget* padre = nullptr);
  /// Añade un rótulo y, debajo, listas con esos nombres. \param codigos lo que eligen de primeras;
  /// las que no tienen, "Ninguno"
  void Anadir(const QString& rotulo, const QStringList& nombres,
              const std::vector<std::string>& codigos);
  /// Añade un texto debajo de todo.
  void AnadirNota(const QString& texto);
  /// Enseña las variables; lo elegido que siga habiendo se conserva.
  void Poner(const std::vector<NodoVariable>& nodos);
  /// Código elegido en la lista que ocupa un lugar, o "Ninguno".
  std::string Elegida(std::size_t lista) const;

 signals:
  void Cambiada();

 private:
  QStandardItemModel* modelo_;
  QVBoxLayout* columna_;
  std::vector<QComboBox*> listas_;
  std::vector<std::string> elegidas_;
  std::vector<NodoVariable> nodos_;
};

}  // namespace novex::gui
