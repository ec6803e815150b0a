#pragma once

#include <QLabel>
#include <vector>

#include "outputs/CasoCalculado.h"
#include "outputs/ReglasResultados.h"
#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Una página de resultados: enseña lo que dejó el cálculo del caso activo y no edita el edificio.
/// No calcula: al entrar en los resultados lo ha hecho ya la página que la contiene.
class PaginaResultados : public Pagina {
  Q_OBJECT

 public:
  using Pagina::Pagina;
  /// Enseña el caso activo si está calculado; si no, deja lo que había.
  void Refrescar() final;

 protected:
  virtual void Ensenar(const CasoCalculado& caso) = 0;
  /// El caso activo, si está calculado. Solo vale mientras no se edite.
  std::optional<CasoCalculado> Calculado() const;
  /// Los casos calculados del proyecto, con los mismos reparos.
  std::vector<CasoCalculado> Casos() const;
};

/// Pone en una nota las horas fuera de consigna, marcadas si la certificación no es válida; sin
/// ellas, la esconde.
void PonerHorasFuera(QLabel* nota, const HorasFueraConsigna& horas);

}  // namespace novex::gui
