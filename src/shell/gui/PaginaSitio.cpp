#include "shell/gui/PaginaSitio.h"

#include <QFormLayout>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

PaginaSitio::PaginaSitio(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {}

}  // namespace novex::gui
