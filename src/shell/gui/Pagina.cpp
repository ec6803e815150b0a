#include "shell/gui/Pagina.h"

#include "shell/gui/TextoQt.h"

namespace novex::gui {

void Pagina::Senalar(const MensajePrevio& motivo) {
  if (motivo.campo.empty()) return;
  if (auto* editor = findChild<QWidget*>(Q(motivo.campo))) editor->setFocus(Qt::OtherFocusReason);
}

}  // namespace novex::gui
