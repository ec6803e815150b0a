#pragma once

#include "shell/gui/PaginaPestanas.h"

namespace novex::gui {

/// Los resultados de los casos. Entrar en ella es calcular los que no lo están; después enseña el
/// caso activo en las páginas que le tocan.
class TResultadosT : public PaginaPestanas {
  Q_OBJECT

 public:
  explicit TResultadosT(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;
  /// "Temp" son las series horarias.
  void AbrirEn(const QString& subdestino) override;

 private:
  template <class UnaPagina>
  void Tarde(const QString& titulo);
  void PonerPestanas();

  QLabel* fallo_;
  bool libre_ = false;  // la última vez era una simulación libre
};

}  // namespace novex::gui
