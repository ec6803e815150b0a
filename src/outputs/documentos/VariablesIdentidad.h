#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "outputs/CasoCalculado.h"
#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Procedimiento con que se ha calculado, como consta en los documentos.
inline constexpr std::string_view kProcedimiento = "NOVEX V_6.1  Fecha: mayo-2024";

/// Referencias catastrales de un edificio; la del campo antiguo si no hay otras.
std::string ReferenciasDe(const Edificio& edificio);

/// Añade quién es el edificio y quién lo certifica: textos del usuario, ya como HTML.
/// \param tipoCertificado clase de certificado que se muestra
void VariablesIdentidad(const Edificio& edificio, std::string_view tipoCertificado,
                        std::vector<VBLE>& variables);

/// Añade las medidas y el uso: superficie, volumen, compacidad, caudal de ventilación, ocupación,
/// carga interna y agua caliente. \param compacidad volumen entre superficie, m
void VariablesUso(const CasoCalculado& caso, double compacidad, std::vector<VBLE>& variables);

/// Añade las tres visitas: su fecha y las diez primeras líneas de su texto.
void VariablesVisitas(const DatosGenerales& generales, std::vector<VBLE>& variables);

}  // namespace novex
