#pragma once

#include <string>

#include "model/GestorEdifActivo.h"
#include "shell/cli/Consola.h"

namespace novex::cli {

/// Abre un proyecto para leerlo y lo completa con lo que el fichero no dice.
/// \param programa carpeta de programa pedida, o vacía. \throws ErrorUso si el fichero no es de
/// proyecto, ErrorOrden si no se ha podido abrir (el aviso ya se ha dado), ErrorFichero si falta o
/// está mal formado
void AbrirProyectoConsola(GestorEdifActivo& gestor, const std::string& ruta, Mensajes& mensajes,
                          const std::string& programa = {});

}  // namespace novex::cli
