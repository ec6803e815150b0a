#pragma once

#include <memory>
#include <string>

#include "calculation/Entorno.h"
#include "calculation/SimulacionCaso.h"
#include "model/GestorEdifActivo.h"

namespace novex {

/// El cálculo de un caso, calificado, en pasos que el que llama reparte: para calcular en los ratos
/// libres de una ventana. Da lo mismo que `CalcularCaso`.
class CalculoPorTramos {
 public:
  /// \param gestor los casos; han de durar más que esto y no cambiar mientras \param entorno lo
  /// mismo
  CalculoPorTramos(GestorEdifActivo& gestor, std::string nombreCaso, Entorno& entorno);
  ~CalculoPorTramos();

  /// Da un paso: preparar un caso, o simular hasta `horas` horas. \returns false cuando no queda
  /// ninguno \throws lo mismo que `CalcularCaso`
  bool Avanzar(int horas);
  /// Acabado, ¿están los resultados? No, si falta el clima o el volumen de un depósito.
  bool Calculado() const { return fase_ == Fase::Acabado; }
  /// Parte hecha, de 0 a 100.
  int Porcentaje() const;

 private:
  enum class Fase { Preparar, Simular, PrepararReferencia, SimularReferencia, Acabado, Fallido };

  bool Preparar(Edificio& edificio);
  void Acabar();

  GestorEdifActivo& gestor_;
  std::string nombre_;
  Entorno& entorno_;
  Fase fase_ = Fase::Preparar;
  std::unique_ptr<SimulacionCaso> simulacion_;
};

}  // namespace novex
