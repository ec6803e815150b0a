#include "shell/gui/RejillaHorarios.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "shell/gui/ColoresDia.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kHoras = 24;
constexpr int kAnchoMinimo = 30;
constexpr int kLadoMuestra = 10;

QIcon Muestra(const QColor& color) {
  QPixmap muestra(kLadoMuestra, kLadoMuestra);
  muestra.fill(color);
  return muestra;
}

CasillaHoraria CasillaDe(int fila, int columna) {
  return {static_cast<std::size_t>(fila), static_cast<std::size_t>(columna) + 1};
}

}  // namespace

RejillaHorarios::RejillaHorarios(QWidget* padre)
    : QTableWidget(static_cast<int>(kClasesDia), kHoras, padre) {
  for (int h = 0; h < kHoras; ++h) {
    auto* cabecera = new QTableWidgetItem(QString::number(h + 1));
    cabecera->setToolTip(tr("De %1 a %2 h").arg(h).arg(h + 1));
    setHorizontalHeaderItem(h, cabecera);
  }
  for (int c = 0; c < rowCount(); ++c) {
    setVerticalHeaderItem(c, new QTableWidgetItem);
    for (int h = 0; h < kHoras; ++h) {
      auto* celda = new QTableWidgetItem;
      celda->setTextAlignment(Qt::AlignCenter);
      setItem(c, h, celda);
    }
  }
  horizontalHeader()->setMinimumSectionSize(kAnchoMinimo);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  horizontalHeader()->setHighlightSections(false);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 7);
  verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFixedHeight(verticalHeader()->defaultSectionSize() * rowCount() +
                 horizontalHeader()->sizeHint().height() + 2 * frameWidth());
  setToolTip(
      tr("Lo que se teclea va a todas las horas elegidas. Ctrl+C y Ctrl+V copian y pegan con "
         "una hoja de cálculo; Supr pone 0. También con el botón derecho."));
  setContextMenuPolicy(Qt::ActionsContextMenu);
  const auto orden = [this](const QString& texto, auto hacer) {
    auto* accion = new QAction(texto, this);
    connect(accion, &QAction::triggered, this, hacer);
    addAction(accion);
  };
  orden(tr("Copiar"), [this] { QApplication::clipboard()->setText(TextoElegido()); });
  orden(tr("Pegar"), [this] { Pegar(); });
  orden(tr("Poner 0"), [this] { emit Tecleado(Elegidas(), "0"); });
  connect(this, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* celda) {
    auto casillas = Elegidas();
    const CasillaHoraria cambiada = CasillaDe(celda->row(), celda->column());
    const bool dentro = std::any_of(casillas.begin(), casillas.end(), [&](const auto& c) {
      return c.clase == cambiada.clase && c.hora == cambiada.hora;
    });
    if (!dentro) casillas = {cambiada};
    emit Tecleado(casillas, celda->text());
  });
}

void RejillaHorarios::Poner(const std::array<PerfilDiario, kClasesDia>& tablas,
                            const std::array<int, kCodigosDia>& dias) {
  const QSignalBlocker callada(this);
  for (std::size_t c = 0; c < kClasesDia; ++c) {
    const int fila = static_cast<int>(c);
    QTableWidgetItem* cabecera = verticalHeaderItem(fila);
    const int cuantos = dias[c + 1];
    cabecera->setText(Q(kNombresDia[c + 1]) +
                      (cuantos > 0 ? tr(" · %1 d").arg(cuantos) : QString()));
    cabecera->setToolTip(cuantos > 0 ? tr("%1 días del año").arg(cuantos)
                                     : tr("Ningún día del año es de esta clase"));
    cabecera->setIcon(Muestra(ColorDia(fila + 1)));
    for (int h = 0; h < kHoras; ++h) {
      const QString texto = Q(TextoHora(tablas[c][static_cast<std::size_t>(h) + 1]));
      QTableWidgetItem* celda = item(fila, h);
      if (celda->text() != texto) celda->setText(texto);
      // Lo que no se usa en el año y los ceros se ven menos.
      const bool suave = cuantos == 0 || texto == "0";
      celda->setForeground(palette().color(suave ? QPalette::PlaceholderText : QPalette::Text));
    }
  }
}

std::vector<CasillaHoraria> RejillaHorarios::Elegidas() const {
  std::vector<CasillaHoraria> casillas;
  for (const QModelIndex& i : selectedIndexes()) casillas.push_back(CasillaDe(i.row(), i.column()));
  return casillas;
}

QString RejillaHorarios::TextoElegido() const {
  const QModelIndexList elegidas = selectedIndexes();
  if (elegidas.isEmpty()) return {};
  int arriba = rowCount(), abajo = -1, izquierda = kHoras, derecha = -1;
  for (const QModelIndex& i : elegidas) {
    arriba = std::min(arriba, i.row());
    abajo = std::max(abajo, i.row());
    izquierda = std::min(izquierda, i.column());
    derecha = std::max(derecha, i.column());
  }
  QStringList filas;
  for (int f = arriba; f <= abajo; ++f) {
    QStringList celdas;
    for (int c = izquierda; c <= derecha; ++c)
      celdas << (item(f, c)->isSelected() ? item(f, c)->text() : QString());
    filas << celdas.join('\t');
  }
  return filas.join('\n') + '\n';
}

void RejillaHorarios::Pegar() {
  const QString texto = QApplication::clipboard()->text();
  const auto casillas = Elegidas();
  if (texto.isEmpty() || casillas.empty()) return;
  // Un solo valor llena todo lo elegido.
  if (!texto.trimmed().contains('\t') && !texto.trimmed().contains('\n'))
    return emit Tecleado(casillas, texto);
  CasillaHoraria esquina = casillas.front();
  for (const CasillaHoraria& c : casillas) {
    esquina.clase = std::min(esquina.clase, c.clase);
    esquina.hora = std::min(esquina.hora, c.hora);
  }
  emit Pegado(esquina, texto);
}

void RejillaHorarios::keyPressEvent(QKeyEvent* evento) {
  if (evento->matches(QKeySequence::Copy))
    QApplication::clipboard()->setText(TextoElegido());
  else if (evento->matches(QKeySequence::Paste))
    Pegar();
  else if (evento->key() == Qt::Key_Delete || evento->key() == Qt::Key_Backspace)
    emit Tecleado(Elegidas(), "0");
  else
    QTableWidget::keyPressEvent(evento);
}

}  // namespace novex::gui
