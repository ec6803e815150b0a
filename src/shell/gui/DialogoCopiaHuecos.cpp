#include "shell/gui/DialogoCopiaHuecos.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

DialogoCopiaHuecos::DialogoCopiaHuecos(ContextoGui& contexto, std::size_t grupo, QWidget* padre)
    : QDialog(padre), contexto_(contexto), grupo_(grupo) {
  setWindowTitle(tr("Copiar propiedades"));
  auto* columna = new QVBoxLayout(this);
  auto* titulo = new QLabel(Q(TituloCopiaPropiedades(grupo)), this);
  titulo->setProperty("papel", "seccion");
  columna->addWidget(titulo);
  auto* fila = new QHBoxLayout;
  auto* izquierda = new QVBoxLayout;
  grupos_ = new QListWidget(this);
  grupos_->setObjectName("LVGrupos");
  grupos_->setMinimumSize(240, 220);
  // Con el fondo transparente de las demás listas las casillas no se ven.
  grupos_->setStyleSheet("QListWidget { background: palette(base); }");
  izquierda->addWidget(grupos_);
  todos_ = new QCheckBox(Q(kTextoTodosLosGrupos), this);
  todos_->setObjectName("CBGTodos");
  izquierda->addWidget(todos_);
  fila->addLayout(izquierda, 1);
  auto* derecha = new QVBoxLayout;
  for (std::size_t i = 0; i < conjuntos_.size(); ++i) {
    conjuntos_[i] = new QCheckBox(Q(kTextosConjunto[i]), this);
    derecha->addWidget(conjuntos_[i]);
    connect(conjuntos_[i], &QCheckBox::toggled, this, &DialogoCopiaHuecos::Revisar);
  }
  derecha->addStretch(1);
  fila->addLayout(derecha, 1);
  columna->addLayout(fila, 1);
  auto* nota = new QLabel(Q(kTextoSoloVentanas), this);
  nota->setProperty("papel", "nota");
  columna->addWidget(nota);
  resultado_ = new QLabel(this);
  resultado_->setObjectName("resultado");
  columna->addWidget(resultado_);
  auto* botones = new QDialogButtonBox(this);
  aplicar_ = botones->addButton(Q(kTextoAplicar), QDialogButtonBox::ApplyRole);
  aplicar_->setObjectName("BitBtnAplicarPropGrupos");
  botones->addButton(tr("Cerrar"), QDialogButtonBox::RejectRole);
  columna->addWidget(botones);
  LlenarGrupos();
  connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(aplicar_, &QPushButton::clicked, this, &DialogoCopiaHuecos::Aplicar);
  connect(todos_, &QCheckBox::clicked, this, &DialogoCopiaHuecos::MarcarTodos);
  connect(grupos_, &QListWidget::itemChanged, this, &DialogoCopiaHuecos::Revisar);
  Revisar();
}

void DialogoCopiaHuecos::LlenarGrupos() {
  for (std::size_t i = 0; i < contexto_.Caso().NumeroHuecos(); ++i) {
    const Huecos& g = contexto_.Caso().GetHuecos(i);
    auto* entrada = new QListWidgetItem(Q(g.Nombre_hueco), grupos_);
    entrada->setData(Qt::UserRole, static_cast<int>(i));
    // Se ven todos, pero solo se marcan los que pueden recibir algo.
    const bool admite = i != grupo_ && AdmiteCopiaPropiedades(g);
    entrada->setFlags(admite ? Qt::ItemIsEnabled | Qt::ItemIsUserCheckable | Qt::ItemIsSelectable
                             : Qt::NoItemFlags);
    if (admite) entrada->setCheckState(Qt::Unchecked);
  }
}

void DialogoCopiaHuecos::MarcarTodos(bool marcados) {
  {
    const QSignalBlocker callado(grupos_);
    for (int i = 0; i < grupos_->count(); ++i)
      if (grupos_->item(i)->flags() != Qt::NoItemFlags)
        grupos_->item(i)->setCheckState(marcados ? Qt::Checked : Qt::Unchecked);
  }
  Revisar();
}

std::vector<std::size_t> DialogoCopiaHuecos::Destinos() const {
  std::vector<std::size_t> destinos;
  for (int i = 0; i < grupos_->count(); ++i)
    if (grupos_->item(i)->checkState() == Qt::Checked)
      destinos.push_back(static_cast<std::size_t>(grupos_->item(i)->data(Qt::UserRole).toInt()));
  return destinos;
}

SeleccionPropiedades DialogoCopiaHuecos::Conjuntos() const {
  SeleccionPropiedades conjuntos;
  for (std::size_t i = 0; i < conjuntos_.size(); ++i) conjuntos.set(i, conjuntos_[i]->isChecked());
  return conjuntos;
}

void DialogoCopiaHuecos::Revisar() {
  const bool origen = AdmiteCopiaPropiedades(contexto_.Caso().GetHuecos(grupo_));
  const auto destinos = Destinos();
  std::size_t posibles = 0;
  for (int i = 0; i < grupos_->count(); ++i)
    if (grupos_->item(i)->flags() != Qt::NoItemFlags) ++posibles;
  todos_->setEnabled(posibles > 0);
  const QSignalBlocker callado(todos_);
  todos_->setChecked(posibles > 0 && destinos.size() == posibles);
  aplicar_->setEnabled(origen && !destinos.empty() && Conjuntos().any());
  resultado_->setText(origen ? QString()
                             : tr("Las propiedades de una puerta o de un lucernario no se copian"));
}

void DialogoCopiaHuecos::Aplicar() {
  std::size_t copiados = 0;
  contexto_.Editar(tr("Copia de propiedades de huecos"), [&](Edificio& e) {
    copiados = CopiarPropiedadesHuecos(e, grupo_, Destinos(), Conjuntos());
  });
  resultado_->setText(tr("Copiado en %1 grupos").arg(copiados));
}

}  // namespace novex::gui
