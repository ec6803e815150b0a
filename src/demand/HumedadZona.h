#pragma once

#include "demand/AjustesUso.h"
#include "demand/calculo.h"
#include "model/Edificio.h"

namespace novex {

/// Balance de humedad de la zona, analítico en cada hora.
class HumedadZona {
 public:
  HumedadZona(const Edificio& edificio, const AjustesUso& ajustes, calculo& caso);
  /// Humedad de la zona al final de la hora `h`, que queda en `WL`.
  /// \param frioLatente calor latente que quitan los equipos, W
  /// \param eficiencia recuperación de humedad, %
  void Hora(int h, float frioLatente, float eficiencia);

 private:
  AjustesUso ajustes_;
  calculo& caso_;
  float presion_, volumen_, superficie_, HRmin_;
  float saturacionBateria_;  ///< humedad de saturación a 10 °C, kg/kg
};

}  // namespace novex
