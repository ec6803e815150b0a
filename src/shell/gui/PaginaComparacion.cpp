#include "shell/gui/PaginaComparacion.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>

#include "outputs/ComparacionCasos.h"
#include "shell/gui/EtiquetaEnergetica.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kGraficosPorFila = 3;

}  // namespace

PaginaComparacion::PaginaComparacion(ContextoGui& contexto, QWidget* padre)
    : Pagina(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  fallo_ = new QLabel(this);
  fallo_->setObjectName("fallo");
  fallo_->setProperty("papel", "aviso");
  fallo_->setWordWrap(true);
  columna->addWidget(fallo_);
  auto* fila = new QHBoxLayout;
  resultado_ = AnadirLista(fila, {}, "RGTipoResul", kTextoResultado, this);
  valor_ = new SelectorOpciones("RGTipoValor", kTextoTipoValor, this);
  fila->addWidget(valor_);
  fila->addStretch(1);
  columna->addLayout(fila);
  connect(resultado_, &QComboBox::currentIndexChanged, this, [this] { Ensenar(); });
  connect(valor_, &SelectorOpciones::Cambiada, this, [this] { Ensenar(); });
  auto* visor = new QScrollArea(this);
  visor->setWidgetResizable(true);
  visor->setFrameShape(QFrame::NoFrame);
  auto* hoja = new QWidget(visor);
  graficos_ = new QGridLayout(hoja);
  graficos_->setContentsMargins(0, 0, 8, 8);
  graficos_->setSpacing(12);
  visor->setWidget(hoja);
  columna->addWidget(visor, 1);
}

PaginaComparacion::Vista PaginaComparacion::NuevaVista(int cual) {
  Vista vista{};
  vista.caja = new QWidget(this);
  auto* columna = new QVBoxLayout(vista.caja);
  columna->setContentsMargins(0, 0, 0, 0);
  vista.grafico = new VistaGrafico(vista.caja);
  columna->addWidget(vista.grafico, 1);
  vista.letras = new QLabel(vista.caja);
  vista.letras->setObjectName(QString("letras%1").arg(cual));
  vista.letras->setTextFormat(Qt::RichText);
  vista.letras->setAlignment(Qt::AlignCenter);
  vista.letras->setWordWrap(true);
  columna->addWidget(vista.letras);
  graficos_->addWidget(vista.caja, cual / kGraficosPorFila, cual % kGraficosPorFila);
  return vista;
}

void PaginaComparacion::Refrescar() {
  Pagina::Refrescar();
  const bool calculado = contexto_.Calcular();
  fallo_->setText(contexto_.FalloCalculo());
  fallo_->setVisible(!calculado);
  Ensenar();
}

void PaginaComparacion::Ensenar() {
  const auto graficos = CompararCasos(CasosCalculados(contexto_.Sesion().Gestor()),
                                      static_cast<UnidadEnergia>(resultado_->currentIndex()),
                                      static_cast<TipoValor>(valor_->Elegida()));
  while (vistas_.size() < graficos.size())
    vistas_.push_back(NuevaVista(static_cast<int>(vistas_.size())));
  for (std::size_t i = 0; i < vistas_.size(); ++i) {
    vistas_[i].caja->setVisible(i < graficos.size());
    if (i >= graficos.size()) continue;
    vistas_[i].grafico->Poner(graficos[i].grafico);
    vistas_[i].letras->setText(ConLetrasDeColor(Q(graficos[i].LineaLetras())));
  }
}

}  // namespace novex::gui
