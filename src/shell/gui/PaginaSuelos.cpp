#include "shell/gui/PaginaSuelos.h"

namespace novex::gui {

PaginaSuelos::PaginaSuelos(ContextoGui& contexto, QWidget* padre)
    : PaginaEnvolvente(contexto, PaginaOpacos::Suelos, padre) {}

}  // namespace novex::gui
