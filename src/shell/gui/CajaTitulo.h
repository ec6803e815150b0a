#pragma once

#include <QLabel>
#include <QVBoxLayout>

namespace novex::gui {

/// Un título de sección con lo suyo debajo, sin marco.
inline QWidget* CajaTitulo(QWidget* padre, const QString& titulo, QLayout* contenido) {
  auto* caja = new QWidget(padre);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 0, 4);
  columna->setSpacing(4);
  auto* rotulo = new QLabel(titulo, caja);
  rotulo->setProperty("papel", "seccion");
  columna->addWidget(rotulo);
  columna->addLayout(contenido);
  return caja;
}

}  // namespace novex::gui
