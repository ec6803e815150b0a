#pragma once

#include <QWidget>
#include <span>
#include <string_view>

class QButtonGroup;
class QComboBox;
class QHBoxLayout;

namespace novex::gui {

/// Pocas opciones excluyentes en una línea, con la primera elegida.
class SelectorOpciones : public QWidget {
  Q_OBJECT

 public:
  /// \param objeto el nombre del control
  SelectorOpciones(const char* objeto, std::span<const std::string_view> textos,
                   QWidget* padre = nullptr);
  /// La posición elegida.
  int Elegida() const;
  void Elegir(int posicion);

 signals:
  void Cambiada(int posicion);

 private:
  QButtonGroup* grupo_;
};

/// Añade a una línea de controles una lista con su rótulo. \param objeto el nombre del control
QComboBox* AnadirLista(QHBoxLayout* fila, const QString& rotulo, const char* objeto,
                       std::span<const std::string_view> textos, QWidget* padre);

}  // namespace novex::gui
