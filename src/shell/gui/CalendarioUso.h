#pragma once

#include <QWidget>
#include <set>

#include "entry/Horarios.h"

namespace novex::gui {

/// El año en doce filas de días, cada uno del color de su clase. Se pinta con la clase elegida
/// pulsando, arrastrando o con las teclas; un mes entero, en su nombre.
class CalendarioUso : public QWidget {
  Q_OBJECT

 public:
  explicit CalendarioUso(QWidget* padre = nullptr);
  /// \param verano meses que cuentan como verano, de 1 a 12
  void Poner(const std::array<int, 366>& calendario, const std::array<bool, 13>& verano);
  /// La clase con que se pinta.
  void PonerPincel(int codigo) { pincel_ = codigo; }
  /// Alto de una fila: las listas de al lado se alinean con ellas.
  static constexpr int kAltoFila = 26;
  static constexpr int kAltoCabecera = 20;
  /// Dónde está el centro de un día, para las pruebas y para señalarlo.
  QPoint Centro(int mes, int dia) const;
  QSize sizeHint() const override { return {760, kAltoCabecera + 12 * kAltoFila}; }
  QSize minimumSizeHint() const override { return {520, kAltoCabecera + 12 * kAltoFila}; }

 signals:
  void Pintado(const std::vector<std::size_t>& posiciones);
  /// Se ha tecleado la cifra de una clase.
  void PincelPedido(int codigo);

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  bool event(QEvent* evento) override;

 private:
  struct Dia {
    int mes = 0, dia = 0;  ///< día 0: el mes entero
    bool operator==(const Dia&) const = default;
  };
  QRectF Celda(int mes, int dia) const;
  Dia DiaEn(const QPoint& punto) const;
  void Trazar(const Dia& desde, const Dia& hasta);
  void Acabar();
  void PintarDia(QPainter& p, int mes, int dia) const;

  std::array<int, 366> calendario_{};
  std::array<bool, 13> verano_{};
  int pincel_ = 1;
  bool pintando_ = false;
  Dia ultimo_;
  Dia cursor_{1, 1};
  std::set<std::size_t> trazo_;
};

}  // namespace novex::gui
