#pragma once

#include <string_view>

#include "model/TablaEnvolvente.h"

namespace novex {

/// Letra de invierno de una zona climática, con alfa contada como A: de 'A' a 'E'. Una zona que no
/// se reconoce da 'A'.
char LetraInvierno(std::string_view zona);

/// Transmitancia límite de los huecos de una orientación (CTE DB-HE1 2006, tabla 2.2), W/m2K.
/// \param letra la de `LetraInvierno` \param proporcion huecos entre huecos más muro, de 0 a 1
float ULimiteHueco(char letra, Sector orientacion, float proporcion);

/// Factor solar de un vidrio de la transmitancia dada.
float FactorSolarDeU(float U);

/// Factor solar límite modificado de los huecos de una orientación (CTE DB-HE1 2006, tabla 2.2); 0
/// si no hay límite. La carga interna media es la media de los dos límites donde los hay. \param
/// perfilUso 3 a 14; otro no tiene límite
float FactorSolarLimite(std::string_view zona, Sector orientacion, float proporcion, int perfilUso);

}  // namespace novex
