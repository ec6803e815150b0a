#include "shell/gui/PestanaMedidas.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "entry/CosteMejora.h"
#include "shell/gui/EtiquetaEnergetica.h"
#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

enum Columna { kMarca, kTexto, kValor, kCoste, kAnos };
constexpr int kAnchoValor = 92;
constexpr int kAnchoCifra = 76;

QLabel* Titulo(const QString& texto, QWidget* padre) {
  auto* titulo = new QLabel(texto, padre);
  titulo->setProperty("papel", "unidad");
  titulo->setAlignment(Qt::AlignRight | Qt::AlignBottom);
  return titulo;
}

// Un valor; una letra, en el color de su tramo.
void PonerValor(QLabel* etiqueta, const std::string& valor) {
  const QString texto = Q(valor);
  if (etiqueta->text() == texto) return;
  etiqueta->setText(texto);
  const bool letra = texto.size() == 1 && texto[0] >= 'A' && texto[0] <= 'G';
  etiqueta->setAlignment(letra ? Qt::AlignCenter : Qt::AlignRight | Qt::AlignVCenter);
  etiqueta->setStyleSheet(letra
                              ? QString("background:%1;color:%2;border-radius:3px;font-weight:600")
                                    .arg(ColorLetra(texto).name(), TextoSobreLetra(texto).name())
                              : QString());
}

}  // namespace

PestanaMedidas::PestanaMedidas(ContextoGui& contexto, Enlaces& enlaces, PaginaMedida pagina,
                               QWidget* padre)
    : QWidget(padre), contexto_(contexto), enlaces_(enlaces), pagina_(pagina) {
  auto* columna = new QVBoxLayout(this);
  auto* arriba = new QHBoxLayout;
  arriba->addWidget(new QLabel(tr("Tipo de datos"), this));
  datos_ = new QComboBox(this);
  datos_->setObjectName("TipoDatos");
  for (const DatoEstudio dato : DatosDePagina(pagina))
    datos_->addItem(Q(NombreDato(dato, pagina)), static_cast<int>(dato));
  connect(datos_, &QComboBox::currentIndexChanged, this, &PestanaMedidas::PonerValores);
  arriba->addWidget(datos_);
  arriba->addStretch(1);
  arriba->addWidget(new QLabel(tr("El caso como está"), this));
  base_ = new QLabel(this);
  base_->setObjectName("LL1");
  base_->setMinimumWidth(kAnchoValor);
  QFont negrita = base_->font();
  negrita.setBold(true);
  base_->setFont(negrita);
  arriba->addWidget(base_);
  columna->addLayout(arriba);

  auto* visor = new QScrollArea(this);
  visor->setWidgetResizable(true);
  visor->setFrameShape(QFrame::NoFrame);
  auto* hoja = new QWidget;
  auto* rejilla = new QGridLayout(hoja);
  rejilla->setContentsMargins(0, 0, 8, 8);
  rejilla->setHorizontalSpacing(10);
  rejilla->setVerticalSpacing(3);
  rejilla->setColumnStretch(kTexto, 1);
  rejilla->setColumnMinimumWidth(kValor, kAnchoValor);
  rejilla->addWidget(Titulo(tr("Valor"), hoja), 0, kValor);
  coste_ = Titulo(tr("Coste, €"), hoja);
  anos_ = Titulo(tr("Años"), hoja);
  rejilla->addWidget(coste_, 0, kCoste);
  rejilla->addWidget(anos_, 0, kAnos);
  for (const MedidaPredefinida& medida : MedidasPredefinidas())
    if (medida.pagina == pagina) AnadirFila(medida, rejilla);
  rejilla->setRowStretch(rejilla->rowCount(), 1);
  visor->setWidget(hoja);
  columna->addWidget(visor, 1);
}

