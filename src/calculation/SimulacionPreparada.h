#pragma once

#include <memory>

#include "calculation/SimulacionCaso.h"

namespace novex {

/// La simulación de un caso ya preparado con los cambios de una medida, por tramos. El resultado es
/// el de calcularlo entero. No lee ningún fichero y ni el caso ni lo preparado cambian, así que
/// puede haber varias a la vez.
class SimulacionPreparada {
 public:
  /// \param edificio se copia \param preparado lo que dejó `PrepararCalculo` de ese edificio
  /// \param mensajes ha de durar más que esto
  SimulacionPreparada(const Edificio& edificio, const calculo& preparado, const Forzados& forzados,
                      Mensajes& mensajes);

  /// Antes de avanzar: apunta el año de agua caliente.
  void GrabarACS(AnosACS& anos) { simulacion_.GrabarACS(anos); }
  /// Antes de avanzar: toma el que apuntó otra del mismo caso, que ningún cambio de una medida
  /// toca.
  void RepetirACS(const AnosACS& anos) { simulacion_.RepetirACS(anos); }

  /// Avanza hasta `horas` horas. \returns false cuando ha acabado
  /// \throws ErrorCalculo si un resultado no es finito
  bool Avanzar(int horas);
  /// Parte hecha, de 0 a 100.
  int Porcentaje() const { return simulacion_.Porcentaje(); }

  /// La copia del caso y su cálculo, para calificarlo al acabar.
  Edificio& Caso() { return *edificio_; }
  calculo& Calculo() { return *calculo_; }

 private:
  std::unique_ptr<Edificio> edificio_;
  std::unique_ptr<calculo> calculo_;
  SimulacionCaso simulacion_;
};

}  // namespace novex
