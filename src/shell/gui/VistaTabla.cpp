#include "shell/gui/VistaTabla.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QVBoxLayout>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "entry/HojaDeCalculo.h"
#include "outputs/ExportacionTablas.h"
#include "outputs/TextoTabla.h"
#include "shell/gui/Estilo.h"
#include "shell/gui/EtiquetaEnergetica.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr std::size_t kColumnasAnchas = 10;  // con más, las cabeceras van en dos líneas
constexpr int kAnchoMaximo = 420;            // de una columna, en píxeles
constexpr std::size_t kFilasMedidas = 200;

// La letra de una casilla que la lleva sola, delante de su ahorro o tras la que cambia: "B",
// "B,12.50" o "D → B".
QString LetraDe(const QString& texto) {
  const qsizetype flecha = texto.indexOf(" → ");
  const QString final = flecha == 1 ? texto.sliced(flecha + 3) : texto;
  const bool letra = !final.isEmpty() && final[0] >= 'A' && final[0] <= 'G' &&
                     (final.size() == 1 || final[1] == ',');
  return letra ? final.left(1) : QString();
}

// Con muchas columnas una cabecera se parte en dos líneas por su última palabra.
QString Cabecera(const std::string& texto, bool partida) {
  QString cabecera = Q(texto);
  const qsizetype corte = cabecera.lastIndexOf(' ');
  if (partida && corte > 0) cabecera[corte] = '\n';
  return cabecera;
}

bool EsTotal(const std::vector<Celda>& fila) {
  if (fila.empty()) return false;
  // "Total" o "Demanda total"; no "Energía primaria total Cep,tot", que es un requisito.
  const QString rotulo = Q(fila.front().texto);
  return rotulo.startsWith("total", Qt::CaseInsensitive) ||
         rotulo.endsWith("total", Qt::CaseInsensitive);
}

// "No cumple" y los veredictos que empiezan así.
bool EsIncumplimiento(const QString& texto) {
  return texto.startsWith("No cumple", Qt::CaseInsensitive);
}

// Una raya está por la cifra que falta.
bool EsRaya(const std::string& texto) {
  return !texto.empty() && texto.find_first_not_of('-') == std::string::npos;
}

QTableWidgetItem* Casilla(const Celda& celda, bool total) {
  auto* casilla = new QTableWidgetItem(Q(celda.texto));
  QFont letra = casilla->font();
  if (celda.numero || EsRaya(celda.texto))
    casilla->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  const QString calificacion = LetraDe(casilla->text());
  if (!calificacion.isEmpty()) {
    casilla->setTextAlignment(Qt::AlignCenter);
    casilla->setBackground(ColorLetra(calificacion));
    casilla->setForeground(TextoSobreLetra(calificacion));
  }
  const bool incumple = EsIncumplimiento(casilla->text());
  if (incumple) casilla->setForeground(ColorAviso(QApplication::palette()));
  if (total || incumple || (!calificacion.isEmpty() && casilla->text() == calificacion)) {
    letra.setBold(true);
    casilla->setFont(letra);
  }
  return casilla;
}

void Guardar(QWidget* padre, const std::filesystem::path& ruta, const std::string& texto) {
  try {
    EscribirFichero(ruta, texto);
  } catch (const ErrorFichero& error) {
    QMessageBox::warning(padre, "AVISO", Q(error.what()));
  }
}

}  // namespace

