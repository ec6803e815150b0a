#include "shell/gui/RejillaTextos.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "shell/gui/Filas.h"

namespace novex::gui {
namespace {

constexpr int kFilasALaVista = 4;

// Edita una celda eligiendo de una lista.
class EditorOpciones : public QStyledItemDelegate {
 public:
  EditorOpciones(QStringList opciones, QObject* padre)
      : QStyledItemDelegate(padre), opciones_(std::move(opciones)) {}

  QWidget* createEditor(QWidget* padre, const QStyleOptionViewItem&,
                        const QModelIndex&) const override {
    auto* lista = new QComboBox(padre);
    lista->addItems(opciones_);
    auto* yo = const_cast<EditorOpciones*>(this);
    connect(lista, &QComboBox::activated, yo, [yo, lista] {
      emit yo->commitData(lista);
      emit yo->closeEditor(lista);
    });
    return lista;
  }
  void setEditorData(QWidget* editor, const QModelIndex& celda) const override {
    auto* lista = qobject_cast<QComboBox*>(editor);
    lista->setCurrentIndex(lista->findText(celda.data(Qt::EditRole).toString()));
  }
  void setModelData(QWidget* editor, QAbstractItemModel* modelo,
                    const QModelIndex& celda) const override {
    modelo->setData(celda, qobject_cast<QComboBox*>(editor)->currentText(), Qt::EditRole);
  }

 private:
  QStringList opciones_;
};

}  // namespace

RejillaTextos::RejillaTextos(int columnas, const QString& anadir, const QString& vacia,
                             QWidget* padre)
    : QWidget(padre), tabla_(new QTableWidget(0, columnas, this)) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(0, 0, 0, 0);
  auto* nota = NuevaNota(this);
  nota->setText(vacia);
  vacia_ = nota;
  columna->addWidget(vacia_);
  columna->addWidget(tabla_);
  tabla_->verticalHeader()->hide();
  tabla_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  tabla_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter |
                                                  static_cast<Qt::Alignment>(Qt::TextWordWrap));
  tabla_->setEditTriggers(QAbstractItemView::AllEditTriggers);
  tabla_->setTabKeyNavigation(true);
  tabla_->installEventFilter(this);
  auto* botones = new QHBoxLayout;
  auto* mas = new QPushButton(anadir, this);
  mas->setObjectName("AnadirFila");
  quitar_ = new QPushButton(tr("Quitar"), this);
  quitar_->setObjectName("QuitarFila");
  quitar_->setToolTip(tr("Quita la fila de la celda elegida"));
  botones->addWidget(mas);
  botones->addWidget(quitar_);
  botones->addStretch(1);
  columna->addLayout(botones);
  connect(mas, &QPushButton::clicked, this, &RejillaTextos::Anadir);
  connect(quitar_, &QPushButton::clicked, this, &RejillaTextos::Quitar);
  connect(tabla_, &QTableWidget::currentCellChanged, this,
          [this](int fila) { quitar_->setEnabled(fila >= 0); });
  connect(tabla_, &QTableWidget::cellChanged, this, [this] { emit Cambiada(Leer()); });
}

void RejillaTextos::PonerTitulos(const QStringList& titulos) {
  tabla_->setHorizontalHeaderLabels(titulos);
  constexpr int kLargo = 34;
  int lineas = 1;
  for (const QString& titulo : titulos)
    lineas =
        std::max(lineas, titulo.size() > kLargo ? 3 : static_cast<int>(titulo.count('\n')) + 1);
  tabla_->horizontalHeader()->setFixedHeight(lineas * fontMetrics().lineSpacing() + 8);
}

void RejillaTextos::PonerOpciones(int columna, const QStringList& opciones) {
  tabla_->setItemDelegateForColumn(columna, new EditorOpciones(opciones, this));
}

QTableWidgetItem* RejillaTextos::Celda(int fila, int columna) {
  QTableWidgetItem* celda = tabla_->item(fila, columna);
  if (celda == nullptr) {
    celda = new QTableWidgetItem;
    tabla_->setItem(fila, columna, celda);
  }
  return celda;
}

