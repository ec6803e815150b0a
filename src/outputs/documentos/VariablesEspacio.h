#pragma once

#include "outputs/CasoCalculado.h"
#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Añade el único espacio del edificio: superficie, volumen, perfil, consignas, ventilación e
/// iluminación.
void VariablesEspacio(const CasoCalculado& caso, std::vector<VBLE>& variables);

/// Añade los consumos de bombas y ventiladores, kWh al año, y en terciario la unidad de tratamiento
/// de aire y las torres de refrigeración.
void VariablesAuxiliares(const CasoCalculado& caso, std::vector<VBLE>& variables);

/// Perfil de uso con su nombre del registro de certificados: "residencial-24h-baja"...
std::string PerfilUsoCertificado(int perfilUso);

}  // namespace novex
