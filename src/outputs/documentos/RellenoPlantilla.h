#pragma once

#include <string>
#include <string_view>

#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Rellena una plantilla HTML con un modelo. Una marca `_NOMBRE_` que no está en la primera
/// posición de su línea se cambia por el valor de la variable; un valor que trae otra marca se
/// sustituye a su vez, con un límite por línea. Una línea con una marca de lista ("<!--TAG:...") da
/// las filas de la lista en el lugar del bloque que acaba en el primer "-->". \param plantilla
/// líneas con LF o CRLF \param plantillaMejoras la de una mejora, que se rellena por cada una solo
/// con las variables de esa mejora \returns el documento, con saltos LF
std::string RellenarPlantilla(std::string_view plantilla, const NOVEX_TO_MODELOCERTIFICADO& modelo,
                              std::string_view plantillaMejoras);

}  // namespace novex
