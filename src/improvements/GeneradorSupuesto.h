#pragma once

#include <string>

#include "demand/ResultadosCaso.h"
#include "model/Edificio.h"

namespace novex {

/// Qué impide dar en un caso los servicios de una medida con un equipo de rendimiento estacional;
/// vacío si nada lo impide o la medida no supone ningún generador.
std::string ImpideGenerador(const Edificio& edificio, const Forzados& forzados);

/// Lo que cambia en las instalaciones de un caso; vacío si la medida no supone ningún generador.
std::string CambiosGenerador(const Edificio& edificio, const Forzados& forzados);

/// Pone un equipo de rendimiento estacional con la calefacción o la refrigeración que supone la
/// medida, para toda la superficie, y se las quita a los demás sistemas. No hace nada si algo lo
/// impide.
void PonerGeneradorSupuesto(Edificio& edificio, const Forzados& forzados);

}  // namespace novex
