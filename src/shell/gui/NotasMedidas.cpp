#include "shell/gui/NotasMedidas.h"

#include <QVBoxLayout>

#include "entry/TextosLibres.h"
#include "improvements/EstudioMejoras.h"
#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {

NotasMedidas::NotasMedidas(ContextoGui& contexto, QWidget* padre)
    : QWidget(padre), contexto_(contexto) {
  auto* columna = new QVBoxLayout(this);
  ninguna_ = NuevaNota(this);
  ninguna_->setText(
      tr("Señale hasta tres medidas en las otras pestañas: aquí se escribe de cada una lo que el "
         "certificado dirá de ella."));
  columna->addWidget(ninguna_);
  for (std::size_t i = 0; i < notas_.size(); ++i) {
    Nota& nota = notas_[i];
    nota.texto = new QLabel(this);
    nota.texto->setWordWrap(true);
    nota.texto->setProperty("papel", "seccion");
    columna->addWidget(nota.texto);
    nota.memo = new EditorMemo(contexto,
                               {tr("nota de la mejora %1").arg(i + 1), kLineasNota,
                                [this, i](const Edificio& e) {
                                  return NotaMedida(e.GetEstudioModificaciones(), Codigo(i));
                                },
                                [this, i](Edificio& e, std::string_view texto, Mensajes& avisos) {
                                  EstudioModificaciones estudio = e.GetEstudioModificaciones();
                                  GuardarNotaMedida(estudio, Codigo(i), texto, avisos);
                                  e.SetEstudioModificaciones(std::move(estudio));
                                }},
                               this);
    nota.memo->Texto()->setObjectName("MemoMejora" + QString::number(i + 1));
    columna->addWidget(nota.memo);
  }
  columna->addStretch(1);
}

int NotasMedidas::Codigo(std::size_t cual) const {
  const auto codigos = CodigosMarcados(contexto_.Caso().GetEstudioModificaciones());
  return cual < codigos.size() ? codigos[cual] : 0;
}

void NotasMedidas::Refrescar() {
  ninguna_->setVisible(Codigo(0) == 0);
  for (std::size_t i = 0; i < notas_.size(); ++i) {
    const MedidaPredefinida* medida = MedidaDeCodigo(Codigo(i));
    notas_[i].texto->setVisible(medida != nullptr);
    notas_[i].memo->setVisible(medida != nullptr);
    if (medida == nullptr) continue;
    notas_[i].texto->setText(Q(medida->texto).replace("  +   ", " + "));
    notas_[i].memo->Refrescar();
  }
}

}  // namespace novex::gui
