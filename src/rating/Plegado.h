#pragma once

#include "demand/calculo.h"
#include "model/Edificio.h"

namespace novex {

/// Pliega las tablas mensuales de un año simulado en los indicadores por servicio: reparte la
/// producción fotovoltaica de cada mes por el uso eléctrico del mismo mes, aplica los servicios
/// forzados y convierte la energía final de cada vector en primaria y en emisiones.
/// Los servicios forzados cambian también las tablas mensuales. Los totales que se califican los
/// pone `CalificarCaso`. \param edificio da la superficie útil, el uso, la provincia y
/// `Equipos_Defecto` \param caso con sus tablas mensuales llenas y sus factores leídos
void PlegarCaso(const Edificio& edificio, calculo& caso);

}  // namespace novex