void PestanaMedidas::AnadirFila(const MedidaPredefinida& medida, QGridLayout* rejilla) {
  const int fila = rejilla->rowCount();
  const QString codigo = QString::number(medida.codigo);
  QWidget* hoja = rejilla->parentWidget();
  Fila nueva;
  nueva.codigo = medida.codigo;
  nueva.marca = new QCheckBox(hoja);
  nueva.marca->setObjectName("CBLL" + codigo);
  nueva.marca->setAccessibleName(Q(medida.texto));
  connect(nueva.marca, &QCheckBox::clicked, this,
          [this, n = medida.codigo](bool si) { Marcar(n, si); });
  rejilla->addWidget(nueva.marca, fila, kMarca, Qt::AlignVCenter);
  nueva.texto = new QLabel(Q(medida.texto).replace("  +   ", " + "), hoja);
  nueva.texto->setWordWrap(true);
  nueva.texto->installEventFilter(this);
  rejilla->addWidget(nueva.texto, fila, kTexto, Qt::AlignVCenter);
  nueva.valor = new QLabel(hoja);
  nueva.valor->setObjectName("LL" + codigo);
  rejilla->addWidget(nueva.valor, fila, kValor, Qt::AlignVCenter);
  const auto cifra = [&](const char* prefijo, const QString& que,
                         std::string MedidaEstudio::*campo) {
    OpcionesCampo opciones = OpcionesSinCalculo(que, Q(medida.texto));
    opciones.leer = [n = medida.codigo, campo](const Edificio& e) {
      return TextoCifraMedida(e.GetEstudioModificaciones(), n, campo);
    };
    opciones.poner = [n = medida.codigo, campo](Edificio& e, std::string_view texto,
                                                Mensajes& avisos) {
      PonerCifraMedida(e, n, campo, texto, avisos);
    };
    QLabel* aviso = NuevaNota(hoja, "aviso");
    aviso->hide();
    QLineEdit* editor = enlaces_.Celda(S(prefijo + codigo), opciones, aviso);
    editor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    editor->setFixedWidth(kAnchoCifra);
    rejilla->addWidget(editor, fila, campo == kPrecioMedida ? kCoste : kAnos, Qt::AlignVCenter);
    rejilla->addWidget(aviso, fila + 1, kTexto, 1, kAnos);
    return editor;
  };
  nueva.coste = cifra("EELL", tr("Coste estimado, €"), kPrecioMedida);
  nueva.anos = cifra("EELA", tr("Periodo de amortización, años"), kAmortizacionMedida);
  filas_.push_back(nueva);
}

// Pinchar en el texto es pinchar en su casilla.
bool PestanaMedidas::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::MouseButtonRelease)
    for (const Fila& fila : filas_)
      if (fila.texto == objeto) fila.marca->click();
  return QWidget::eventFilter(objeto, evento);
}

void PestanaMedidas::Marcar(int codigo, bool si) {
  contexto_.Editar(
      si ? tr("señalar una mejora") : tr("quitar una mejora"),
      [&](Edificio& e) { MarcarMedida(e, codigo, si); }, false);
  emit Marcada();
}

void PestanaMedidas::PonerValores() {
  const auto dato = static_cast<DatoEstudio>(datos_->currentData().toInt());
  PonerValor(base_, TextoDatoBase(dato, resultadoBase_));
  for (const Fila& fila : filas_) {
    const auto m = std::find_if(medidas_.begin(), medidas_.end(),
                                [&](const auto& r) { return r.codigo == fila.codigo; });
    PonerValor(fila.valor, TextoDato(dato, m == medidas_.end() ? nullptr : &*m, resultadoBase_));
  }
}

void PestanaMedidas::Ensenar(const ResultadoMedida& base,
                             const std::vector<ResultadoMedida>* medidas) {
  resultadoBase_ = base;
  medidas_ = medidas == nullptr ? std::vector<ResultadoMedida>() : *medidas;
  const EstudioModificaciones& estudio = contexto_.Caso().GetEstudioModificaciones();
  bool alguna = false;
  for (const Fila& fila : filas_) {
    const bool marcada = MedidaMarcada(estudio, fila.codigo);
    alguna = alguna || marcada;
    fila.marca->setChecked(marcada);
    fila.coste->setVisible(marcada);
    fila.anos->setVisible(marcada);
  }
  coste_->setVisible(alguna);
  anos_->setVisible(alguna);
  PonerValores();
}

}  // namespace novex::gui
