#pragma once

#include <QStringList>
#include <QWidget>

namespace novex::gui {

/// La escala de la A a la G con una flecha en la letra de un indicador. Con los textos de sus
/// bandas es una fila de la hoja de calificación: su nombre y su valor encima, los umbrales en las
/// barras y la letra a la altura de la suya.
class EtiquetaEnergetica : public QWidget {
  Q_OBJECT

 public:
  explicit EtiquetaEnergetica(const QString& titulo, QWidget* padre = nullptr);
  /// \param letra "A" a "G"; otra cosa no pone flecha \param valor con su unidad
  void Poner(const QString& letra, const QString& valor);
  /// Con sus umbrales. \param escala un texto por banda, las que no hay en blanco; o uno solo, si
  /// no hay escala en vigor \param aviso va bajo el título; puede ser vacío
  void Poner(const QString& letra, const QString& valor, const QStringList& escala,
             const QString& aviso);
  void PonerTitulo(const QString& titulo) { titulo_ = titulo; }
  const QString& Titulo() const { return titulo_; }
  const QString& Letra() const { return letra_; }
  const QString& Valor() const { return valor_; }
  const QStringList& Escala() const { return escala_; }
  const QString& Aviso() const { return aviso_; }
  QSize sizeHint() const override { return {220, 200}; }
  QSize minimumSizeHint() const override { return {170, 150}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  double PintarCabecera(QPainter& pintor) const;
  void PintarSencilla(QPainter& pintor, double arriba) const;
  void PintarConUmbrales(QPainter& pintor, double arriba) const;

  QString titulo_, letra_, valor_, aviso_;
  QStringList escala_;
};

/// Color de una letra de la escala; gris si no es ninguna.
QColor ColorLetra(const QString& letra);
/// Color del texto que se lee sobre el de una letra.
QColor TextoSobreLetra(const QString& letra);
/// Un texto con sus letras de calificación sueltas en su color, como texto enriquecido.
QString ConLetrasDeColor(const QString& texto);

}  // namespace novex::gui
