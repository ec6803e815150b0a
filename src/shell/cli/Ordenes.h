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

/// `expres`: construye y califica un edificio a partir de unas pocas cifras.
void AnadirExpres(CLI::App& programa, Orden& orden);
/// `nuevo`: crea un proyecto con los valores de partida.
void AnadirNuevo(CLI::App& programa, Orden& orden);
/// `convertir`: pasa a la disposición de hoy un proyecto de una versión anterior.
void AnadirConvertir(CLI::App& programa, Orden& orden);
/// `casos`: enseña, duplica, borra y añade casos.
void AnadirCasos(CLI::App& programa, Orden& orden);
/// `cambiar`: cambia campos de un proyecto.
void AnadirCambiar(CLI::App& programa, Orden& orden);
/// `imagen`: pone y extrae las imágenes de un proyecto.
void AnadirImagen(CLI::App& programa, Orden& orden);
/// `materiales`, `composiciones`, `municipios` y `catalogos`: buscan en los catálogos y los ponen
/// al día.
void AnadirCatalogos(CLI::App& programa, Orden& orden);

/// `mejoras`: mide las mejoras predefinidas de un caso.
void AnadirMejoras(CLI::App& programa, Orden& orden);
/// `exportar`: escribe tablas y series de un caso como texto separado.
void AnadirExportar(CLI::App& programa, Orden& orden);
/// `bateria`: calcula una lista de proyectos.
void AnadirBateria(CLI::App& programa, Orden& orden);
/// `verificar`: verifica el DB-HE en los casos de un proyecto.
void AnadirVerificar(CLI::App& programa, Orden& orden);
/// `certificado`: escribe el certificado o la verificación de un caso.
void AnadirCertificado(CLI::App& programa, Orden& orden);
/// `administracion`: escribe el informe de evaluación energética de un proyecto.
void AnadirAdministracion(CLI::App& programa, Orden& orden);

struct SitioPedido;
/// Añade a una orden las opciones del lugar del edificio.
void AnadirSitio(CLI::App& app, SitioPedido& sitio);

}  // namespace novex::cli
