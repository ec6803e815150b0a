#pragma once

#include <QApplication>

namespace novex::gui {

/// El estilo del programa: sobrio, con los colores claros u oscuros del escritorio.
void PonerEstilo(QApplication& aplicacion);

}  // namespace novex::gui
