#include "shell/gui/DialogoCatalogo.h"

#include <QFormLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "base/NumeroTexto.h"
#include "entry/CambioSistema.h"
#include "entry/RellenoSistema.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

QString Cifra(float valor) {
  return valor > 0.0F ? Q(Fijo(static_cast<double>(valor), 2)) : QString("–");
}

}  // namespace

DialogoCatalogo::DialogoCatalogo(ContextoGui& contexto, std::size_t numero, QWidget* padre)
    : QDialog(padre),
      contexto_(contexto),
      numero_(numero),
      catalogo_(contexto.Ficheros().Xml("Equipos.xml", "EquiposNovex"),
                contexto.Sesion().Avisos()) {
  setWindowTitle(tr("Catálogo de equipos"));
  auto* columna = new QVBoxLayout(this);
  auto* formulario = new QFormLayout;
  fabricantes_ = new QComboBox(this);
  fabricantes_->setObjectName("fabricantes");
  formulario->addRow(tr("Fabricante"), fabricantes_);
  columna->addLayout(formulario);
  tabla_ = new QTableWidget(0, 8, this);
  tabla_->setObjectName("modelos");
  tabla_->setHorizontalHeaderLabels({"Modelo", "CapTRef(kW)", "CapSenRef(kW)", "ConRef(kW)", "EER",
                                     "CapCal(kW)", "ConCal(kW)", "COP"});
  tabla_->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabla_->setSelectionMode(QAbstractItemView::SingleSelection);
  tabla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabla_->verticalHeader()->hide();
  columna->addWidget(tabla_, 1);
  nota_ = new QLabel(this);
  nota_->setProperty("papel", "nota");
  nota_->setWordWrap(true);
  columna->addWidget(nota_);
  auto* botones = new QHBoxLayout;
  botones->addStretch(1);
  auto* cancelar = new QPushButton(tr("Cancelar"), this);
  aplicar_ = new QPushButton(tr("Poner este modelo"), this);
  aplicar_->setObjectName("aplicar");
  aplicar_->setDefault(true);
  botones->addWidget(cancelar);
  botones->addWidget(aplicar_);
  columna->addLayout(botones);
  connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
  connect(aplicar_, &QPushButton::clicked, this, &DialogoCatalogo::Aplicar);
  connect(tabla_, &QTableWidget::cellDoubleClicked, this, &DialogoCatalogo::Aplicar);
  connect(fabricantes_, &QComboBox::currentTextChanged, this, &DialogoCatalogo::LlenarModelos);
  resize(820, 420);

  const auto lugar = LugarDeBloque(contexto_.Caso(), numero_);
  if (!lugar) return;
  const Instalaciones& bloque =
      contexto_.Caso().GetSistema(lugar->sistema).instalaciones[lugar->bloque];
  tipo_ = TipoDeCatalogo(bloque.Seleccion);
  modelo_ = bloque.Modelo;
  for (const std::string& f : catalogo_.Fabricantes(tipo_.familia, tipo_.tipo))
    fabricantes_->addItem(Q(f));
  const int suyo = fabricantes_->findText(Q(bloque.Fabricante));
  if (suyo >= 0) fabricantes_->setCurrentIndex(suyo);
  LlenarModelos();
}

void DialogoCatalogo::LlenarModelos() {
  const std::string fabricante = S(fabricantes_->currentText());
  const auto modelos = catalogo_.Modelos(fabricante, tipo_.familia, tipo_.tipo);
  tabla_->setRowCount(static_cast<int>(modelos.size()));
  int actual = modelos.empty() ? -1 : 0;
  for (std::size_t i = 0; i < modelos.size(); ++i) {
    const ModeloEquipo& m = modelos[i];
    const int fila = static_cast<int>(i);
    const QString textos[] = {Q(m.modelo),     Cifra(m.PotTotRef), Cifra(m.PotSenRef),
                              Cifra(m.ConRef), Cifra(m.EER()),     Cifra(m.PotCal),
                              Cifra(m.ConCal), Cifra(m.COP())};
    for (int c = 0; c < tabla_->columnCount(); ++c) {
      auto* celda = new QTableWidgetItem(textos[c]);
      if (c > 0) celda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      tabla_->setItem(fila, c, celda);
    }
    if (m.modelo == modelo_) actual = fila;
  }
  tabla_->resizeColumnsToContents();
  tabla_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  if (actual >= 0) tabla_->selectRow(actual);
  aplicar_->setEnabled(actual >= 0);
  if (modelos.empty())
    nota_->setText(tr("El catálogo no tiene modelos de esta clase."));
  else if (fabricante == kFabricanteDefecto || tipo_.familia == "Generadores")
    nota_->setText(tr("Pone las curvas del modelo. Las potencias del sistema no cambian."));
  else
    nota_->setText(tr("Pone las curvas y las potencias nominales del modelo."));
}

void DialogoCatalogo::Aplicar() {
  const int fila = tabla_->currentRow();
  const auto lugar = LugarDeBloque(contexto_.Caso(), numero_);
  if (fila < 0 || !lugar) return;
  contexto_.Editar(tr("Modelo del catálogo"), [&](Edificio& e) {
    SistemaResidencial& sistema = e.GetSistema(lugar->sistema);
    const Instalaciones antes = sistema.instalaciones[lugar->bloque];
    Instalaciones& bloque = sistema.instalaciones[lugar->bloque];
    catalogo_.Aplicar(S(fabricantes_->currentText()), tipo_.familia, tipo_.tipo,
                      static_cast<std::size_t>(fila) + 1, bloque);
    // Con otras potencias van otros caudales.
    if (antes.QcalorBC1 != bloque.QcalorBC1 || antes.QFrioTot1 != bloque.QFrioTot1)
      RellenarSistema(e, sistema, contexto_.Sesion().Avisos());
  });
  accept();
}

}  // namespace novex::gui
