#pragma once

#include <string>

#include "model/Edificio.h"

namespace novex {

/// Lo que ha construido una definición exprés, contado en una frase antes de aceptarlo: tamaño y
/// zona, fachada con su parte de huecos, cubierta, suelo, medianeras, ventilación y agua caliente,
/// con sus transmitancias. Lo que no hay no se cuenta.
std::string DescribirExpres(const Edificio& edificio);

}  // namespace novex
