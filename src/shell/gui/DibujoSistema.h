#pragma once

#include <QWidget>

#include "model/SistemaResidencial.h"
#include "systems/ClasesSistema.h"

namespace novex::gui {

/// Dibujo de una instalación: generador, intercambiador, depósito, uso, captadores y emisores, con
/// lo que los une.
class DibujoSistema : public QWidget {
  Q_OBJECT

 public:
  explicit DibujoSistema(QWidget* padre = nullptr);
  void Poner(const SistemaResidencial& sistema, const Instalaciones& bloque);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {320, sizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  enum class Forma { Caja, Deposito, Intercambiador, Captador, Grifo, Emisor };
  struct Pieza {
    Forma forma = Forma::Caja;
    int columna = 0, fila = 0;
    QString texto, cifra;
    bool serpentin = false, serpentinSolar = false, resistencia = false;
  };
  struct Tubo {
    std::size_t de = 0, a = 0;
    bool solar = false;
  };

  std::size_t Anadir(Pieza pieza);
  void PonerACS(const Instalaciones& bloque, std::size_t generador);
  void PonerSolar(const Instalaciones& bloque, std::size_t entrada);
  QRectF Marco(const Pieza& pieza) const;
  /// Lo que una figura deja libre a los lados de su marco.
  double Hueco(std::size_t pieza) const;
  void Pintar(QPainter& p, const Pieza& pieza) const;
  void PintarTubo(QPainter& p, const Tubo& tubo) const;

  std::vector<Pieza> piezas_;
  std::vector<Tubo> tubos_;
  std::vector<int> columnas_;  ///< las que tienen piezas, en orden
  int filas_ = 1;
  TipoSistema tipo_ = TipoSistema::Ninguno;
};

}  // namespace novex::gui
