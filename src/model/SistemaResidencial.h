#pragma once

#include <string>
#include <vector>

#include "model/Instalaciones.h"

namespace novex {

/// Un sistema como lo ve el usuario.
struct SistemaResidencial {
  std::string Tipo_sistema;  ///< servicios que da
  std::string Nombre_sistema;
  float Sup_ACS = 0, Sup_Calefaccion = 0, Sup_Refrigeracion = 0;  ///< m2 servidos
  std::vector<Instalaciones> instalaciones;
  bool operator==(const SistemaResidencial&) const = default;
};

}  // namespace novex
