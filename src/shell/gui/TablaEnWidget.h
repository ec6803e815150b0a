#pragma once

#include <QTableWidget>

#include "base/Tabla.h"
#include "reference/Cerramiento.h"

namespace novex::gui {

/// Una tabla que solo se mira, por filas enteras.
QTableWidget* CrearTablaDeFilas(const QStringList& cabeceras, QWidget* padre);

/// Pone una tabla del motor en un widget, con las cifras a la derecha. La primera columna se lleva
/// el ancho que sobra.
void PonerTabla(QTableWidget* widget, const Tabla& tabla);

/// La tabla de capas de un resumen con su número delante, como en los dibujos.
Tabla CapasNumeradas(const ResumenCerramiento& resumen);

}  // namespace novex::gui
