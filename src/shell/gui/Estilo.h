#pragma once

#include <QApplication>
#include <QColor>
#include <QPalette>

namespace novex::gui {

/// El estilo del programa: sobrio, con los colores claros u oscuros del escritorio.
void PonerEstilo(QApplication& aplicacion);

/// Color del texto que avisa de algo o dice lo que no se cumple, sobre una paleta.
QColor ColorAviso(const QPalette& paleta);

}  // namespace novex::gui
