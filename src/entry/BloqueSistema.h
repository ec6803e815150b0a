#pragma once

#include <string_view>

#include "model/Edificio.h"
#include "systems/ClasesSistema.h"

namespace novex {

/// ¿Lleva la clase de generador una caldera o un calentador, solos o detrás de una bomba de calor?
bool LlevaCaldera(ClaseGenerador clase);

/// Caudales de los circuitos de agua de un bloque y saltos de sus bombas, con los saltos del
/// bloque. \param potencia1 del generador 1, kW \param potencia2 del generador 2, kW
void PonerCaudales(TipoSistema tipo, double potencia1, double potencia2, Instalaciones& bloque);

/// Rellena un bloque nuevo con los valores de partida y el tamaño que pide el caso. El bloque trae
/// la clase (`Seleccion`) y la tipología; el emisor, el `TipoBC1` y las distribuciones que traiga
/// se respetan. Sin viviendas, área ni consumo las potencias quedan a 0.
/// \param tipoSistema texto de `Tipo_sistema`
void DimensionarBloque(const Edificio& edificio, std::string_view tipoSistema,
                       Instalaciones& bloque);

}  // namespace novex
