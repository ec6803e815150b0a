#pragma once

#include <array>
#include <string>

#include "model/Edificio.h"

namespace novex {

/// Áreas de un sector, m2.
struct AreasSector {
  double opaco = 0;
  double huecos = 0;
  double Total() const { return opaco + huecos; }
};
using AreasPorSector = std::array<AreasSector, kSectores>;

/// Muros exteriores y huecos verticales por orientación.
AreasPorSector FachadaPorSector(const Edificio& edificio);
/// Faldones y lucernarios inclinados por orientación.
AreasPorSector FaldonesPorSector(const Edificio& edificio);
/// Cubierta horizontal y sus lucernarios.
AreasSector CubiertaPlana(const Edificio& edificio);

/// Las cifras con que se reconoce un edificio mientras se define. Solo suma lo tecleado: no
/// necesita un cálculo.
struct ResumenEnvolvente {
  double fachada = 0;   ///< con sus huecos, m2
  double cubierta = 0;  ///< al exterior, al terreno y bajo espacios no acondicionados, m2
  double suelo = 0;     ///< al exterior, al terreno y sobre espacios no acondicionados, m2
  double huecos = 0;    ///< parte de la fachada que es hueco, %
  double V_A = 0;       ///< compacidad: volumen entre el área de intercambio (DB-HE, anejo A), m
  double V_S = 0;       ///< volumen entre superficie útil, m
};
ResumenEnvolvente ResumirEnvolvente(const Edificio& edificio);

/// El resumen en una línea.
std::string TextoResumen(const ResumenEnvolvente& resumen);

}  // namespace novex
