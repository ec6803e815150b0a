#pragma once

#include <filesystem>

#include "base/Mensajes.h"
#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Las plantillas de un documento, en la carpeta de datos.
struct PlantillasDocumento {
  std::filesystem::path documento, mejora;
};
PlantillasDocumento PlantillasDe(const std::filesystem::path& datos, TipoDocumento tipo,
                                 bool residencial);

/// Nombre del documento de un proyecto: el suyo con ".xml" o ".txt" cambiado a ".html"; el de la
/// verificación acaba en "_HE.html". \param carpeta donde va; vacía, junto al proyecto
std::filesystem::path NombreDocumento(const std::filesystem::path& proyecto, TipoDocumento tipo,
                                      const std::filesystem::path& carpeta);

/// La hoja de estilo de los documentos; vacía si no está.
std::string LeerHojaEstilo(const std::filesystem::path& datos);

/// Rellena las plantillas con el modelo y escribe el documento, entero o nada.
/// \returns false, con su aviso, si una plantilla no se abre o la salida no se puede escribir
bool EscribirDocumento(const PlantillasDocumento& plantillas, const std::filesystem::path& salida,
                       const NOVEX_TO_MODELOCERTIFICADO& modelo, Mensajes& mensajes);

}  // namespace novex
