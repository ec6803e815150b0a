#include "shell/gui/PaginaHuecos.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "base/ErrorFichero.h"
#include "base/NumeroTexto.h"
#include "entry/GruposHuecos.h"
#include "shell/gui/DialogoCopiaHuecos.h"
#include "shell/gui/DialogoSombra.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

QString Area(float valor) {
  return Q(Fijo(static_cast<double>(valor), 1)).replace('.', ',');
}

// La orientación de un grupo con más huecos; sur si no tiene ninguno al sol.
Sector FachadaDe(const Huecos& g) {
  Sector mejor = sur;
  for (const Sector s : {oeste, sur_oeste, sur_este, este})
    if (g.columnas[s].recintos.size() > g.columnas[mejor].recintos.size()) mejor = s;
  return mejor;
}

}  // namespace

PaginaHuecos::PaginaHuecos(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {
  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(12, 8, 12, 8);
  fila->addWidget(CajaGrupos());
}

QWidget* PaginaHuecos::CajaGrupos() {
  auto* caja = new QWidget(this);
  caja->setFixedWidth(200);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 0, 0);
  lista_ = new QTreeWidget(caja);
  lista_->setObjectName("LVHuecos");
  lista_->setRootIsDecorated(false);
  lista_->setUniformRowHeights(true);
  lista_->setHeaderLabels({tr("Grupo"), tr("u."), tr("m²")});
  lista_->header()->setStretchLastSection(false);
  lista_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  lista_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  lista_->header()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
  lista_->header()->setMinimumSectionSize(30);
  columna->addWidget(lista_, 1);
  total_ = new QLabel(caja);
  total_->setProperty("papel", "nota");
  columna->addWidget(total_);
  auto* botones = new QHBoxLayout;
  const auto boton = [&](const char* nombre, const QString& texto, const QString& ayuda,
                         void (PaginaHuecos::*hacer)()) {
    auto* b = new QPushButton(texto, caja);
    b->setObjectName(nombre);
    b->setToolTip(ayuda);
    b->setAccessibleName(ayuda);
    connect(b, &QPushButton::clicked, this, hacer);
    return b;
  };
  botones->addWidget(
      boton("BVentanasMas", "+", tr("Añade un grupo en blanco"), &PaginaHuecos::AnadirGrupo));
  quitar_ = boton("BVentanasMenos", "–", tr("Quita el grupo elegido; el último no se quita"),
                  &PaginaHuecos::QuitarGrupo);
  botones->addWidget(quitar_);
  columna->addLayout(botones);
  copiar_ = boton("copiarPropiedades", tr("Copiar a…"),
                  tr("Copia las propiedades térmicas del grupo a otros"),
                  &PaginaHuecos::CopiarPropiedades);
  columna->addWidget(copiar_);
  columna->addWidget(boton("BBCalcularPorcSombra", tr("Sombra lejana…"),
                           tr("Porcentaje de sombra por horas y meses de los obstáculos lejanos"),
                           &PaginaHuecos::VerSombra));
  aviso_ = new QLabel(caja);
  aviso_->setProperty("papel", "aviso");
  aviso_->setWordWrap(true);
  aviso_->hide();
  columna->addWidget(aviso_);
  connect(lista_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* entrada) {
    if (entrada != nullptr)
      MostrarGrupo(static_cast<std::size_t>(entrada->data(0, Qt::UserRole).toInt()));
  });
  return caja;
}

void PaginaHuecos::Refrescar() {
  if (!catalogo_) {
    try {
      catalogo_ =
          LeerCatalogoVidrios(contexto_.Ficheros().Xml("VidriosMarcos.xml", "VidriosMarcos"));
    } catch (const ErrorFichero& error) {
      // Sin catálogo se edita igual, escribiendo los valores.
      catalogo_.emplace();
      aviso_->setText(Q(error.what()));
      aviso_->show();
    }
  }
  grupo_ = std::min(grupo_, contexto_.Caso().NumeroHuecos() - 1);
  LlenarGrupos();
  if (ficha_ == nullptr || ficha_->Grupo() != grupo_) RehacerFicha();
  ficha_->Refrescar();
  Pagina::Refrescar();
}

void PaginaHuecos::LlenarGrupos() {
  const QSignalBlocker callado(lista_);
  const Edificio& e = contexto_.Caso();
  const int cuantos = static_cast<int>(e.NumeroHuecos());
  while (lista_->topLevelItemCount() > cuantos) delete lista_->takeTopLevelItem(cuantos);
  float area = 0;
  std::size_t huecos = 0;
  for (int i = 0; i < cuantos; ++i) {
    QTreeWidgetItem* entrada = lista_->topLevelItem(i);
    if (entrada == nullptr) {
      entrada = new QTreeWidgetItem(lista_);
      entrada->setData(0, Qt::UserRole, i);
      entrada->setTextAlignment(1, Qt::AlignRight);
      entrada->setTextAlignment(2, Qt::AlignRight);
    }
    const Huecos& g = e.GetHuecos(static_cast<std::size_t>(i));
    entrada->setText(0, Q(g.Nombre_hueco));
    entrada->setText(1, QString::number(g.NumeroTotal()));
    entrada->setText(2, Area(AreaGrupoHuecos(g)));
    area += AreaGrupoHuecos(g);
    huecos += g.NumeroTotal();
  }
  lista_->setCurrentItem(lista_->topLevelItem(static_cast<int>(grupo_)));
  total_->setText(huecos == 0 ? tr("Ponga las unidades de cada orientación")
                              : tr("%1 huecos · %2 m²").arg(huecos).arg(Area(area)));
  quitar_->setEnabled(cuantos > 1);
  copiar_->setEnabled(cuantos > 1);
}

void PaginaHuecos::RehacerFicha() {
  if (ficha_ != nullptr) {
    // Sus editores ya no tienen enlace: no han de guardar nada al perder el foco.
    for (QLineEdit* linea : ficha_->findChildren<QLineEdit*>()) linea->blockSignals(true);
    enlaces_.Vaciar();
    ficha_->setParent(nullptr);
    ficha_->deleteLater();
  }
  ficha_ = new FichaHueco(contexto_, enlaces_, *catalogo_, grupo_, this);
  static_cast<QHBoxLayout*>(layout())->addWidget(ficha_, 1);
  ficha_->show();
}

void PaginaHuecos::MostrarGrupo(std::size_t grupo) {
  grupo_ = grupo;
  Refrescar();
}

void PaginaHuecos::AnadirGrupo() {
  const std::size_t antes = grupo_;
  const bool hecho = contexto_.Editar(tr("Añadir un grupo de huecos"),
                                      [this](Edificio& e) { grupo_ = AnadirGrupoHuecos(e); });
  if (!hecho) grupo_ = antes;
}

void PaginaHuecos::QuitarGrupo() {
  contexto_.Editar(tr("Quitar un grupo de huecos"),
                   [this](Edificio& e) { QuitarGrupoHuecos(e, grupo_); });
}

void PaginaHuecos::CopiarPropiedades() {
  DialogoCopiaHuecos(contexto_, grupo_, this).exec();
}

void PaginaHuecos::VerSombra() {
  DialogoSombra(contexto_, FachadaDe(contexto_.Caso().GetHuecos(grupo_)), this).exec();
}

}  // namespace novex::gui
