#pragma once

#include "outputs/VariablesFijas.h"

namespace novex::lectores {

// Las 8760 horas de las variables que no están guardadas en la unidad en que se muestran o que se
// rehacen de otras. Todas toman un caso ya calculado.

/// Calefacción y refrigeración, cada una con su signo, kWh.
std::vector<float> DemandaTotal(const ContextoVariables& c);
/// Bulbo húmedo de la zona, ºC.
std::vector<float> BulboHumedoLocal(const ContextoVariables& c);
/// Humedad relativa de la zona, %.
std::vector<float> HumedadRelativaLocal(const ContextoVariables& c);
/// Temperatura del agua de red, la de su mes, ºC.
std::vector<float> AguaRed(const ContextoVariables& c);
/// Caudal de ventilación que pide el horario, m3/h.
std::vector<float> CaudalVentilacion(const ContextoVariables& c);
/// Consumo de agua caliente a 60 ºC, l/h.
std::vector<float> CaudalAgua60(const ContextoVariables& c);
/// Radiación que llega a los captadores y a los paneles, kWh. A una vivienda de un bloque, su
/// parte.
std::vector<float> RadiacionCaptadores(const ContextoVariables& c);
std::vector<float> RadiacionPaneles(const ContextoVariables& c);
/// Radiación sobre una vertical, kWh/m2. \param azimut 0 al sur y positivo al oeste, grados
std::vector<float> RadiacionVertical(const ContextoVariables& c, float azimut);
/// Energía final del equipo por defecto de un servicio, kWh.
std::vector<float> ConsumoDefecto(const ContextoVariables& c, Servicio servicio);
/// Una serie guardada, multiplicada por un factor.
std::vector<float> Escalada(const SerieHoraria& serie, float factor);

}  // namespace novex::lectores
