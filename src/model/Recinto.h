#pragma once

#include <array>
#include <string>

#include "model/TablaEnvolvente.h"

namespace novex {

using PorSector = std::array<float, kSectores>;

/// La zona térmica con las áreas de su envolvente. Áreas en m2; los nombres en `_m` son longitudes.
/// Cada tabla lleva por índice el tipo constructivo, y dentro el sector donde lo hay.
struct Recinto {
  std::string nombre = "Zona_Térmica_1";
  float Volumen_total_m3 = 300;    ///< volumen acondicionado
  float Suelo_habitable_m2 = 100;  ///< superficie útil

  std::array<float, 3> Cubierta_horiz_sol_m2{};     ///< área de la cubierta horizontal
  std::array<float, 3> Cubierta_horiz_sombra_m2{};  ///< parte de ella en sombra
  std::array<PorSector, 3> Cubierta_incl_m2{};
  std::array<PorSector, 3> Cubierta_incl_Sombra_m2{};
  std::array<float, 2> Cubierta_techo_ventilado_m2{};
  std::array<float, 2> Cubierta_buhardilla_ext_m2{};
  std::array<float, 2> Cubierta_adiabatico_m2{};
  std::array<float, 2> Cubierta_terreno_m2{};

  std::array<PorSector, 5> Muro_ext_m2{};
  std::array<PorSector, 5> Muro_ext_Var_m2{};  ///< parte fuera del primer plano; norte no se usa
  std::array<float, 2> Muro_otro_local_m2{};
  std::array<float, 2> Muro_otro_local_ext_m2{};
  std::array<float, 2> Muro_al_terreno_m2{};
  std::array<float, 2> Muro_adiabatico_m2{};

  std::array<float, 2> Suelo_ext_m2{};
  std::array<float, 2> Suelo_otro_local_m2{};
  std::array<float, 2> Suelo_otro_local_ext_m2{};
  std::array<float, 2> Suelo_vacio_sanitario_m2{};
  std::array<float, 3> Suelo_al_terreno_m2{};
  std::array<float, 2> Suelo_adiabatico_m2{};
  std::array<float, 2> Perimetro_Ext_Vacio_Sanitario_m{};
  std::array<float, 3> Perimetro_Ext_Suelo_Terreno_m{};

  // Elementos que la intervención trata (0 o 1).
  std::array<int, 5> RMuroExtReh{};
  std::array<int, 2> RMuroOLocalReh{};
  std::array<int, 2> RMuroTerrenoReh{};
  std::array<int, 2> RMuroDusoMedianeraReh{};
  std::array<int, 2> RMuroInteriorDUsoReh{};
  std::array<int, 2> RMuroInteriorMUsoReh{};
  std::array<int, 3> RCubiertaExtReh{};
  std::array<int, 3> RCubiertaExtIncReh{};
  std::array<int, 2> RCubiertaOLocalReh{};
  std::array<int, 2> RCubiertaTerrenoReh{};
  std::array<int, 2> RCubiertaDUsoMedianeraReh{};
  std::array<int, 2> RCubiertaInteriorMUsoReh{};
  std::array<int, 2> RCubiertaInteriorDUsoReh{};
  std::array<int, 3> RSueloTerrenoReh{};
  std::array<int, 2> RSueloOLocalReh{};
  std::array<int, 2> RSueloVacioReh{};
  std::array<int, 2> RSueloExteriorReh{};
  std::array<int, 2> RSueloDUsoMedianeraReh{};
  std::array<int, 2> RSueloInteriorMUsoReh{};
  std::array<int, 2> RSueloInteriorDUsoReh{};

  bool operator==(const Recinto&) const = default;
};

}  // namespace novex
