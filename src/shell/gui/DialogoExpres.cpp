#include "shell/gui/DialogoExpres.h"

namespace novex::gui {

DialogoExpres::DialogoExpres(ContextoGui& contexto, QWidget* padre) : QDialog(padre) {
  static_cast<void>(contexto);
}

}  // namespace novex::gui