VistaTabla::VistaTabla(QWidget* padre) : QWidget(padre) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(0, 0, 0, 0);
  columna->setSpacing(4);
  auto* fila = new QHBoxLayout;
  titulo_ = new QLabel(this);
  titulo_->setProperty("papel", "seccion");
  fila->addWidget(titulo_, 1);
  menu_ = new QToolButton(this);
  menu_->setText("⋯");
  menu_->setToolTip(tr("Copiar o exportar la tabla"));
  menu_->setAutoRaise(true);
  menu_->setPopupMode(QToolButton::InstantPopup);
  auto* ordenes = new QMenu(menu_);
  ordenes->addAction(tr("Copiar"), this, &VistaTabla::Copiar);
  ordenes->addAction(tr("Exportar…"), this, &VistaTabla::Exportar);
  menu_->setMenu(ordenes);
  fila->addWidget(menu_, 0, Qt::AlignBottom);
  columna->addLayout(fila);
  rejilla_ = new QTableWidget(this);
  rejilla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  rejilla_->verticalHeader()->hide();
  rejilla_->verticalHeader()->setDefaultSectionSize(rejilla_->fontMetrics().height() + 4);
  rejilla_->setAlternatingRowColors(true);
  rejilla_->setTabKeyNavigation(false);
  rejilla_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  rejilla_->setContextMenuPolicy(Qt::CustomContextMenu);
  rejilla_->installEventFilter(this);
  connect(rejilla_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& donde) { menu_->menu()->popup(rejilla_->mapToGlobal(donde)); });
  columna->addWidget(rejilla_);
  notas_ = new QLabel(this);
  notas_->setWordWrap(true);
  notas_->setProperty("papel", "nota");
  columna->addWidget(notas_);
}

void VistaTabla::Poner(const Tabla& tabla) {
  const bool mismas = tabla.cabeceras == tabla_.cabeceras && rejilla_->columnCount() > 0;
  tabla_ = tabla;
  titulo_->setText(Q(tabla.titulo));
  std::size_t columnas = tabla.cabeceras.size();
  for (const auto& fila : tabla.filas) columnas = std::max(columnas, fila.size());
  rejilla_->setUpdatesEnabled(false);
  rejilla_->setRowCount(static_cast<int>(tabla.filas.size()));
  rejilla_->setColumnCount(static_cast<int>(columnas));
  QStringList cabeceras;
  const bool muchas = columnas > kColumnasAnchas;
  for (std::size_t c = 0; c < tabla.cabeceras.size(); ++c)
    cabeceras << Cabecera(tabla.cabeceras[c], muchas && c > 0);
  rejilla_->setHorizontalHeaderLabels(cabeceras);
  rejilla_->horizontalHeader()->setVisible(!tabla.cabeceras.empty());
  for (std::size_t f = 0; f < tabla.filas.size(); ++f)
    for (std::size_t c = 0; c < columnas; ++c)
      rejilla_->setItem(static_cast<int>(f), static_cast<int>(c),
                        Casilla(c < tabla.filas[f].size() ? tabla.filas[f][c] : Celda(),
                                EsTotal(tabla.filas[f])));
  if (!mismas) {
    rejilla_->resizeColumnsToContents();
    for (int c = 0; c < rejilla_->columnCount(); ++c)
      if (rejilla_->columnWidth(c) > kAnchoMaximo) rejilla_->setColumnWidth(c, kAnchoMaximo);
  }
  // Medir miles de filas se nota, y las de una tabla larga son todas de una línea.
  if (tabla.filas.size() < kFilasMedidas) rejilla_->resizeRowsToContents();
  rejilla_->setUpdatesEnabled(true);
  QStringList notas;
  for (const std::string& nota : tabla.notas) notas << Q(nota);
  notas_->setText(notas.join('\n'));
  notas_->setVisible(!notas.isEmpty());
  AjustarAlto();
}

void VistaTabla::Estirar(bool si) {
  estirada_ = si;
  AjustarAlto();
}

void VistaTabla::AjustarAlto() {
  if (estirada_) {
    rejilla_->setMinimumHeight(0);
    rejilla_->setMaximumHeight(QWIDGETSIZE_MAX);
    return;
  }
  const QHeaderView* cabecera = rejilla_->horizontalHeader();
  int alto = rejilla_->verticalHeader()->length() + 2 * rejilla_->frameWidth();
  if (!cabecera->isHidden()) alto += cabecera->sizeHint().height();
  if (cabecera->length() > rejilla_->width())
    alto += rejilla_->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  rejilla_->setFixedHeight(alto);
}

