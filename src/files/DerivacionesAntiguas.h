#pragma once

#include <string>
#include <string_view>

namespace novex {

/// Tipo de certificado que corresponde al objetivo del trabajo de un fichero de una versión
/// anterior: "Nuevo" da "ProyectoNuevaConstruccion"; "Existente" y "CertificacionSolo",
/// "Existente"; "Ampliación" y "Cambio de uso", "ProyectoAmpliacion"; los que empiezan por
/// "Reforma", "ProyectoReforma". \returns vacío si no es ninguno
std::string TipoCertificadoDe(std::string_view modoTrabajo);

/// Periodo de construcción, de los que hoy se eligen, de un año escrito en un fichero de una
/// versión anterior. Un texto que no es un número queda como está.
std::string PeriodoConstruccionDe(std::string_view ano);

}  // namespace novex
