#pragma once

#include <QString>
#include <string_view>

#include "entry/CamposSistema.h"
#include "shell/gui/Enlaces.h"

namespace novex::gui {

/// Cómo se lee un campo de un sistema: su rótulo, su unidad si el catálogo de campos no la da y su
/// ayuda. \param etiqueta la del fichero
OpcionesCampo OpcionesDeSistema(std::string_view etiqueta);

/// El título de un grupo de campos.
QString TituloDeGrupo(GrupoCampos grupo);

/// Qué circuito mueve una bomba. \param circuito "SBZ", "GEN1"...
QString NombreDeCircuito(std::string_view circuito);

}  // namespace novex::gui
