#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "files/InformeLectura.h"
#include "model/DatosGenerales.h"
#include "model/DatosPantalla.h"

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

/// La fila de la lista de referencias de una que estaba escrita seguida: veinte letras y cifras son
/// las catorce de la parcela y las seis del inmueble; otra cosa queda entera en la parcela.
ReferenciaCatastral FilaDeReferencia(std::string_view referencia);

/// Deja el teléfono del certificador donde hoy se guarda el único que hay.
void DejarUnTelefono(DatosGenerales& generales, InformeLectura& informe);

/// Apunta lo leído de un fichero antiguo que los de hoy no guardan.
void AnotarSinSitio(const DatosGenerales& generales, InformeLectura& informe);

}  // namespace novex
