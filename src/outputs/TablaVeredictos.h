#pragma once

#include <string>
#include <vector>

#include "base/Tabla.h"
#include "compliance/VerificacionHE.h"

namespace novex {

/// Los veredictos de un caso, una tabla por sección en su orden.
std::vector<Tabla> TablasVeredictos(const std::vector<Veredicto>& veredictos);

/// Un caso verificado, para mostrarlo.
struct CasoVerificado {
  std::string nombre;
  VerificacionHE verificacion;
};

/// Los veredictos de los casos de un proyecto en JSON: por caso, si cumple y la lista de
/// `seccion`, `requisito`, `valor`, `limite`, `unidad`, `veredicto`, `nota`, y si se
/// exige y se pasa. Un valor o un límite que no hay es nulo.
std::string JsonVeredictos(const std::string& proyecto, const std::vector<CasoVerificado>& casos);

}  // namespace novex
