#pragma once

#include "outputs/ArbolVariables.h"

namespace novex {

/// Las variables de la instalación `numero` (desde 1) que el cálculo ha dejado, con el grupo
/// puesto: generadores, depósito, pérdidas, bombas y ventiladores.
/// Vacío si el caso no tiene ese sistema.
std::vector<NodoVariable> VariablesDeSistema(const Edificio& edificio, const calculo& caso,
                                             std::size_t numero);

/// Por cuánto se multiplica la magnitud de los sistemas con que se lee un nodo para tenerla en su
/// unidad: los ventiladores están en W y se muestran en kWh.
float FactorDeSistema(const NodoVariable& nodo);

}  // namespace novex
