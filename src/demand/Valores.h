#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "demand/Series.h"

namespace novex {

/// Serie de un elemento de la zona: el calor que trae a la zona en cada hora, W.
struct Valores {
  SerieHoraria valor;
  std::string recinto;      ///< índice del recinto, como texto
  std::string familia;      ///< "Opacos", "SemiTransp.", "CargaInterna", "PuentesT", "Ventilacion"
  std::string grupo;        ///< "Cubiertas", "Muros", "Suelos" o "G-" y el número del grupo
  std::string nombre;       ///< "HzExt1", "Muro1"... o el número del grupo de huecos
  std::string orientacion;  ///< "HORIZONTAL", "NORTE", ...
  float areaBruta = 0;      ///< m2
  float areaSombra = 0;     ///< m2, cambia con el mes
  int numero = 0;           ///< huecos del elemento
};

/// Elementos de la zona por su clave.
using valores_type = std::map<std::string, Valores>;

}  // namespace novex
