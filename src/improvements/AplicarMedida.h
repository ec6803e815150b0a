#pragma once

#include <string>

#include "model/Edificio.h"

namespace novex {

/// Lo que haría una medida predefinida en los datos de un caso.
struct AplicacionMedida {
  std::string cambios;  ///< qué datos cambia
  std::string motivo;   ///< por qué no se puede aplicar; vacío si se puede
  bool SePuede() const { return motivo.empty(); }
};

/// Qué cambia una medida en los datos de un caso, o por qué no puede. \throws std::out_of_range si
/// el código no es de ninguna
AplicacionMedida DescribirAplicacion(const Edificio& edificio, int codigo);

/// Pone en los datos de un caso lo que la medida impone al cálculo: el caso calculado da después la
/// demanda de la medida. Le da además su texto por nombre de mejora. Una que no se puede aplicar no
/// cambia nada. \throws std::out_of_range si el código no es de ninguna
void AplicarMedida(Edificio& edificio, int codigo);

}  // namespace novex
