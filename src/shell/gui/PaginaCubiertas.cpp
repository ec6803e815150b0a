#include "shell/gui/PaginaCubiertas.h"

#include <QFormLayout>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

PaginaCubiertas::PaginaCubiertas(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {}

}  // namespace novex::gui
