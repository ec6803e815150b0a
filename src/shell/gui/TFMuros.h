#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <vector>

#include "reference/CatalogoComposiciones.h"
#include "shell/gui/ContextoGui.h"
#include "shell/gui/DibujoSeccion.h"

namespace novex::gui {

/// La biblioteca de composiciones de la familia de una posición de la envolvente: se elige una, se
/// crea, se ordena o se borra, y se guarda en ella la que tiene la posición.
class TFMuros : public QDialog {
  Q_OBJECT

 public:
  /// \param ranura posición de la envolvente \throws ErrorFichero si el catálogo no se puede leer
  TFMuros(ContextoGui& contexto, std::size_t ranura, QWidget* padre = nullptr);
  /// Pone la composición elegida en la posición.
  void accept() override;

 private:
  QLayout* Filtro();
  QLayout* Ordenes();
  QWidget* VistaPrevia();
  QLayout* Asignada();
  void Llenar(const std::string& elegir = {});
  void Ensenar();
  const ComposicionCatalogo* Elegida() const;
  std::string Subtipo() const;
  void Crear(const ComposicionCatalogo* modelo);
  void Eliminar();
  void Mover(Sentido sentido);
  void Almacenar();

  ContextoGui& contexto_;
  std::size_t ranura_;
  FamiliaCerramiento familia_;
  CatalogoComposiciones catalogo_;
  std::vector<ComposicionCatalogo> lista_;
  QComboBox* subtipos_;
  QLineEdit* buscar_;
  QTableWidget *composiciones_, *capas_;
  QLabel *titulo_, *resumen_, *asignada_, *vacia_;
  DibujoSeccion* seccion_;
  QPushButton *copiar_, *eliminar_, *subir_, *bajar_, *almacenar_, *aceptar_;
};

}  // namespace novex::gui
