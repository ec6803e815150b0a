#pragma once

#include <string>
#include <vector>

namespace novex {

/// Lo que el usuario anota de una medida del estudio de mejoras.
struct MedidaEstudio {
  int codigo = 0;
  bool marca = false;
  std::string precio;
  std::string amortizacion;
  std::vector<std::string> notas;
  bool operator==(const MedidaEstudio&) const = default;
};

/// El estudio de mejoras de un caso: solo las medidas con contenido, por código.
struct EstudioModificaciones {
  std::vector<MedidaEstudio> medidas;
  bool operator==(const EstudioModificaciones&) const = default;
};

}  // namespace novex
