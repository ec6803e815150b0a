#include "shell/gui/PaginaPuentes.h"

#include <QFormLayout>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

PaginaPuentes::PaginaPuentes(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {}

}  // namespace novex::gui
