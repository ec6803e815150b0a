#include "shell/gui/PaginaPestanas.h"

#include <QVBoxLayout>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

PaginaPestanas::PaginaPestanas(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(0, 0, 0, 0);
  tira_ = new QTabWidget(this);
  tira_->setDocumentMode(true);
  columna->addWidget(tira_);
  // La que no está a la vista se refresca al enseñarla.
  connect(tira_, &QTabWidget::currentChanged, this, [this] {
    if (isVisible()) Refrescar();
  });
}

void PaginaPestanas::Anadir(Pagina* pagina, const QString& titulo) {
  AnadirTarde([pagina] { return pagina; }, titulo);
  Pestana& pestana = pestanas_.back();
  pestana.visor->setWidget(pagina);
  pestana.pagina = pagina;
}

void PaginaPestanas::AnadirTarde(std::function<Pagina*()> crear, const QString& titulo) {
  auto* visor = new QScrollArea(this);
  visor->setWidgetResizable(true);
  visor->setFrameShape(QFrame::NoFrame);
  pestanas_.push_back({visor, nullptr, std::move(crear)});
  tira_->addTab(visor, titulo);
}

// La página que se enseña, que se crea ahora si no lo está; nula sin pestañas.
Pagina* PaginaPestanas::ALaVista() {
  const auto cual = static_cast<std::size_t>(tira_->currentIndex());
  if (cual >= pestanas_.size()) return nullptr;
  Pestana& pestana = pestanas_[cual];
  if (pestana.pagina == nullptr) {
    pestana.pagina = pestana.crear();
    pestana.visor->setWidget(pestana.pagina);
  }
  return pestana.pagina;
}

void PaginaPestanas::Refrescar() {
  if (Pagina* pagina = ALaVista()) pagina->Refrescar();
}

void PaginaPestanas::Senalar(const MensajePrevio& motivo) {
  for (std::size_t i = 0; !motivo.campo.empty() && i < pestanas_.size(); ++i)
    if (pestanas_[i].visor->findChild<QWidget*>(Q(motivo.campo)) != nullptr)
      tira_->setCurrentIndex(static_cast<int>(i));
  if (Pagina* pagina = ALaVista()) pagina->Senalar(motivo);
}

void PaginaPestanas::Mostrar(const QString& titulo) {
  for (int i = 0; i < tira_->count(); ++i)
    if (tira_->tabText(i) == titulo && tira_->isTabVisible(i)) tira_->setCurrentIndex(i);
}

void PaginaPestanas::Esconder(const QString& titulo, bool si) {
  for (int i = 0; i < tira_->count(); ++i)
    if (tira_->tabText(i) == titulo) tira_->setTabVisible(i, !si);
}

void PaginaPestanas::Marcar(const QString& titulo, const QIcon& icono, const QString& ayuda) {
  for (int i = 0; i < tira_->count(); ++i)
    if (tira_->tabText(i) == titulo) {
      tira_->setTabIcon(i, icono);
      tira_->setTabToolTip(i, ayuda);
    }
}

}  // namespace novex::gui
