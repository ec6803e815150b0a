#pragma once

#include <filesystem>
#include <string>

#include "files/ProyectoFichero.h"
#include "shell/cli/Consola.h"

namespace novex::cli {

/// Abre un proyecto para leerlo y lo completa con lo que el fichero no dice.
/// \param programa carpeta de programa pedida, o vacía. \throws ErrorUso si el fichero no es de
/// proyecto, ErrorOrden si no se ha podido abrir (el aviso ya se ha dado), ErrorFichero si falta o
/// está mal formado \returns lo que ha dado la apertura
ProyectoAbierto AbrirProyectoConsola(GestorEdifActivo& gestor, const std::string& ruta,
                                     Mensajes& mensajes, const std::string& programa = {});

/// Comprueba que guardar un proyecto con un nombre no pisa otro que ya está.
/// \param sobrescribir el usuario lo permite \throws ErrorUso si lo pisaría
void NoPisar(const std::string& fichero, bool sobrescribir);

}  // namespace novex::cli
