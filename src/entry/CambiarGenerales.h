#pragma once

#include <utility>

#include "model/Edificio.h"

namespace novex {

/// Saca los datos generales de un caso, les aplica `cambio` y los vuelve a guardar.
template <class Cambio>
void CambiarGenerales(Edificio& edificio, Cambio cambio) {
  DatosGenerales generales = edificio.GetDatosGenerales();
  cambio(generales);
  edificio.SetDatosGenerales(std::move(generales));
}

}  // namespace novex
