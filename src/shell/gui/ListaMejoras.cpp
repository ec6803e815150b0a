#include "shell/gui/ListaMejoras.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>
#include <algorithm>

#include "improvements/AplicarMedida.h"
#include "outputs/TablaMejoras.h"
#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kColumnaCodigo = 1;
constexpr int kLineasQue = 2;

// La misma tabla no se pone otra vez: se perdería la fila elegida.
bool MismosTextos(const Tabla& a, const Tabla& b) {
  const auto mismaFila = [](const auto& x, const auto& y) {
    return std::equal(x.begin(), x.end(), y.begin(), y.end(),
                      [](const Celda& c, const Celda& d) { return c.texto == d.texto; });
  };
  return std::equal(a.filas.begin(), a.filas.end(), b.filas.begin(), b.filas.end(), mismaFila);
}

}  // namespace

ListaMejoras::ListaMejoras(ContextoGui& contexto, QWidget* padre)
    : QWidget(padre), contexto_(contexto) {
  auto* columna = new QVBoxLayout(this);
  ninguna_ = NuevaNota(this);
  ninguna_->setText(
      tr("Calcule las mejoras: aquí se ordenan por la energía primaria no renovable "
         "que ahorran, y cualquiera se puede aplicar a una copia del caso."));
  columna->addWidget(ninguna_);
  tabla_ = new VistaTabla(this);
  tabla_->Estirar(true);
  tabla_->Rejilla()->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabla_->Rejilla()->setSelectionMode(QAbstractItemView::SingleSelection);
  tabla_->Rejilla()->horizontalHeader()->setStretchLastSection(true);
  columna->addWidget(tabla_, 1);
  auto* fila = new QHBoxLayout;
  que_ = new QLabel(this);
  que_->setObjectName("QueCambia");
  que_->setWordWrap(true);
  que_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  que_->setMinimumHeight(kLineasQue * que_->fontMetrics().lineSpacing());
  fila->addWidget(que_, 1);
  aplicar_ = new QPushButton(tr("Aplicar como caso de mejora"), this);
  aplicar_->setObjectName("AplicarMejora");
  fila->addWidget(aplicar_);
  columna->addLayout(fila);
  connect(tabla_->Rejilla(), &QTableWidget::itemSelectionChanged, this, &ListaMejoras::AlElegir);
  connect(aplicar_, &QPushButton::clicked, this, &ListaMejoras::Aplicar);
}

void ListaMejoras::Ensenar(const ResultadoMedida& base,
                           const std::vector<ResultadoMedida>* medidas) {
  const bool hay = medidas != nullptr && !medidas->empty();
  ninguna_->setVisible(!hay);
  tabla_->setVisible(hay);
  que_->setVisible(hay);
  aplicar_->setVisible(hay);
  if (!hay) return;
  const Tabla nueva = TablaMejoras(base, PorAhorro(*medidas));
  if (!MismosTextos(nueva, tabla_->Puesta())) {
    tabla_->Rejilla()->clearSelection();
    tabla_->Poner(nueva);
  }
  AlElegir();
}

int ListaMejoras::Elegida() const {
  const auto elegidas = tabla_->Rejilla()->selectionModel()->selectedRows(kColumnaCodigo);
  if (elegidas.isEmpty()) return 0;
  const int codigo = elegidas.front().data().toInt();
  return MedidaDeCodigo(codigo) == nullptr ? 0 : codigo;
}

void ListaMejoras::AlElegir() {
  const int codigo = Elegida();
  aplicar_->setEnabled(false);
  if (codigo == 0) {
    PonerPapel(que_, "nota");
    que_->setText(tr("Elija una medida para ver qué cambiaría en los datos del caso."));
    return;
  }
  const AplicacionMedida aplicacion = DescribirAplicacion(contexto_.Caso(), codigo);
  aplicar_->setEnabled(aplicacion.SePuede());
  PonerPapel(que_, aplicacion.SePuede() ? "" : "nota");
  que_->setText(aplicacion.SePuede() ? Q(aplicacion.cambios)
                                     : tr("No se puede aplicar. ") + Q(aplicacion.motivo) + ".");
}

void ListaMejoras::Aplicar() {
  const int codigo = Elegida();
  if (codigo == 0) return;
  const bool hecho =
      contexto_.Sesion().DuplicarCambiando(S(tr("aplicar la mejora %1").arg(codigo)),
                                           [codigo](Edificio& e) { AplicarMedida(e, codigo); });
  if (hecho) emit contexto_.ProyectoCambiado();
}

}  // namespace novex::gui
