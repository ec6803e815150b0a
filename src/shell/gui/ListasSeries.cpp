#include "shell/gui/ListasSeries.h"

#include <QSignalBlocker>

#include "outputs/ExportacionSeries.h"
#include "shell/gui/Filas.h"
#include "shell/gui/ListaSinRueda.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kFilasVistas = 28;

}  // namespace

ListasSeries::ListasSeries(QWidget* padre) : QWidget(padre) {
  modelo_ = new QStandardItemModel(this);
  columna_ = new QVBoxLayout(this);
  columna_->setContentsMargins(0, 0, 0, 0);
  columna_->setSpacing(4);
  columna_->addStretch(1);
}

void ListasSeries::Anadir(const QString& rotulo, const QStringList& nombres,
                          const std::vector<std::string>& codigos) {
  auto* titulo = new QLabel(rotulo, this);
  titulo->setProperty("papel", "seccion");
  columna_->insertWidget(columna_->count() - 1, titulo);
  for (const QString& nombre : nombres) {
    auto* lista = new ListaSinRueda(this);
    lista->setObjectName(nombre);
    lista->setModel(modelo_);
    lista->setMaxVisibleItems(kFilasVistas);
    lista->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    lista->setMinimumContentsLength(18);
    const std::size_t cual = listas_.size();
    listas_.push_back(lista);
    const auto lugar = static_cast<std::size_t>(nombres.indexOf(nombre));
    elegidas_.push_back(lugar < codigos.size() ? codigos[lugar] : std::string(kNinguno));
    columna_->insertWidget(columna_->count() - 1, lista);
    connect(lista, &QComboBox::activated, this, [this, lista, cual] {
      elegidas_[cual] = S(lista->currentData().toString());
      emit Cambiada();
    });
  }
}

void ListasSeries::AnadirNota(const QString& texto) {
  QLabel* nota = NuevaNota(this);
  nota->setText(texto);
  columna_->insertWidget(columna_->count() - 1, nota);
}

void ListasSeries::Poner(const std::vector<NodoVariable>& nodos) {
  if (nodos == nodos_ && modelo_->rowCount() > 0) return;
  nodos_ = nodos;
  std::vector<QSignalBlocker> callados;
  for (QComboBox* lista : listas_) callados.emplace_back(lista);
  modelo_->clear();
  const auto anadir = [&](std::string_view texto, std::string_view codigo) {
    auto* fila = new QStandardItem(Q(texto));
    fila->setData(Q(codigo), Qt::UserRole);
    modelo_->appendRow(fila);
    return fila;
  };
  anadir(kNinguno, kNinguno);
  std::string grupo;
  for (const NodoVariable& nodo : nodos_) {
    if (nodo.grupo != grupo) {
      grupo = nodo.grupo;
      QStandardItem* cabecera = anadir(grupo, "");
      cabecera->setFlags(Qt::NoItemFlags);
      QFont letra = font();
      letra.setBold(true);
      cabecera->setFont(letra);
    }
    anadir(nodo.texto, nodo.codigo);
  }
  for (std::size_t i = 0; i < listas_.size(); ++i)
    listas_[i]->setCurrentIndex(std::max(0, listas_[i]->findData(Q(elegidas_[i]))));
}

std::string ListasSeries::Elegida(std::size_t lista) const {
  return S(listas_.at(lista)->currentData().toString());
}

}  // namespace novex::gui
