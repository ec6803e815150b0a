#include "shell/gui/PaginaPestanas.h"

#include <QScrollArea>
#include <QVBoxLayout>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

PaginaPestanas::PaginaPestanas(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(0, 0, 0, 0);
  pestanas_ = new QTabWidget(this);
  pestanas_->setDocumentMode(true);
  columna->addWidget(pestanas_);
  // La que no está a la vista se refresca al enseñarla.
  connect(pestanas_, &QTabWidget::currentChanged, this, [this] {
    if (isVisible()) Refrescar();
  });
}

void PaginaPestanas::Anadir(Pagina* pagina, const QString& titulo) {
  auto* visor = new QScrollArea(this);
  visor->setWidgetResizable(true);
  visor->setFrameShape(QFrame::NoFrame);
  visor->setWidget(pagina);
  paginas_.push_back(pagina);
  pestanas_->addTab(visor, titulo);
}

void PaginaPestanas::Refrescar() {
  const auto cual = static_cast<std::size_t>(pestanas_->currentIndex());
  if (cual < paginas_.size()) paginas_[cual]->Refrescar();
}

void PaginaPestanas::Senalar(const MensajePrevio& motivo) {
  for (std::size_t i = 0; !motivo.campo.empty() && i < paginas_.size(); ++i)
    if (paginas_[i]->findChild<QWidget*>(Q(motivo.campo)) != nullptr)
      pestanas_->setCurrentIndex(static_cast<int>(i));
  const auto cual = static_cast<std::size_t>(pestanas_->currentIndex());
  if (cual < paginas_.size()) paginas_[cual]->Senalar(motivo);
}

void PaginaPestanas::Mostrar(const QString& titulo) {
  for (int i = 0; i < pestanas_->count(); ++i)
    if (pestanas_->tabText(i) == titulo && pestanas_->isTabVisible(i))
      pestanas_->setCurrentIndex(i);
}

void PaginaPestanas::Esconder(const QString& titulo, bool si) {
  for (int i = 0; i < pestanas_->count(); ++i)
    if (pestanas_->tabText(i) == titulo) pestanas_->setTabVisible(i, !si);
}

void PaginaPestanas::Marcar(const QString& titulo, const QIcon& icono, const QString& ayuda) {
  for (int i = 0; i < pestanas_->count(); ++i)
    if (pestanas_->tabText(i) == titulo) {
      pestanas_->setTabIcon(i, icono);
      pestanas_->setTabToolTip(i, ayuda);
    }
}

}  // namespace novex::gui
