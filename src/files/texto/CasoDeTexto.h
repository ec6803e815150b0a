#pragma once

#include <bitset>
#include <string_view>

#include "model/Construccion.h"

namespace novex {

/// Lo que un fichero de texto ha dicho de un caso y hay que saber para completarlo con los datos de
/// la carpeta de programa.
struct CasoDeTexto {
  std::string_view nombre;  ///< del caso en el proyecto
  bool conAltitud = false;  ///< el fichero da la altitud
  // Puentes cuyo valor trae el fichero, por `Puente`: no los cambia la tabla de la zona.
  std::bitset<kPuentes> conU, conFi;
};

}  // namespace novex
