#pragma once

#include <string>
#include <vector>

#include "base/Grafico.h"
#include "base/Tabla.h"
#include "compliance/DocumentosHE.h"
#include "compliance/Veredicto.h"
#include "model/Edificio.h"

namespace novex {

/// Columnas del control solar: los seis sectores y los lucernarios.
inline constexpr std::size_t kColumnasControl = kSectores + 1;

/// Control solar de los huecos en julio (CTE DB-HE1, 3.1.2).
struct ControlSolar {
  std::array<double, kColumnasControl> area{};         ///< m2
  std::array<double, kColumnasControl> irradiacion{};  ///< área por irradiación de julio, kWh
  std::array<double, kColumnasControl> ganancia{};     ///< lo que entra, kWh
  double q = 0;                                        ///< kWh/m2 en julio
  bool cumple = true;
  std::string texto, veredicto;
  Tabla SGqjulio;
  Grafico grafico;  ///< lo que entra por orientación
  Veredicto registro;
};
ControlSolar ComprobarControlSolar(const Edificio& edificio, const DocumentosHE& documentos);

}  // namespace novex
