#include "compliance/CondensacionPuentes.h"

#include <array>
#include <cmath>

namespace novex {
namespace {

struct FilaPuente {
  Puente puente;
  std::string_view tipo;
};
constexpr std::array<FilaPuente, kPuentes> kFilas = {{{puente_forjados, "forjados"},
                                                      {puente_cubiertas, "cubiertas"},
                                                      {puente_suelo_exterior, "suelo_exterior"},
                                                      {puente_esquina_saliente, "esquina_saliente"},
                                                      {puente_ventanas, "ventanas"},
                                                      {puente_pilares, "pilares"},
                                                      {puente_suelo_terreno, "suelo_terreno"}}};

}  // namespace

std::vector<CondensacionPuente> CondensacionPuentes(const Construccion& construccion,
                                                    const CondicionesCondensacion& condiciones) {
  std::vector<CondensacionPuente> puentes;
  puentes.reserve(kFilas.size());
  for (const FilaPuente& fila : kFilas) {
    const float fi = construccion.fi_Puentes[fila.puente];
    CondensacionPuente p;
    p.puente = fila.puente;
    p.tipo = fila.tipo;
    p.nombre = "Puente " + p.tipo;
    p.fRsi = std::isfinite(fi) ? static_cast<double>(fi) : 0.0;
    p.fRsiMin = condiciones.fRsiMin;
    p.aplica = fila.puente != puente_pilares || construccion.Existencia_pilares == 0;
    p.cumple = !p.aplica || p.fRsiMin <= p.fRsi;
    puentes.push_back(std::move(p));
  }
  return puentes;
}

}  // namespace novex
