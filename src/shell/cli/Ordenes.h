#pragma once

#include <CLI/CLI.hpp>

#include "shell/cli/Consola.h"

namespace novex::cli {

// Cada función `Anadir` añade una orden al programa con sus opciones; al elegirla el usuario, deja
// en `orden` lo que hay que hacer.

/// Una orden nueva de un programa o de otra orden.
CLI::App* NuevaOrden(CLI::App& padre, const std::string& nombre, const std::string& descripcion);

/// `calcular`: calcula los casos de un proyecto y da sus resultados.
void AnadirCalcular(CLI::App& programa, Orden& orden);
/// `comprobar`: dice qué falta a un proyecto para poder calcularlo.
void AnadirComprobar(CLI::App& programa, Orden& orden);
/// `info`: dice lo que contiene un proyecto.
void AnadirInfo(CLI::App& programa, Orden& orden);
/// `clima`: genera, instala y resume los ficheros de clima.
void AnadirClima(CLI::App& programa, Orden& orden);

}  // namespace novex::cli
