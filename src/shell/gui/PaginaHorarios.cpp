#include "shell/gui/PaginaHorarios.h"

#include <QFormLayout>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

PaginaHorarios::PaginaHorarios(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {}

}  // namespace novex::gui
