#pragma once

#include <QWidget>

#include "model/Construccion.h"

namespace novex::gui {

/// La sección de un puente térmico con su aislamiento, según cómo se resuelve.
class DibujoPuente : public QWidget {
  Q_OBJECT

 public:
  /// Por dónde pasa el aislamiento.
  enum class Aislamiento { Ninguno, Interrumpido, Frente, Continuo, Interior };
  explicit DibujoPuente(Puente puente, QWidget* padre = nullptr);
  void Poner(Aislamiento aislamiento);
  QSize sizeHint() const override { return {84, 48}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  Puente puente_;
  Aislamiento aislamiento_ = Aislamiento::Interrumpido;
};

/// El aislamiento que corresponde a cada puente con las soluciones de un registro; con valores
/// dados o por defecto, el del caso desfavorable.
DibujoPuente::Aislamiento AislamientoDe(const Construccion& construccion, Puente puente);

}  // namespace novex::gui
