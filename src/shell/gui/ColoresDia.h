#pragma once

#include <QColor>
#include <QPalette>

namespace novex::gui {

/// Color de un código del calendario, de 0 a 9; se distingue sobre fondo claro y sobre oscuro. El
/// 0, sin uso, es un gris del fondo.
QColor ColorDia(int codigo, const QPalette& paleta);
/// Color del texto que se lee sobre él.
QColor TextoSobreDia(int codigo, const QPalette& paleta);

}  // namespace novex::gui