void VistaTabla::Copiar() const {
  CasillasHoja casillas;
  const auto elegidas = rejilla_->selectedRanges();
  int primeraF = 0, ultimaF = rejilla_->rowCount() - 1;
  int primeraC = 0, ultimaC = rejilla_->columnCount() - 1;
  // Una casilla suelta es donde está el cursor, no una elección.
  if (elegidas.size() == 1 && elegidas[0].rowCount() * elegidas[0].columnCount() > 1) {
    primeraF = elegidas[0].topRow();
    ultimaF = elegidas[0].bottomRow();
    primeraC = elegidas[0].leftColumn();
    ultimaC = elegidas[0].rightColumn();
  }
  const auto en = [&](const std::vector<Celda>& fila, int c) {
    return static_cast<std::size_t>(c) < fila.size() ? fila[static_cast<std::size_t>(c)].texto
                                                     : std::string();
  };
  if (!tabla_.cabeceras.empty()) {
    auto& titulos = casillas.emplace_back();
    for (int c = primeraC; c <= ultimaC; ++c)
      titulos.push_back(static_cast<std::size_t>(c) < tabla_.cabeceras.size()
                            ? tabla_.cabeceras[static_cast<std::size_t>(c)]
                            : "");
  }
  for (int f = primeraF; f <= ultimaF; ++f) {
    auto& fila = casillas.emplace_back();
    for (int c = primeraC; c <= ultimaC; ++c)
      fila.push_back(en(tabla_.filas[static_cast<std::size_t>(f)], c));
  }
  QApplication::clipboard()->setText(Q(TextoDeCasillas(casillas)));
}

void VistaTabla::Exportar() {
  GuardarTextoPreguntando(this, Q(tabla_.titulo), tr("Texto separado por ; (*.csv *.txt)"),
                          TextoSeparado(tabla_));
}

bool VistaTabla::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(evento)->matches(QKeySequence::Copy)) {
    Copiar();
    return true;
  }
  if (evento->type() == QEvent::Resize) AjustarAlto();
  return QWidget::eventFilter(objeto, evento);
}

void CopiarTablas(const std::vector<Tabla>& tablas) {
  CasillasHoja casillas;
  for (const Tabla& tabla : tablas) {
    casillas.push_back({tabla.titulo});
    if (!tabla.cabeceras.empty()) casillas.push_back(tabla.cabeceras);
    for (const auto& fila : tabla.filas) {
      auto& textos = casillas.emplace_back();
      for (const Celda& celda : fila) textos.push_back(celda.texto);
    }
    for (const std::string& nota : tabla.notas) casillas.push_back({nota});
  }
  QApplication::clipboard()->setText(Q(TextoDeCasillas(casillas)));
}

void GuardarTextoPreguntando(QWidget* padre, const QString& nombre, const QString& filtro,
                             const std::string& texto) {
  QString propuesta = nombre;
  for (QChar& c : propuesta)
    if (!c.isLetterOrNumber() && c != ' ' && c != '-') c = '_';
  const QString ruta =
      QFileDialog::getSaveFileName(padre, QObject::tr("Exportar"), propuesta.trimmed(), filtro);
  if (!ruta.isEmpty()) Guardar(padre, S(ruta), texto);
}

void ExportarTextoPreguntando(QWidget* padre, const std::filesystem::path& carpeta,
                              const std::string& texto) {
  const QString ruta = QFileDialog::getSaveFileName(padre, QObject::tr("Guardar datos"), Q(carpeta),
                                                    "Text files (*.txt)");
  if (ruta.isEmpty()) return;
  try {
    EscribirFichero(RutaExportacion(S(ruta)), texto);
  } catch (const ErrorFichero&) {
    // De estas exportaciones, si no se pueden escribir, no se dice nada.
  }
}

}  // namespace novex::gui
