#pragma once

#include <string>
#include <vector>

#include "compliance/Veredicto.h"
#include "model/DatosGenerales.h"

namespace novex {

/// Lo que se enseña de la iluminación (CTE DB-HE3).
struct RequisitoHE3 {
  bool aplica = false;              ///< solo en terciario
  bool pasa = true;                 ///< lo que no se exige pasa
  std::vector<std::string> lineas;  ///< textos en su orden
  /// Potencia y VEII; en residencial, uno solo que no se aplica.
  std::vector<Veredicto> veredictos;
};

/// Comprueba la potencia instalada y la eficiencia de la iluminación de un uso (CTE DB-HE3).
/// \param generales da `PerfilUso`, `Lux` (lux), `Iluminacion` (W/m2), `VEII` y `VEIIMax` (W/m2 por
/// cada 100 lux) \returns las líneas y los veredictos; un valor igual a su límite cumple
RequisitoHE3 ComprobarHE3(const DatosGenerales& generales);

}  // namespace novex
