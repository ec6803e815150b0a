#pragma once

namespace novex {

/// Puerto del avance de un trabajo largo. Sin nadie a quien contárselo sirve la clase misma.
class Progreso {
 public:
  virtual ~Progreso() = default;
  /// \param porcentaje parte hecha, de 0 a 100
  virtual void Avanzar(int porcentaje) { static_cast<void>(porcentaje); }
};

}  // namespace novex
