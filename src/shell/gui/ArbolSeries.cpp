#include "shell/gui/ArbolSeries.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

ArbolSeries::ArbolSeries(QWidget* padre) : QWidget(padre) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(0, 0, 0, 0);
  columna->setSpacing(4);
  buscar_ = new QLineEdit(this);
  buscar_->setObjectName("buscarVariable");
  buscar_->setPlaceholderText(tr("Buscar variable"));
  buscar_->setClearButtonEnabled(true);
  columna->addWidget(buscar_);
  arbol_ = new QTreeWidget(this);
  arbol_->setObjectName("LVVariables");
  arbol_->setHeaderHidden(true);
  arbol_->setIndentation(14);
  arbol_->setTextElideMode(Qt::ElideMiddle);
  arbol_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  columna->addWidget(arbol_, 1);
  connect(buscar_, &QLineEdit::textChanged, this, &ArbolSeries::Filtrar);
  connect(buscar_, &QLineEdit::returnPressed, this, [this] {
    for (std::size_t i = 0; i < nodos_.size(); ++i)
      if (!variables_[i]->isHidden()) return Elegir(nodos_[i].codigo);
  });
  connect(arbol_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* nodo) {
    const std::string codigo =
        nodo == nullptr ? std::string() : S(nodo->data(0, Qt::UserRole).toString());
    if (codigo.empty() || codigo == elegida_) return;
    elegida_ = codigo;
    emit Cambiada();
  });
  connect(arbol_, &QTreeWidget::itemChanged, this, &ArbolSeries::MarcasCambiadas);
}

void ArbolSeries::Poner(const std::vector<NodoVariable>& nodos, const std::string& primera) {
  if (nodos != nodos_) {
    const std::vector<std::string> marcadas = Marcadas();
    nodos_ = nodos;
    Rehacer();
    PonerMarcas(marcadas);
    Filtrar();
  }
  if (Nodo(elegida_) == nullptr)
    elegida_ = Nodo(primera) != nullptr || nodos_.empty() ? primera : nodos_.front().codigo;
  const QSignalBlocker callado(arbol_);
  arbol_->setCurrentItem(Nodo(elegida_));
}

void ArbolSeries::Rehacer() {
  const QSignalBlocker callado(arbol_);
  arbol_->clear();
  variables_.clear();
  QTreeWidgetItem* grupo = nullptr;
  for (const NodoVariable& nodo : nodos_) {
    if (grupo == nullptr || grupo->text(0) != Q(nodo.grupo)) {
      grupo = new QTreeWidgetItem(arbol_, {Q(nodo.grupo)});
      grupo->setFlags(Qt::ItemIsEnabled);
      QFont letra = arbol_->font();
      letra.setBold(true);
      grupo->setFont(0, letra);
      grupo->setToolTip(0, Q(nodo.grupo));
    }
    auto* variable = new QTreeWidgetItem(grupo, {Q(nodo.texto)});
    variable->setData(0, Qt::UserRole, Q(nodo.codigo));
    variable->setToolTip(0, Q(nodo.texto));
    variables_.push_back(variable);
  }
}

QTreeWidgetItem* ArbolSeries::Nodo(const std::string& codigo) const {
  for (std::size_t i = 0; i < nodos_.size(); ++i)
    if (nodos_[i].codigo == codigo) return variables_[i];
  return nullptr;
}

void ArbolSeries::Elegir(const std::string& codigo) {
  if (QTreeWidgetItem* nodo = Nodo(codigo)) arbol_->setCurrentItem(nodo);
}

void ArbolSeries::Filtrar() {
  const std::string buscado = S(buscar_->text());
  for (int g = 0; g < arbol_->topLevelItemCount(); ++g) arbol_->topLevelItem(g)->setHidden(true);
  for (std::size_t i = 0; i < nodos_.size(); ++i) {
    const bool sale = SaleAlBuscar(nodos_[i], buscado);
    variables_[i]->setHidden(!sale);
    if (sale) variables_[i]->parent()->setHidden(false);
    if (sale && !buscado.empty()) variables_[i]->parent()->setExpanded(true);
  }
}

void ArbolSeries::Marcar(bool si) {
  if (si == marcas_) return;
  const std::vector<std::string> habia = Marcadas();
  marcas_ = si;
  PonerMarcas(habia);
}

void ArbolSeries::PonerMarcas(const std::vector<std::string>& codigos) {
  const QSignalBlocker callado(arbol_);
  for (std::size_t i = 0; i < nodos_.size(); ++i) {
    const bool marcada =
        std::find(codigos.begin(), codigos.end(), nodos_[i].codigo) != codigos.end();
    variables_[i]->setData(0, Qt::CheckStateRole,
                           marcas_ ? QVariant(marcada ? Qt::Checked : Qt::Unchecked) : QVariant());
    variables_[i]->setData(0, Qt::UserRole + 1, marcada);
  }
  QTreeWidgetItem* elegida = Nodo(elegida_);
  if (marcas_ && codigos.empty() && elegida != nullptr) elegida->setCheckState(0, Qt::Checked);
  arbol_->viewport()->update();
}

std::vector<std::string> ArbolSeries::Marcadas() const {
  std::vector<std::string> codigos;
  for (std::size_t i = 0; i < nodos_.size(); ++i) {
    const QVariant marca = variables_[i]->data(0, Qt::CheckStateRole);
    const bool marcada = marca.isValid() ? marca.toInt() == Qt::Checked
                                         : variables_[i]->data(0, Qt::UserRole + 1).toBool();
    if (marcada) codigos.push_back(nodos_[i].codigo);
  }
  return codigos;
}

}  // namespace novex::gui
