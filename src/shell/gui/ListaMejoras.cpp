#include "shell/gui/ListaMejoras.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "entry/CosteMejora.h"
#include "improvements/AplicarMedida.h"
#include "outputs/TablaMejoras.h"
#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kMarca = static_cast<int>(kColumnaMarcaMejora);
constexpr int kCodigo = static_cast<int>(kColumnaCodigoMejora);
constexpr int kCoste = static_cast<int>(kColumnaCosteMejora);
constexpr int kAnos = static_cast<int>(kColumnaAnosMejora);
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
      tr("Calcule las mejoras: aquí se ordenan por lo que ahorran, y cualquiera se puede aplicar a "
         "una copia del caso."));
  columna->addWidget(ninguna_);
  orden_ = CajaOrden();
  columna->addWidget(orden_);
  tabla_ = new VistaTabla(this);
  tabla_->Estirar(true);
  tabla_->Rejilla()->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabla_->Rejilla()->setSelectionMode(QAbstractItemView::SingleSelection);
  tabla_->Rejilla()->setEditTriggers(QAbstractItemView::DoubleClicked |
                                     QAbstractItemView::EditKeyPressed |
                                     QAbstractItemView::AnyKeyPressed);
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
  // Los textos de las medidas se parten según el ancho que queda, que es firme tras el aviso.
  connect(
      tabla_->Rejilla()->horizontalHeader(), &QHeaderView::sectionResized, this,
      [this](int c) {
        if (c == tabla_->Rejilla()->columnCount() - 1) tabla_->Rejilla()->resizeRowsToContents();
      },
      Qt::QueuedConnection);
  connect(tabla_->Rejilla(), &QTableWidget::itemChanged, this, &ListaMejoras::AlCambiar);
  connect(aplicar_, &QPushButton::clicked, this, &ListaMejoras::Aplicar);
}

QWidget* ListaMejoras::CajaOrden() {
  auto* caja = new QWidget(this);
  auto* fila = new QHBoxLayout(caja);
  fila->setContentsMargins(0, 0, 0, 0);
  fila->addWidget(new QLabel(tr("Ordenar por"), caja));
  criterio_ = new QComboBox(caja);
  criterio_->setObjectName("OrdenarPor");
  for (const std::string_view texto : kTextoCriterioMejoras) criterio_->addItem(Q(texto));
  connect(criterio_, &QComboBox::currentIndexChanged, this, &ListaMejoras::Ordenar);
  fila->addWidget(criterio_);
  fila->addStretch(1);
  return caja;
}

void ListaMejoras::Ensenar(const ResultadoMedida& base,
                           const std::vector<ResultadoMedida>* medidas) {
  const bool hay = medidas != nullptr && !medidas->empty();
  ninguna_->setVisible(!hay);
  for (QWidget* w : {orden_, static_cast<QWidget*>(tabla_), static_cast<QWidget*>(que_),
                     static_cast<QWidget*>(aplicar_)})
    w->setVisible(hay);
  base_ = base;
  medidas_ = hay ? *medidas : std::vector<ResultadoMedida>();
  if (hay) Ordenar();
}

void ListaMejoras::Ordenar() {
  PonerTabla(false);
}

// \param entera también si los textos son los mismos, porque se ha tecleado sobre ellos
void ListaMejoras::PonerTabla(bool entera) {
  const EstudioModificaciones& estudio = contexto_.Caso().GetEstudioModificaciones();
  const auto criterio = static_cast<CriterioMejoras>(criterio_->currentIndex());
  Tabla nueva = TablaMejoras(base_, OrdenarMejoras(medidas_, criterio, estudio), estudio);
  // Las señaladas llevan aquí su casilla.
  for (auto& fila : nueva.filas)
    fila.back().texto = S(Q(fila.back().texto).replace("  +   ", " + "));
  nueva.notas = {S(tr("Doble clic en el coste o los años de una señalada para cambiarlos"))};
  if (entera || !MismosTextos(nueva, tabla_->Puesta())) {
    const int elegida = Elegida();
    const QSignalBlocker callada(tabla_->Rejilla());
    tabla_->Rejilla()->clearSelection();
    tabla_->Poner(nueva);
    tabla_->Rejilla()->horizontalHeader()->setSectionResizeMode(
        tabla_->Rejilla()->columnCount() - 1, QHeaderView::Stretch);
    tabla_->Rejilla()->resizeRowsToContents();
    PonerCasillas();
    for (int f = 0; elegida != 0 && f < tabla_->Rejilla()->rowCount(); ++f)
      if (CodigoDe(f) == elegida) tabla_->Rejilla()->selectRow(f);
  }
  AlElegir();
}

