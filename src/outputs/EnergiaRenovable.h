#pragma once

#include "demand/ResultadosCaso.h"

namespace novex {

/// Energía final de un servicio en el año y de ella la renovable, kWh del edificio.
struct OrigenesServicio {
  float total = 0, biomasa = 0, ambiente = 0, solar = 0, fotovoltaica = 0;
  /// Renovable térmica: sin la fotovoltaica.
  float Termica() const { return solar + biomasa + ambiente; }
};
OrigenesServicio OrigenesDe(const ResultadosCaso& resultados, Servicio servicio);

/// Qué tanto por ciento es una parte; 0 sin total.
float Porciento(float parte, float total);

/// Emisiones de todos los servicios que no son de la electricidad, kg/m2 y año. Es la suma de los
/// servicios y no el total que se califica, que en las zonas sin refrigeración no la lleva.
float EmisionesNoElectricas(const ResultadosCaso& resultados);

}  // namespace novex
