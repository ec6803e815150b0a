#include "shell/gui/DialogoDimensionado.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/NumeroTexto.h"
#include "entry/CambioSistema.h"
#include "entry/DimensionadoSistema.h"
#include "model/CatalogoCampos.h"
#include "model/ClavesCampos.h"
#include "shell/gui/RotulosSistema.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kEtiqueta = Qt::UserRole;

QString Numero(float valor) {
  return Q(Fijo(static_cast<double>(valor), 2));
}

QString Unidad(const OpcionesCampo& opciones, std::string_view etiqueta) {
  if (!opciones.unidad.isEmpty()) return opciones.unidad;
  if (etiqueta.starts_with("Caudal") && etiqueta != "CaudalVent") return "l/h";
  const CampoCatalogo* entrada = BuscarCampo(ClaveDeCampo(etiqueta));
  return entrada == nullptr ? QString() : Q(entrada->unidad);
}

}  // namespace

DialogoDimensionado::DialogoDimensionado(ContextoGui& contexto, std::size_t numero, QWidget* padre)
    : QDialog(padre), contexto_(contexto), numero_(numero) {
  setWindowTitle(tr("Dimensionar"));
  auto* columna = new QVBoxLayout(this);
  auto* cargas = new QLabel(Cargas(), this);
  cargas->setWordWrap(true);
  columna->addWidget(cargas);
  tabla_ = new QTableWidget(0, 4, this);
  tabla_->setObjectName("cambios");
  tabla_->setHorizontalHeaderLabels({tr("Campo"), tr("Tiene"), tr("Tendría"), tr("Unidad")});
  tabla_->verticalHeader()->hide();
  tabla_->setSelectionMode(QAbstractItemView::NoSelection);
  tabla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  LlenarTabla();
  const bool hay = tabla_->rowCount() > 0;
  auto* nada = new QLabel(tr("El sistema ya tiene los tamaños que pide el edificio."), this);
  nada->setProperty("papel", "nota");
  nada->setVisible(!hay);
  tabla_->setVisible(hay);
  columna->addWidget(nada);
  columna->addWidget(tabla_, 1);
  auto* botones = new QHBoxLayout;
  botones->addStretch(1);
  auto* cancelar = new QPushButton(hay ? tr("Cancelar") : tr("Cerrar"), this);
  botones->addWidget(cancelar);
  connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
  auto* aplicar = new QPushButton(tr("Poner los marcados"), this);
  aplicar->setObjectName("aplicar");
  aplicar->setDefault(true);
  aplicar->setVisible(hay);
  botones->addWidget(aplicar);
  connect(aplicar, &QPushButton::clicked, this, &DialogoDimensionado::Aplicar);
  columna->addLayout(botones);
  resize(560, hay ? 460 : 160);
}

QString DialogoDimensionado::Cargas() const {
  const Edificio& e = contexto_.Caso();
  const auto lugar = LugarDeBloque(e, numero_);
  if (!lugar) return {};
  const SistemaResidencial& sistema = e.GetSistema(lugar->sistema);
  const CargasPunta c = CargasPuntaDe(e, sistema.instalaciones[lugar->bloque].TipoInstalacionesG);
  const double kW = PotenciaDimensionado(TipoSistemaDe(sistema.Tipo_sistema), c);
  const auto n = [](double x) { return Q(Fijo(x, 1)); };
  return tr("Cargas punta por equipo: calefacción %1 kW, refrigeración sensible %2 kW, ACS %3 kW. "
            "El sistema se dimensiona para %4 kW.")
      .arg(n(c.calefaccion), n(c.refrigeracion), n(c.acs), n(kW));
}

void DialogoDimensionado::LlenarTabla() {
  for (const CambioTamano& cambio : CambiosDimensionado(contexto_.Caso(), numero_)) {
    const int fila = tabla_->rowCount();
    tabla_->insertRow(fila);
    const OpcionesCampo opciones = OpcionesDeSistema(cambio.etiqueta);
    auto* campo = new QTableWidgetItem(opciones.rotulo);
    campo->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
    campo->setCheckState(Qt::Checked);
    campo->setData(kEtiqueta, Q(cambio.etiqueta));
    tabla_->setItem(fila, 0, campo);
    const QString textos[] = {Numero(cambio.antes), Numero(cambio.despues),
                              Unidad(opciones, cambio.etiqueta)};
    for (int c = 0; c < 3; ++c) {
      auto* celda = new QTableWidgetItem(textos[c]);
      if (c < 2) celda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      tabla_->setItem(fila, c + 1, celda);
    }
  }
  tabla_->resizeColumnsToContents();
  tabla_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
}

void DialogoDimensionado::Aplicar() {
  std::vector<std::string> etiquetas;
  for (int f = 0; f < tabla_->rowCount(); ++f)
    if (tabla_->item(f, 0)->checkState() == Qt::Checked)
      etiquetas.push_back(S(tabla_->item(f, 0)->data(kEtiqueta).toString()));
  contexto_.Editar(tr("Dimensionado"),
                   [&](Edificio& e) { AplicarDimensionado(e, numero_, etiquetas); });
  accept();
}

}  // namespace novex::gui
