#pragma once

#include <string>
#include <vector>

#include "outputs/CasoCalculado.h"
#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Lo que un servicio consume de un vector en el año.
struct ConsumoServicio {
  Servicio servicio = kACS;
  VectorEnergetico vector = VectorEnergetico::Electricidad;
  std::string generador;  ///< etiqueta del que lo consume
  float energia = 0;      ///< kWh/año; la electricidad, antes de restar la fotovoltaica
};

/// Consumos del año por sistema, servicio y vector: lo que toman sus generadores, con la
/// electricidad de sus bombas y ventiladores, y el calor que toman del ambiente. Siguen la
/// instalación solar térmica, el equipo por defecto y los ventiladores de la ventilación. Sumados
/// por servicio dan su energía final.
/// \param caso ya plegado
std::vector<ConsumoServicio> ConsumosDeCaso(const CasoCalculado& caso);

/// Añade las filas de consumo al modelo.
void ListaConsumos(const CasoCalculado& caso, NOVEX_TO_MODELOCERTIFICADO& modelo);

}  // namespace novex
