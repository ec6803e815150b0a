#pragma once

#include <span>
#include <string_view>

#include "calculation/Entorno.h"
#include "model/GestorEdifActivo.h"

namespace novex {

/// Lo que sigue a la lectura de un proyecto: los casos que no dicen su uso toman los horarios
/// residenciales por defecto, y las longitudes de los puentes térmicos se estiman donde es ese su
/// modo. \param sinUso casos sin uso, como los da la apertura \throws ErrorFichero si hace falta
/// `PerfilesUso.xml` y no está
void CompletarProyecto(GestorEdifActivo& gestor, std::span<const std::string_view> sinUso,
                       FicherosPrograma& ficheros, Mensajes& mensajes);

}  // namespace novex
