#include "shell/gui/PaginaMuros.h"

namespace novex::gui {

PaginaMuros::PaginaMuros(ContextoGui& contexto, QWidget* padre)
    : PaginaEnvolvente(contexto, PaginaOpacos::Muros, padre) {}

}  // namespace novex::gui
