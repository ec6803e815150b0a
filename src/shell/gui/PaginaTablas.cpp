#include "shell/gui/PaginaTablas.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>
#include <exception>

#include "calculation/EjecutarCalculo.h"
#include "compliance/VerificacionHE.h"
#include "outputs/TablaVeredictos.h"
#include "outputs/TablasPorNombre.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr const char* kVeredictos = "Verificación del DB-HE";

QTableWidget* TablaQt(const Tabla& tabla, QWidget* padre) {
  int columnas = static_cast<int>(tabla.cabeceras.size());
  for (const auto& fila : tabla.filas) columnas = std::max(columnas, static_cast<int>(fila.size()));
  auto* qt = new QTableWidget(static_cast<int>(tabla.filas.size()), columnas, padre);
  QStringList cabeceras;
  for (const std::string& c : tabla.cabeceras) cabeceras << Q(c);
  qt->setHorizontalHeaderLabels(cabeceras);
  qt->verticalHeader()->hide();
  qt->setEditTriggers(QAbstractItemView::NoEditTriggers);
  for (int f = 0; f < qt->rowCount(); ++f) {
    const auto& fila = tabla.filas[static_cast<std::size_t>(f)];
    for (int c = 0; c < static_cast<int>(fila.size()); ++c) {
      const Celda& celda = fila[static_cast<std::size_t>(c)];
      auto* casilla = new QTableWidgetItem(Q(celda.texto));
      if (celda.numero) casilla->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      qt->setItem(f, c, casilla);
    }
  }
  qt->resizeColumnsToContents();
  qt->resizeRowsToContents();
  const int alto = qt->horizontalHeader()->sizeHint().height() + qt->verticalHeader()->length() + 6;
  qt->setMinimumHeight(std::min(alto, 420));
  qt->setMaximumHeight(std::max(alto, 60));
  return qt;
}

}  // namespace

PaginaTablas::PaginaTablas(ContextoGui& contexto, Destino destino, QWidget* padre)
    : Pagina(contexto, padre), destino_(destino) {
  auto* fila = new QHBoxLayout(this);
  nombres_ = new QListWidget(this);
  nombres_->setMaximumWidth(220);
  fila->addWidget(nombres_);
  auto* columna = new QVBoxLayout;
  aviso_ = new QLabel(this);
  aviso_->setProperty("papel", "nota");
  columna->addWidget(aviso_);
  visor_ = new QScrollArea(this);
  visor_->setWidgetResizable(true);
  visor_->setFrameShape(QFrame::NoFrame);
  columna->addWidget(visor_);
  fila->addLayout(columna, 1);
  connect(nombres_, &QListWidget::currentRowChanged, this, [this] { Elegir(); });
}

bool PaginaTablas::Calcular() {
  Progreso progreso;
  Entorno entorno{contexto_.Ficheros(), contexto_.Sesion().Avisos(), progreso};
  try {
    return CalcularProyecto(contexto_.Sesion().GestorParaCalcular(), entorno);
  } catch (const std::exception& error) {
    aviso_->setText(Q(error.what()));
    return false;
  }
}

std::vector<std::string> PaginaTablas::Nombres() const {
  if (destino_ == Destino::HE) return {kVeredictos};
  std::vector<std::string> nombres;
  for (const std::string& nombre : NombresTablas(contexto_.Caso()))
    if (ComparaCasos(nombre) == (destino_ == Destino::Comparacion)) nombres.push_back(nombre);
  return nombres;
}

std::vector<Tabla> PaginaTablas::TablasDe(const std::string& nombre) const {
  const Edificio& edificio = contexto_.Caso();
  if (!edificio.GetCalculo()) return {};
  const CasoCalculado caso = {std::string(contexto_.Sesion().Gestor().NombreActivo()),
                              &edificio,
                              edificio.GetCalculo().get(),
                              {}};
  if (nombre == kVeredictos)
    return TablasVeredictos(VerificarHE(edificio, *caso.resultado,
                                        LeerDocumentosHE(contexto_.Ficheros().Espacio().Datos()))
                                .veredictos);
  return TablasDeNombre(caso, CasosCalculados(contexto_.Sesion().Gestor()), nombre)
      .value_or(std::vector<Tabla>{});
}

void PaginaTablas::Elegir() {
  const QListWidgetItem* elegido = nombres_->currentItem();
  if (elegido == nullptr) return;
  auto* hoja = new QWidget;
  auto* columna = new QVBoxLayout(hoja);
  for (const Tabla& tabla : TablasDe(S(elegido->text()))) {
    auto* titulo = new QLabel(Q(tabla.titulo), hoja);
    titulo->setProperty("papel", "seccion");
    columna->addWidget(titulo);
    columna->addWidget(TablaQt(tabla, hoja));
    for (const std::string& nota : tabla.notas) {
      auto* texto = new QLabel(Q(nota), hoja);
      texto->setWordWrap(true);
      texto->setProperty("papel", "nota");
      columna->addWidget(texto);
    }
  }
  columna->addStretch(1);
  visor_->setWidget(hoja);
}

void PaginaTablas::Refrescar() {
  aviso_->clear();
  if (!Calcular()) return;
  QStringList nombres;
  for (const std::string& nombre : Nombres()) nombres << Q(nombre);
  QStringList hay;
  for (int i = 0; i < nombres_->count(); ++i) hay << nombres_->item(i)->text();
  if (hay != nombres) {
    nombres_->clear();
    nombres_->addItems(nombres);
  }
  if (nombres_->currentRow() < 0 && nombres_->count() > 0)
    nombres_->setCurrentRow(0);
  else
    Elegir();
}

}  // namespace novex::gui
