#pragma once

#include <QAbstractButton>
#include <QWidget>
#include <array>

#include "model/Perfiles.h"

namespace novex::gui {

/// Los horarios de una familia, en escalones: el de la clase de día elegida, relleno, y los demás
/// que se usan en el año, en línea fina. Sus horas caen debajo de las columnas de la rejilla.
class GraficoHorario : public QWidget {
  Q_OBJECT

 public:
  explicit GraficoHorario(QWidget* padre = nullptr);
  using Tablas = std::array<PerfilDiario, kClasesDia>;

  /// \param usadas las clases que hay en el calendario \param unidad del eje
  void Poner(const Tablas& tablas, const std::array<bool, kClasesDia>& usadas,
             const QString& unidad);
  void Elegir(std::size_t clase);
  /// Desde qué punto y con qué ancho van las 24 horas, en puntos de este dibujo.
  void Alinear(int izquierda, int ancho);
  QSize minimumSizeHint() const override { return {300, 110}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  Tablas tablas_{};
  std::array<bool, kClasesDia> usadas_{};
  QString unidad_;
  std::size_t elegida_ = 0;
  int izquierda_ = 60, ancho_ = 0;
};

/// El botón que elige una familia: su rótulo y el horario de la clase de día elegida en pequeño.
class BotonFamilia : public QAbstractButton {
  Q_OBJECT

 public:
  explicit BotonFamilia(QWidget* padre = nullptr);
  void Poner(const QString& rotulo, const PerfilDiario& perfil, const QColor& color);
  QSize sizeHint() const override { return {118, 58}; }
  QSize minimumSizeHint() const override { return {84, 54}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  PerfilDiario perfil_{};
  QColor color_;
};

}  // namespace novex::gui
