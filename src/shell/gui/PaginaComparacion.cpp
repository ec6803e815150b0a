#include "shell/gui/PaginaComparacion.h"

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
  graficos_ = new RejillaGraficos(kGraficosPorFila, "letras", Qt::RichText);
  visor->setWidget(graficos_);
  columna->addWidget(visor, 1);
}

void PaginaComparacion::Refrescar() {
  Pagina::Refrescar();
  const bool calculado = contexto_.Calcular();
  fallo_->setText(contexto_.FalloCalculo());
  fallo_->setVisible(!calculado);
  Ensenar();
}

void PaginaComparacion::Ensenar() {
  std::vector<GraficoRotulado> graficos;
  for (auto& g : CompararCasos(CasosCalculados(contexto_.Sesion().Gestor()),
                               static_cast<UnidadEnergia>(resultado_->currentIndex()),
                               static_cast<TipoValor>(valor_->Elegida())))
    graficos.push_back({std::move(g.grafico), ConLetrasDeColor(Q(g.LineaLetras()))});
  graficos_->Poner(graficos);
}

}  // namespace novex::gui
