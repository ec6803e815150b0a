#pragma once

#include "calculation/Entorno.h"
#include "files/ProyectoFichero.h"
#include "model/GestorEdifActivo.h"

namespace novex {

/// Lo que sigue a la lectura de un proyecto: los casos que no dicen su uso toman los horarios
/// residenciales por defecto, los de un fichero de texto su sitio, los puentes de su zona y los
/// horarios de su uso, y las longitudes de los puentes térmicos se estiman donde es ese su modo.
/// \param abierto lo que ha dado la apertura; a su informe se añade lo que aquí se supone
/// \throws ErrorFichero si hace falta un fichero de la carpeta de programa y no está
void CompletarProyecto(GestorEdifActivo& gestor, ProyectoAbierto& abierto,
                       FicherosPrograma& ficheros, Mensajes& mensajes);

}  // namespace novex
