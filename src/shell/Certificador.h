#pragma once

#include <filesystem>

#include "base/EspacioTrabajo.h"
#include "base/Mensajes.h"
#include "model/DatosGenerales.h"

namespace novex {

/// Fichero con los datos del técnico certificador que se guardan entre proyectos.
std::filesystem::path FicheroCertificador(const EspacioTrabajo& espacio);

/// Pone en los campos del certificador los datos guardados; los que el fichero no tiene quedan en
/// blanco. Si no hay fichero no cambia ni avisa de nada. Si está dañado, avisa y no cambia nada.
/// \returns si los ha puesto
bool LeerCertificador(const std::filesystem::path& fichero, DatosGenerales& generales,
                      Mensajes& mensajes);

/// Guarda los datos del certificador. Con algún campo en blanco, o si no se puede escribir, avisa y
/// el fichero anterior queda como estaba. \returns si los ha guardado
bool GuardarCertificador(const std::filesystem::path& fichero, const DatosGenerales& generales,
                         Mensajes& mensajes);

}  // namespace novex
