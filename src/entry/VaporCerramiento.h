#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "compliance/Condensacion.h"
#include "files/xmlParser.h"
#include "reference/Cerramiento.h"

namespace novex {

/// El vapor de un cerramiento mientras se define.
struct VaporCerramiento {
  CondicionesCondensacion condiciones;
  CondensacionElemento elemento;
};

/// Comprueba el vapor de unas capas como si estuvieran en una posición, con el estado de proyecto
/// del sitio de ahora: no hace falta haber calculado el caso.
/// \param capitales elemento `CAPITALES`
/// \returns nada sin capas o si la provincia no está
/// \throws std::out_of_range si la posición no existe
std::optional<VaporCerramiento> VaporDeCapas(const Edificio& edificio, const XMLNode& capitales,
                                             std::size_t ranura, std::span<const Capa> capas);

}  // namespace novex
