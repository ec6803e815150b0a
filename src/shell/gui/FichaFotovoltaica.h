#pragma once

#include <QWidget>
#include <array>

#include "entry/ProduccionPrevista.h"
#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Barras de doce meses.
class BarrasMeses : public QWidget {
  Q_OBJECT

 public:
  explicit BarrasMeses(QWidget* padre = nullptr);
  /// \param valores de enero a diciembre, kWh
  void Poner(const std::array<float, 12>& valores);
  const std::array<float, 12>& Valores() const { return valores_; }
  QSize sizeHint() const override { return {480, 150}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  std::array<float, 12> valores_{};
};

/// Los tres campos fotovoltaicos del edificio y lo que producen cada mes.
class FichaFotovoltaica : public Pagina {
  Q_OBJECT

 public:
  explicit FichaFotovoltaica(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 private:
  QWidget* CajaCampos();
  QWidget* CajaDatos();
  void PonerProduccion();

  ProduccionPrevista prevista_;
  QLabel* produccion_;
  BarrasMeses* barras_;
};

}  // namespace novex::gui
