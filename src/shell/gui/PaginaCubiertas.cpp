#include "shell/gui/PaginaCubiertas.h"

namespace novex::gui {

PaginaCubiertas::PaginaCubiertas(ContextoGui& contexto, QWidget* padre)
    : PaginaEnvolvente(contexto, PaginaOpacos::Cubiertas, padre) {}

}  // namespace novex::gui