void RejillaTextos::PonerFilas(const Filas& filas) {
  const QSignalBlocker callada(tabla_);
  const int cuantas = static_cast<int>(filas.size());
  tabla_->setRowCount(cuantas);
  for (int f = 0; f < cuantas; ++f)
    for (int c = 0; c < tabla_->columnCount(); ++c)
      Celda(f, c)->setText(filas[static_cast<std::size_t>(f)].value(c));
  vacia_->setVisible(filas.empty());
  quitar_->setEnabled(tabla_->currentRow() >= 0);
  tabla_->setVisible(!filas.empty());
  const int vista = std::min(cuantas, kFilasALaVista);
  tabla_->setFixedHeight(tabla_->horizontalHeader()->height() +
                         vista * tabla_->verticalHeader()->defaultSectionSize() +
                         2 * tabla_->frameWidth());
}

void RejillaTextos::Senalar(int fila, int columna, bool correcta, const QString& ayuda) {
  const QSignalBlocker callada(tabla_);
  QTableWidgetItem* celda = Celda(fila, columna);
  celda->setIcon(style()->standardIcon(correcta ? QStyle::SP_DialogApplyButton
                                                : QStyle::SP_MessageBoxWarning));
  celda->setToolTip(ayuda);
}

RejillaTextos::Filas RejillaTextos::Leer() const {
  Filas filas;
  for (int f = 0; f < tabla_->rowCount(); ++f) {
    QStringList fila;
    for (int c = 0; c < tabla_->columnCount(); ++c) {
      const QTableWidgetItem* celda = tabla_->item(f, c);
      fila << (celda == nullptr ? QString() : celda->text().trimmed());
    }
    filas.push_back(fila);
  }
  return filas;
}

void RejillaTextos::Anadir() {
  Filas filas = Leer();
  filas.emplace_back();
  for (int c = 0; c < tabla_->columnCount(); ++c) filas.back() << QString();
  emit Cambiada(filas);
  const int ultima = tabla_->rowCount() - 1;
  if (ultima < 0) return;
  tabla_->setCurrentCell(ultima, 0);
  tabla_->setFocus();
}

void RejillaTextos::Quitar() {
  Filas filas = Leer();
  const int fila = tabla_->currentRow();
  if (fila < 0 || fila >= static_cast<int>(filas.size())) return;
  filas.erase(filas.begin() + fila);
  emit Cambiada(filas);
}

void RejillaTextos::Copiar() const {
  QStringList lineas;
  for (const QTableWidgetSelectionRange& r : tabla_->selectedRanges())
    for (int f = r.topRow(); f <= r.bottomRow(); ++f) {
      QStringList celdas;
      for (int c = r.leftColumn(); c <= r.rightColumn(); ++c)
        celdas << (tabla_->item(f, c) == nullptr ? QString() : tabla_->item(f, c)->text());
      lineas << celdas.join('\t');
    }
  QApplication::clipboard()->setText(lineas.join('\n'));
}

void RejillaTextos::Pegar() {
  Filas filas = Leer();
  QString texto = QApplication::clipboard()->text();
  if (texto.endsWith('\n')) texto.chop(1);
  auto fila = static_cast<std::size_t>(std::max(0, tabla_->currentRow()));
  for (const QString& linea : texto.split('\n')) {
    while (fila >= filas.size()) {
      filas.emplace_back();
      for (int c = 0; c < tabla_->columnCount(); ++c) filas.back() << QString();
    }
    int columna = std::max(0, tabla_->currentColumn());
    for (const QString& celda : linea.split('\t'))
      if (columna < tabla_->columnCount()) filas[fila][columna++] = celda.trimmed();
    ++fila;
  }
  emit Cambiada(filas);
}

bool RejillaTextos::eventFilter(QObject* quien, QEvent* evento) {
  if (quien == tabla_ && evento->type() == QEvent::KeyPress) {
    const auto* tecla = static_cast<QKeyEvent*>(evento);
    if (tecla->matches(QKeySequence::Copy)) return Copiar(), true;
    if (tecla->matches(QKeySequence::Paste)) return Pegar(), true;
  }
  return QWidget::eventFilter(quien, evento);
}

}  // namespace novex::gui
