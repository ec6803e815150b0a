#include "shell/gui/DialogoSombra.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace novex::gui {

DialogoSombra::DialogoSombra(ContextoGui& contexto, Sector fachada, QWidget* padre)
    : QDialog(padre) {
  setWindowTitle(tr("Porcentaje de sombra"));
  resize(720, 480);
  auto* columna = new QVBoxLayout(this);
  grafica_ = new GraficaSombra(contexto, fachada, this);
  columna->addWidget(grafica_, 1);
  auto* pie = new QHBoxLayout;
  auto* donde = new QLabel(
      tr("Los obstáculos lejanos se ponen en <a href=\"#\">Edificio › CiudadEntorno</a>."), this);
  donde->setProperty("papel", "nota");
  connect(donde, &QLabel::linkActivated, this, [this, &contexto] {
    accept();
    contexto.IrA(novex::PaginaProyecto::CiudadEntorno);
  });
  pie->addWidget(donde, 1);
  auto* botones = new QDialogButtonBox(this);
  botones->addButton(tr("Cerrar"), QDialogButtonBox::RejectRole);
  pie->addWidget(botones);
  columna->addLayout(pie);
  connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

}  // namespace novex::gui
