#pragma once

#include <QColor>
#include <QPalette>

namespace novex::gui {

/// Color de un código del calendario, de 0 a 9; se distingue sobre fondo claro y sobre oscuro. El
/// 0, sin uso, es gris.
QColor ColorDia(int codigo);
/// Color del texto que se lee sobre él.
QColor TextoSobreDia(int codigo);
/// Color de los ejes y las rayas de un dibujo.
QColor ColorReja(const QPalette& paleta);

}  // namespace novex::gui
