#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QWidget>
#include <array>
#include <vector>

#include "reference/CatalogoMateriales.h"
#include "shell/gui/ContextoGui.h"

namespace novex::gui {

/// El catálogo de materiales de una clase de orientación: se busca, se añaden capas de él y se
/// crean materiales y espesores nuevos.
class SelectorMateriales : public QWidget {
  Q_OBJECT

 public:
  /// \param vertical muros o forjados \throws ErrorFichero si el catálogo no se puede leer
  SelectorMateriales(ContextoGui& contexto, bool vertical, QWidget* padre = nullptr);

 signals:
  /// El usuario quiere esta capa en el cerramiento.
  void Anadida(const novex::Capa& capa);

 private:
  QLayout* Filtro();
  QLayout* Ordenes();
  QWidget* PanelNuevo();
  void LlenarGrupos();
  void Llenar(std::size_t elegir = 0);
  void LlenarY(const MaterialCatalogo& elegido);
  void Ensenar();
  const MaterialCatalogo* Elegido() const;
  std::string Grupo() const;
  RamaMateriales Rama() const;
  void Anadir();
  void NuevoEspesor();
  void NuevoMaterial();
  void Borrar();
  void Mover(Sentido sentido);

  ContextoGui& contexto_;
  bool vertical_;
  CatalogoMateriales catalogo_;
  std::vector<MaterialCatalogo> lista_;
  QComboBox *listas_, *grupos_;
  QLineEdit *buscar_, *espesor_;
  QTableWidget* materiales_;
  QLabel *pista_, *admitido_;
  QPushButton *anadir_, *nuevoEspesor_, *nuevo_, *borrar_, *subir_, *bajar_;
  QWidget* panel_;
  QLineEdit *nombreN_, *espesorN_, *rtermN_, *kN_, *denN_, *cpN_, *rvaporN_, *iniN_;
};

}  // namespace novex::gui
