#pragma once

#include <QWidget>

namespace novex::gui {

/// La escala de la A a la G con una flecha en la letra de un indicador.
class EtiquetaEnergetica : public QWidget {
  Q_OBJECT

 public:
  explicit EtiquetaEnergetica(const QString& titulo, QWidget* padre = nullptr);
  /// \param letra "A" a "G"; otra cosa no pone flecha \param valor con su unidad
  void Poner(const QString& letra, const QString& valor);
  QSize sizeHint() const override { return {220, 200}; }
  QSize minimumSizeHint() const override { return {170, 150}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  QString titulo_, letra_, valor_;
};

/// Color de una letra de la escala; gris si no es ninguna.
QColor ColorLetra(const QString& letra);
/// Color del texto que se lee sobre el de una letra.
QColor TextoSobreLetra(const QString& letra);

}  // namespace novex::gui
