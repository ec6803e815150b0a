#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <vector>

#include "reference/CatalogoComposiciones.h"
#include "shell/gui/ContextoGui.h"
#include "shell/gui/DibujoSeccion.h"
#include "shell/gui/DibujoVapor.h"
#include "shell/gui/ListaCapas.h"
#include "shell/gui/SelectorMateriales.h"

namespace novex::gui {

/// El editor de una composición: sus capas, su sección a escala y su U según se define. Al aceptar
/// la guarda en la biblioteca.
class TFCrearMuro : public QDialog {
  Q_OBJECT

 public:
  /// \param ranura posición de la envolvente, que da la familia y dónde se comprueba el vapor
  /// \param modelo subtipo, nombre y capas con que empieza
  /// \throws ErrorFichero si el catálogo de materiales no se puede leer
  TFCrearMuro(ContextoGui& contexto, CatalogoComposiciones& catalogo, std::size_t ranura,
              const ComposicionCatalogo& modelo, QWidget* padre = nullptr);
  /// Guarda la composición; si no vale, avisa y no se cierra.
  void accept() override;
  /// La composición guardada, como queda en la biblioteca.
  const ComposicionCatalogo& Creada() const { return creada_; }
  const std::vector<Capa>& Capas() const { return capas_; }

 protected:
  /// Intro acaba de escribir un número; no cierra.
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  QLayout* Cabecera(const ComposicionCatalogo& modelo);
  QWidget* LadoCapas();
  QLayout* OrdenesCapas();
  QLayout* Pie();
  void Anadir(const Capa& capa);
  void Quitar();
  void Mover(int desde, int hasta);
  void CambiarEspesor(int capa, const QString& texto);
  void LeerPeliculas();
  void Ensenar(int elegida);
  void EnsenarOrdenes(int elegida);
  void EnsenarU();
  void EnsenarVapor();

  ContextoGui& contexto_;
  CatalogoComposiciones& catalogo_;
  std::size_t ranura_;
  FamiliaCerramiento familia_;
  std::vector<Capa> capas_;
  Peliculas peliculas_;
  ComposicionCatalogo creada_;
  QLineEdit *nombre_, *he_, *hi_;
  QComboBox* subtipos_;
  ListaCapas* lista_;
  QLabel *resumen_, *U_, *vacio_;
  QTabWidget* dibujos_;
  DibujoSeccion* seccion_;
  DibujoVapor* vapor_;
  QPushButton *subir_, *bajar_, *quitar_, *vaciar_;
};

/// Define una composición a partir de la que tiene una posición y, si se acepta, la guarda en la
/// biblioteca y la pone en la posición. \throws ErrorFichero si falta un catálogo
void DefinirComposicion(ContextoGui& contexto, std::size_t ranura, QWidget* padre);

}  // namespace novex::gui
