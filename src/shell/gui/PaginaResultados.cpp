#include "shell/gui/PaginaResultados.h"

#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {

void PaginaResultados::Refrescar() {
  enlaces_.Refrescar();
  if (const auto caso = Calculado()) Ensenar(*caso);
}

std::optional<CasoCalculado> PaginaResultados::Calculado() const {
  const std::string activo(contexto_.Sesion().Gestor().NombreActivo());
  for (CasoCalculado& caso : Casos())
    if (caso.nombre == activo) return std::move(caso);
  return std::nullopt;
}

std::vector<CasoCalculado> PaginaResultados::Casos() const {
  return CasosCalculados(contexto_.Sesion().Gestor());
}

void PonerHorasFuera(QLabel* nota, const HorasFueraConsigna& horas) {
  nota->setText(Q(horas.texto));
  nota->setVisible(!horas.texto.empty());
  PonerPapel(nota, horas.noValida ? "aviso" : "nota");
}

}  // namespace novex::gui
