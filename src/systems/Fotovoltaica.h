#pragma once

#include "demand/calculo.h"
#include "model/DatosGenerales.h"

namespace novex {

/// Potencia de los tres campos fotovoltaicos del edificio en una hora, kW. Un rendimiento negativo
/// da una aportación negativa. \param extraPico kW que una medida añade al primer campo
float PotenciaFotovoltaica(const DatosGenerales& generales, const SeriesClima& clima,
                           float extraPico, int h);

/// Producción de cada mes y, en la posición 0, del año, kWh: la suma de `PotenciaFotovoltaica`.
TablaMensual ProduccionFotovoltaica(const DatosGenerales& generales, const SeriesClima& clima);

/// ¿Hay algún campo con potencia?
bool HayFotovoltaica(const DatosGenerales& generales, float extraPico);

}  // namespace novex
