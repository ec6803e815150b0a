#pragma once

#include <array>
#include <string>

namespace novex {

/// Un tipo de vivienda, para el caudal de ventilación de CTE DB-HS3.
struct TipologiaVivienda {
  int N_viviendas = 0;
  int N_dormitorios_dobles = 0;
  int N_salas_estar_comedor = 0;
  int N_cuartos_de_banyo = 0;
  bool operator==(const TipologiaVivienda&) const = default;
};

inline constexpr std::size_t kTipologias = 6;

struct Ventilacion {
  std::array<TipologiaVivienda, kTipologias> tipologias{{{1, 1, 0, 1}, {}, {}, {}, {}, {}}};
  float nrenovventilacion = 1;  ///< renovaciones por hora de proyecto
  std::string Calcular_Renov_h_segun_HS3 = "No";

  /// Suma de viviendas de todos los tipos.
  int NumeroViviendas() const {
    int n = 0;
    for (const auto& t : tipologias) n += t.N_viviendas;
    return n;
  }
  bool operator==(const Ventilacion&) const = default;
};

}  // namespace novex
