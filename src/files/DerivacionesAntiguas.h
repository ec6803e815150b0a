#pragma once

#include <optional>
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

/// Perfil de uso de un edificio por su tipología: "Unifamiliar", "Bloque", "ViviendaBloque",
/// "Terciario", el nombre de un perfil o su posición. \param tipoUso el horario de un terciario,
/// como "8hB" \returns nada si no es ninguna
std::optional<int> PerfilUsoDeTipologia(std::string_view tipologia, std::string_view tipoUso);

}  // namespace novex
