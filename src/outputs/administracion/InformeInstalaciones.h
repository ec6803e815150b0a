#pragma once

#include "files/xmlParser.h"
#include "outputs/CasoCalculado.h"

namespace novex {

/// Perfil de uso de un espacio en el informe.
std::string_view PerfilDeUsoInforme(const DatosGenerales& generales);

/// Añaden al informe los generadores de cada servicio y, en terciario, la unidad de tratamiento de
/// aire, los ventiladores y las bombas, la iluminación y el espacio. \param informe el elemento
/// raíz \param caso ya plegado
void AnadirInstalacionesTermicas(XMLNode& informe, const CasoCalculado& caso);
void AnadirIluminacion(XMLNode& informe, const Edificio& edificio);
void AnadirFuncionamiento(XMLNode& informe, const Edificio& edificio);

}  // namespace novex
