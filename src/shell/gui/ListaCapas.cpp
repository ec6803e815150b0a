#include "shell/gui/ListaCapas.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>

#include "shell/gui/TablaEnWidget.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kColumnaEspesor = 1;

}  // namespace

ListaCapas::ListaCapas(bool vertical, QWidget* padre) : QTreeWidget(padre) {
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAlternatingRowColors(true);
  setEditTriggers(NoEditTriggers);
  setDragDropMode(InternalMove);
  setStyleSheet("QTreeWidget::item { padding: 3px 0; }");
  setToolTip(
      (vertical ? tr("De fuera adentro.") : tr("De arriba abajo.")) + " " +
      tr("Se arrastran para ordenarlas; con dos pulsaciones en el espesor se cambia.\nEspesor (m), "
         "conductividad (W/mK), resistencia (m²K/W), espesor de vapor y peso"));
  connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* capa, int columna) {
    const auto cual = static_cast<std::size_t>(indexOfTopLevelItem(capa));
    if (columna != kColumnaEspesor || cual >= editable_.size() || !editable_[cual]) return;
    llenando_ = true;
    capa->setFlags(capa->flags() | Qt::ItemIsEditable);
    llenando_ = false;
    editItem(capa, kColumnaEspesor);
  });
  connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* capa, int columna) {
    if (llenando_ || columna != kColumnaEspesor) return;
    emit EspesorTecleado(indexOfTopLevelItem(capa), capa->text(columna));
  });
}

void ListaCapas::Poner(const std::vector<Capa>& capas, int elegida) {
  llenando_ = true;
  clear();
  editable_.clear();
  const Tabla tabla = CapasNumeradas(ResumirCerramiento(capas));
  const QStringList cabeceras = {tr("Capa"), "m", "k", "R", tr("Vapor"), "kg/m²"};
  setHeaderLabels(cabeceras);
  for (std::size_t f = 0; f < tabla.filas.size(); ++f) {
    auto* capa = new QTreeWidgetItem(this);
    for (int c = 0; c < cabeceras.size(); ++c) {
      const Celda& celda = tabla.filas[f][static_cast<std::size_t>(c)];
      capa->setText(c, Q(celda.texto));
      if (c > 0) capa->setTextAlignment(c, Qt::AlignRight | Qt::AlignVCenter);
    }
    capa->setToolTip(0, Q(capas[f].especificacion));
    capa->setFlags((capa->flags() | Qt::ItemIsDragEnabled) & ~Qt::ItemIsDropEnabled);
    editable_.push_back(EspesorEditable(capas[f]));
  }
  for (int c = 0; c < cabeceras.size(); ++c)
    header()->setSectionResizeMode(c,
                                   c == 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
  header()->setStretchLastSection(false);
  if (elegida >= 0 && elegida < topLevelItemCount()) setCurrentItem(topLevelItem(elegida));
  llenando_ = false;
}

int ListaCapas::Elegida() const {
  return currentItem() == nullptr ? -1 : indexOfTopLevelItem(currentItem());
}

int ListaCapas::LugarEn(const QPoint& punto) const {
  const QModelIndex sobre = indexAt(punto);
  if (!sobre.isValid()) return topLevelItemCount();
  return sobre.row() + (punto.y() > visualRect(sobre).center().y() ? 1 : 0);
}

void ListaCapas::dropEvent(QDropEvent* evento) {
  const int desde = Elegida();
  const int hasta = LugarEn(evento->position().toPoint());
  // La rejilla se vuelve a llenar: Qt no ha de mover ni borrar nada.
  evento->setDropAction(Qt::IgnoreAction);
  evento->accept();
  if (desde >= 0) emit Movida(desde, hasta);
}

void ListaCapas::keyPressEvent(QKeyEvent* evento) {
  const int cual = Elegida();
  if (evento->key() == Qt::Key_Delete && cual >= 0) {
    emit PideQuitar();
  } else if ((evento->modifiers() & Qt::AltModifier) != 0 && evento->key() == Qt::Key_Up) {
    emit Movida(cual, cual - 1);
  } else if ((evento->modifiers() & Qt::AltModifier) != 0 && evento->key() == Qt::Key_Down) {
    emit Movida(cual, cual + 2);
  } else {
    QTreeWidget::keyPressEvent(evento);
  }
}

}  // namespace novex::gui
