#pragma once

#include <string>
#include <vector>

#include "base/Tabla.h"
#include "model/Edificio.h"

namespace novex {

/// Áreas de la envolvente de un caso por familia y tipo, con su composición. Solo las que hay.
Tabla TablaEnvolventeCaso(const Edificio& edificio);

/// Grupos de huecos de un caso: medidas y cuántos dan a cada orientación. Solo los que hay.
Tabla TablaHuecosCaso(const Edificio& edificio);

/// Sistemas de un caso, con lo que sirven.
Tabla TablaSistemasCaso(const Edificio& edificio);

/// Lo que contiene un caso sin calcularlo, en el orden en que se muestra.
std::vector<Tabla> TablasProyecto(const std::string& nombreCaso, const Edificio& edificio);

}  // namespace novex
