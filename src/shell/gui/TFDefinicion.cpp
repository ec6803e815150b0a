#include "shell/gui/TFDefinicion.h"

#include <QFormLayout>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

TFDefinicion::TFDefinicion(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {}

}  // namespace novex::gui