// La marca se pulsa y las cifras de las marcadas se teclean; lo demás solo se lee.
void ListaMejoras::PonerCasillas() {
  const EstudioModificaciones& estudio = contexto_.Caso().GetEstudioModificaciones();
  QTableWidget* rejilla = tabla_->Rejilla();
  for (int f = 0; f < rejilla->rowCount(); ++f) {
    const int codigo = CodigoDe(f);
    const bool marcada = codigo != 0 && MedidaMarcada(estudio, codigo);
    for (int c = 0; c < rejilla->columnCount(); ++c) {
      const bool cifra = c == kCoste || c == kAnos;
      QTableWidgetItem* casilla = rejilla->item(f, c);
      casilla->setFlags(casilla->flags().setFlag(Qt::ItemIsEditable, marcada && cifra));
      if (cifra && marcada) casilla->setToolTip(tr("Doble clic para cambiarlo"));
    }
    if (codigo == 0) continue;
    QTableWidgetItem* marca = rejilla->item(f, kMarca);
    marca->setText({});
    marca->setFlags(marca->flags() | Qt::ItemIsUserCheckable);
    marca->setCheckState(marcada ? Qt::Checked : Qt::Unchecked);
    marca->setToolTip(tr("Señalarla: sale en el certificado"));
  }
}

// La edición vuelve a hacer la tabla: se espera a que la casilla acabe de cambiar.
void ListaMejoras::AlCambiar(QTableWidgetItem* casilla) {
  const int codigo = CodigoDe(casilla->row());
  const int columna = casilla->column();
  if (codigo == 0) return;
  if (columna == kMarca)
    QMetaObject::invokeMethod(
        this,
        [this, codigo, si = casilla->checkState() == Qt::Checked] { CambiarMarca(codigo, si); },
        Qt::QueuedConnection);
  else if (columna == kCoste || columna == kAnos)
    QMetaObject::invokeMethod(
        this,
        [this, codigo, columna, texto = S(casilla->text())] {
          CambiarCifra(codigo, columna == kCoste, texto);
        },
        Qt::QueuedConnection);
}

void ListaMejoras::CambiarMarca(int codigo, bool si) {
  contexto_.Editar(
      si ? tr("señalar una mejora") : tr("quitar una mejora"),
      [&](Edificio& e) { MarcarMedida(e, codigo, si); }, false);
  emit Marcada();
}

void ListaMejoras::CambiarCifra(int codigo, bool coste, const std::string& texto) {
  RegistroMensajes avisos;
  contexto_.Editar(
      coste ? tr("Coste estimado, €") : tr("Periodo de amortización, años"),
      [&](Edificio& e) {
        PonerCifraMedida(e, codigo, coste ? kPrecioMedida : kAmortizacionMedida, texto, avisos);
      },
      false);
  PonerTabla(true);
  for (const Mensaje& aviso : avisos.recibidos)
    contexto_.Sesion().Avisos().Avisar(aviso.titulo, aviso.texto);
}

int ListaMejoras::CodigoDe(int fila) const {
  const QTableWidgetItem* casilla = tabla_->Rejilla()->item(fila, kCodigo);
  const int codigo = casilla == nullptr ? 0 : casilla->text().toInt();
  return MedidaDeCodigo(codigo) == nullptr ? 0 : codigo;
}

int ListaMejoras::Elegida() const {
  const auto elegidas = tabla_->Rejilla()->selectionModel()->selectedRows(kCodigo);
  return elegidas.isEmpty() ? 0 : CodigoDe(elegidas.front().row());
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
