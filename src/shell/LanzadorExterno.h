#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/EspacioTrabajo.h"
#include "base/Mensajes.h"

namespace novex {

/// Programas ajenos que el usuario puede tener en la carpeta de programa.
namespace programaExterno {
inline constexpr std::string_view kConvertidor = "novex2EPCv3";  ///< proyecto a `_certi.xml`
inline constexpr std::string_view kImpreso = "xml2cert";  ///< impreso del certificado registrado
inline constexpr std::string_view kInspeccion = "iEPB_Novex";  ///< inspección de la comunidad
}  // namespace programaExterno

/// ¿Está ese programa en la carpeta de programa?
bool HayExterno(const EspacioTrabajo& espacio, std::string_view nombre);

/// Arranca un programa de la carpeta de programa, que es también su carpeta de trabajo, y no lo
/// espera. Se busca con su nombre y con ".exe".
/// \returns false, con su aviso, si no está o no se puede arrancar
bool LanzarExterno(const EspacioTrabajo& espacio, std::string_view nombre,
                   const std::vector<std::string>& argumentos, Mensajes& mensajes);

/// Camino del fichero de la administración de un proyecto: `X_certi.xml` al lado de `X.xml`.
std::filesystem::path RutaFicheroAdministracion(const std::filesystem::path& proyecto);

/// Hace el fichero de la administración de un proyecto ya guardado: arranca el convertidor, da el
/// aviso en que el usuario espera a que acabe y arranca el que rellena el impreso. Los dos son
/// ajenos y no se espera a ninguno. Sin el convertidor no se sigue.
/// \returns false, con su aviso, si alguno no está o no se puede arrancar
bool LanzarFicheroAdministracion(const EspacioTrabajo& espacio,
                                 const std::filesystem::path& proyecto, Mensajes& mensajes);

}  // namespace novex
