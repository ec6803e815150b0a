#pragma once

#include <QTreeWidget>
#include <optional>

#include "shell/gui/FichaHueco.h"
#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Los grupos de huecos: medidas, vidrio, marco, protecciones y unidades por orientación.
class PaginaHuecos : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaHuecos(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;
  /// El grupo que se enseña.
  std::size_t Grupo() const { return grupo_; }
  void MostrarGrupo(std::size_t grupo);

 private:
  QWidget* CajaGrupos();
  void LlenarGrupos();
  void RehacerFicha();
  void AnadirGrupo();
  void QuitarGrupo();
  void CopiarPropiedades();
  void VerSombra();

  std::optional<CatalogoVidrios> catalogo_;
  std::size_t grupo_ = 0;
  QTreeWidget* lista_ = nullptr;
  QPushButton* quitar_ = nullptr;
  QPushButton* copiar_ = nullptr;
  QLabel* total_ = nullptr;
  QLabel* aviso_ = nullptr;
  FichaHueco* ficha_ = nullptr;
};

}  // namespace novex::gui
