#include "shell/gui/TablaEnWidget.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

QTableWidget* CrearTablaDeFilas(const QStringList& cabeceras, QWidget* padre) {
  auto* tabla = new QTableWidget(0, static_cast<int>(cabeceras.size()), padre);
  tabla->setHorizontalHeaderLabels(cabeceras);
  tabla->verticalHeader()->hide();
  tabla->verticalHeader()->setDefaultSectionSize(tabla->fontMetrics().height() + 8);
  tabla->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabla->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabla->setSelectionMode(QAbstractItemView::SingleSelection);
  tabla->setShowGrid(false);
  tabla->setAlternatingRowColors(true);
  tabla->setTabKeyNavigation(false);
  for (int c = 0; c < tabla->columnCount(); ++c)
    tabla->horizontalHeader()->setSectionResizeMode(
        c, c == 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
  return tabla;
}

void PonerTabla(QTableWidget* widget, const Tabla& tabla) {
  const QSignalBlocker callado(widget);
  widget->setRowCount(static_cast<int>(tabla.filas.size()));
  for (int f = 0; f < widget->rowCount(); ++f) {
    const auto& fila = tabla.filas[static_cast<std::size_t>(f)];
    for (int c = 0; c < widget->columnCount(); ++c) {
      const Celda celda =
          static_cast<std::size_t>(c) < fila.size() ? fila[static_cast<std::size_t>(c)] : Celda();
      auto* casilla = new QTableWidgetItem(Q(celda.texto));
      casilla->setToolTip(Q(celda.texto));
      if (celda.numero) casilla->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      widget->setItem(f, c, casilla);
    }
  }
}

Tabla CapasNumeradas(const ResumenCerramiento& resumen) {
  Tabla tabla = resumen.capas;
  for (std::size_t i = 0; i < tabla.filas.size(); ++i) {
    std::string& texto = tabla.filas[i][0].texto;
    texto = std::to_string(i + 1) + ". " + texto;
  }
  return tabla;
}

}  // namespace novex::gui
