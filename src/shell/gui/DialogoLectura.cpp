#include "shell/gui/DialogoLectura.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

DialogoLectura::DialogoLectura(const InformeLectura& informe, const QString& fichero,
                               QWidget* padre)
    : QDialog(padre) {
  setWindowTitle(tr("Proyecto de una versión anterior"));
  setAttribute(Qt::WA_DeleteOnClose);
  resize(720, 520);
  auto* columna = new QVBoxLayout(this);
  auto* texto =
      new QLabel(tr("\"%1\" es de una versión anterior. Revise lo que se ha cambiado y lo "
                    "que el fichero no decía; al guardar se escribe como los de hoy.")
                     .arg(fichero),
                 this);
  texto->setWordWrap(true);
  columna->addWidget(texto);
  lista_ = new QTreeWidget(this);
  lista_->setObjectName("lectura");
  lista_->setHeaderHidden(true);
  lista_->setWordWrap(true);
  lista_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  columna->addWidget(lista_, 1);
  Anadir(tr("Cambiado"), informe.cambiados, true);
  Anadir(tr("No estaba en el fichero: toma el valor de partida"), informe.porDefecto, true);
  Anadir(tr("No se ha leído"), informe.saltados, true);
  Anadir(tr("Leído"), informe.leidos, false);
  auto* fila = new QHBoxLayout;
  auto* copiar = new QPushButton(tr("Copiar"), this);
  auto* cerrar = new QPushButton(tr("Cerrar"), this);
  fila->addStretch(1);
  fila->addWidget(copiar);
  fila->addWidget(cerrar);
  columna->addLayout(fila);
  connect(copiar, &QPushButton::clicked, this, &DialogoLectura::Copiar);
  connect(cerrar, &QPushButton::clicked, this, &QDialog::close);
}

void DialogoLectura::Anadir(const QString& titulo, const InformeLectura::Lineas& lineas,
                            bool abierta) {
  if (lineas.empty()) return;
  auto* grupo = new QTreeWidgetItem(lista_, {QString("%1 (%2)").arg(titulo).arg(lineas.size())});
  QFont negrita = grupo->font(0);
  negrita.setBold(true);
  grupo->setFont(0, negrita);
  for (const std::string& linea : lineas) new QTreeWidgetItem(grupo, {Q(linea)});
  grupo->setExpanded(abierta);
}

void DialogoLectura::Copiar() {
  QStringList lineas;
  for (int i = 0; i < lista_->topLevelItemCount(); ++i) {
    const QTreeWidgetItem* grupo = lista_->topLevelItem(i);
    lineas << grupo->text(0);
    for (int j = 0; j < grupo->childCount(); ++j) lineas << "  " + grupo->child(j)->text(0);
  }
  QApplication::clipboard()->setText(lineas.join('\n'));
}

}  // namespace novex::gui
