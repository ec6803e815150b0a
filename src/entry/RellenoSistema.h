#pragma once

#include <optional>

#include "base/Mensajes.h"
#include "model/Edificio.h"
#include "systems/ClasesSistema.h"

namespace novex {

/// Potencia del generador 1 que pesa en los servicios de un sistema, kW. Nada en las clases que no
/// la tienen, las de rendimiento estacional.
std::optional<double> PotenciaGenerador(TipoSistema tipo, const Instalaciones& bloque);

/// Sube a su mínimo la potencia de un calentador de vivienda, según los baños del primer tipo de
/// vivienda, y la resistencia eléctrica del agua caliente, con un aviso por cada una.
/// \returns si ha cambiado algo
bool PonerPotenciasMinimas(const Edificio& edificio, TipoSistema tipo, Instalaciones& bloque,
                           Mensajes& mensajes);

/// Tras cambiar una potencia o la clase de un generador: pone las potencias mínimas y vuelve a
/// sacar de cada bloque los caudales de sus bombas y de su ventilador. Lo demás no cambia.
void RellenarSistema(const Edificio& edificio, SistemaResidencial& sistema, Mensajes& mensajes);

}  // namespace novex
