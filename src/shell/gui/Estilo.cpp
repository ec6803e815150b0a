#include "shell/gui/Estilo.h"

#include <QPalette>
#include <QStyleFactory>

namespace novex::gui {

void PonerEstilo(QApplication& aplicacion) {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  const bool oscuro = QApplication::palette().color(QPalette::Window).lightness() < 128;
  const QString suave = oscuro ? "#9aa4ad" : "#66727c";
  const QString aviso = oscuro ? "#ff9c8a" : "#b3261e";
  const QString distinto = oscuro ? "#7fb8e6" : "#1f5f8b";
  const QString cumple = oscuro ? "#7fce9a" : "#1f7a3d";
  const QString linea = oscuro ? "#565c62" : "#c4c9ce";
  aplicacion.setStyleSheet(QString(R"(
    QLabel[papel="titulo"] { font-size: 15pt; font-weight: 600; }
    QLabel[papel="seccion"] { font-weight: 600; padding-top: 8px; }
    QLabel[papel="unidad"], QLabel[papel="nota"] { color: %1; }
    QLabel[papel="aviso"] { color: %2; }
    QLabel[papel="bloque"] { font-size: 12pt; font-weight: 600; }
    QLabel[papel="cumple"] { color: %5; font-weight: 600; }
    QLabel[papel="nocumple"] { color: %2; font-weight: 600; }
    QLabel[papel="noaplica"] { color: %1; font-weight: 600; }
    QLineEdit[distinto="true"], QComboBox[distinto="true"] { color: %3; }
    QLineEdit { padding: 3px 5px; }
    QGroupBox { font-weight: 600; border: none; border-top: 1px solid %4; margin-top: 1.7em;
                padding-top: 2px; }
    QGroupBox::title { subcontrol-origin: margin; left: 0px; }
    QGroupBox QLabel, QGroupBox QComboBox, QGroupBox QCheckBox, QGroupBox QLineEdit,
    QGroupBox QRadioButton, QGroupBox QPushButton { font-weight: normal; }
    QListWidget { border: none; background: transparent; }
  )")
                               .arg(suave, aviso, distinto, linea, cumple));
}

}  // namespace novex::gui
