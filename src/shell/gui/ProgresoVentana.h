#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>

#include "base/Progreso.h"

namespace novex::gui {

/// Lo que lanza `ProgresoVentana` cuando el usuario pide dejar un cálculo.
struct CalculoCancelado {};

/// Enseña el avance de un cálculo que tarda en un panel que no deja tocar nada más que su botón de
/// cancelar. Uno corto acaba sin que se vea.
class ProgresoVentana : public Progreso {
 public:
  /// \param esperaMs lo que ha de durar el cálculo para que se vea el panel
  explicit ProgresoVentana(int esperaMs = 150);
  ~ProgresoVentana() override;
  /// \throws CalculoCancelado si el usuario lo ha pedido
  void Avanzar(int porcentaje) override;

 private:
  int esperaMs_;
  int hecho_ = 0;  ///< no vuelve atrás cuando empieza el edificio de referencia
  QElapsedTimer desde_;
  QPointer<QProgressDialog> panel_;
};

}  // namespace novex::gui
