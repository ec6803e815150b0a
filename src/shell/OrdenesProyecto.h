#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/Mensajes.h"
#include "calculation/Entorno.h"
#include "files/ProyectoFichero.h"
#include "model/GestorEdifActivo.h"

namespace novex {

/// Borra un caso. El único caso de un proyecto no se borra.
/// \returns false, con su aviso, si no existe o es el único
bool BorrarCaso(GestorEdifActivo& gestor, std::string_view nombre, Mensajes& mensajes);

/// Duplica un caso en la primera mejora libre, que queda activa.
/// \returns su nombre; vacío, con su aviso, si el caso no existe, si no cabe otra mejora o si el
/// caso no pasa las comprobaciones previas
std::string_view DuplicarCaso(GestorEdifActivo& gestor, std::string_view nombre,
                              Mensajes& mensajes);

/// Añade al proyecto los casos de otro fichero. Si el caso activo no pasa las comprobaciones
/// previas, avisa y abre el otro en lugar del proyecto.
/// \returns lo abierto, y en `sustituido` si ha ocupado el lugar del proyecto
/// \param codificacion recibe la del otro fichero
/// \throws ErrorFichero como `AbrirProyecto`
ProyectoAbierto AnadirProyecto(GestorEdifActivo& gestor, const std::filesystem::path& ruta,
                               FicherosPrograma& ficheros, Mensajes& mensajes, bool& sustituido,
                               ModoCodificacion& codificacion);

}  // namespace novex
