#include "shell/gui/SelectorOpciones.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

#include "shell/gui/TextoQt.h"

namespace novex::gui {

SelectorOpciones::SelectorOpciones(const char* objeto, std::span<const std::string_view> textos,
                                   QWidget* padre)
    : QWidget(padre), grupo_(new QButtonGroup(this)) {
  setObjectName(objeto);
  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(0, 0, 0, 0);
  fila->setSpacing(12);
  for (std::size_t i = 0; i < textos.size(); ++i) {
    auto* opcion = new QRadioButton(Q(textos[i]).trimmed(), this);
    opcion->setChecked(i == 0);
    grupo_->addButton(opcion, static_cast<int>(i));
    fila->addWidget(opcion);
  }
  connect(grupo_, &QButtonGroup::idToggled, this, [this](int posicion, bool si) {
    if (si) emit Cambiada(posicion);
  });
}

int SelectorOpciones::Elegida() const {
  return grupo_->checkedId();
}

void SelectorOpciones::Elegir(int posicion) {
  if (QAbstractButton* opcion = grupo_->button(posicion)) opcion->setChecked(true);
}

QComboBox* AnadirLista(QHBoxLayout* fila, const QString& rotulo, const char* objeto,
                       std::span<const std::string_view> textos, QWidget* padre) {
  auto* lista = new QComboBox(padre);
  lista->setObjectName(objeto);
  lista->setAccessibleName(rotulo);
  for (const std::string_view texto : textos) lista->addItem(Q(texto));
  if (!rotulo.isEmpty()) fila->addWidget(new QLabel(rotulo, padre));
  fila->addWidget(lista);
  return lista;
}

}  // namespace novex::gui
