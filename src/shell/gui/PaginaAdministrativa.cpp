#include "shell/gui/PaginaAdministrativa.h"

#include <QFormLayout>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

PaginaAdministrativa::PaginaAdministrativa(ContextoGui& contexto, QWidget* padre)
    : Pagina(contexto, padre) {}

}  // namespace novex::gui
