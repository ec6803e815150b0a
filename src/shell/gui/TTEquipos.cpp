#include "shell/gui/TTEquipos.h"

#include <QFormLayout>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

TTEquipos::TTEquipos(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {}

}  // namespace novex::gui
