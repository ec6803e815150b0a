#pragma once

#include <array>
#include <string>

#include "model/TablaEnvolvente.h"

namespace novex {

/// Los siete tipos de puente térmico, en el orden de sus campos.
enum Puente : std::size_t {
  puente_ventanas,
  puente_forjados,
  puente_cubiertas,
  puente_suelo_exterior,
  puente_esquina_saliente,
  puente_pilares,
  puente_suelo_terreno
};
inline constexpr std::size_t kPuentes = 7;

/// Suelo en contacto con el terreno.
struct SueloTerreno {
  float Profundidad_suelo_enterrado_m = 0;
  std::string Tipo_aislamiento_suelo = "SinAislamiento";  ///< o "Continuo", "Periferico"
  float D_Longitud_aislamiento_m = 0;
  float Ra_Resitencia_aislante_m2K_W = 0;
  bool operator==(const SueloTerreno&) const = default;
};

struct Construccion {
  int NPlantasSobreRasante = 0;
  int NPlantasBajoRasante = 0;
  /// Con "Si" las resistencias superficiales de la composición valen como están. Lo es en todo
  /// caso.
  std::string resistenciasSuperficiales = "Si";
  float Espesor_forjado = 0.2F;  ///< m
  float Anchura_pilar = 0.3F;    ///< m
  int Def_Puentes_termicos = 5;  ///< 0 no aislado, 1 aislado, 2 continuo, 4 valores dados, 5 Lider
  int Def_Puentes_termicos_pilares = 0;
  int Existencia_pilares = 0;  ///< 0 con pilares, 1 sin pilares
  int Def_Puentes_termicos_ventanas = 0;
  std::array<float, kPuentes> U_L_Puentes{};  ///< por `Puente`, W/mK
  std::array<float, kPuentes> fi_Puentes{};   ///< factor de temperatura, por `Puente`
  int Clase_de_higrometria = 0;
  std::string Longitud_puentes_termicos_modo;   ///< "Estimados" o "Facilitados"
  std::array<float, kSectores> Long_pilares{};  ///< m
  float Perimetro_forjados = 0;
  float Perimetro_cubiertas = 0;
  float Longitud_esquinas_sal_menos_ent = 0;
  float Perimetro_suelo_ext = 0;
  float Perimetro_huecos = 0;
  float Perimetro_suelo_terreno = 0;
  // Clases de renovación de los espacios no acondicionados: 0 a 4 por 0, 0.5, 1, 5 y 10 renov/h.
  std::array<int, 2> Renovacion_Buhardilla{};
  std::array<int, 2> Renovacion_Otro_Local{};
  std::array<int, 2> Renovacion_Otro_Local_suelo{};
  std::array<int, 2> Orientacion_Otro_Local{};  ///< posición de `Sector`
  std::array<float, 2> Profundidad_muro_enterrado_m{1.0F, 1.0F};
  std::array<SueloTerreno, 3> suelosTerreno{};
  // Tipos que trae el fichero de cada familia.
  int MurosExt = 0;
  int NColorMurosExt = 0;  ///< 0 claro, 1 medio, 2 oscuro
  int MurosOtros = 0;
  int SuelosTerreno = 0;
  int SuelosOtros = 0;
  int CubiertasHz = 0;
  int NColorCubiertasExt = 0;
  int CubiertasIncl = 0;
  int CubiertasOtras = 0;
  bool operator==(const Construccion&) const = default;
};

/// Absortividad solar de la posición de color: 0.6, 0.7 u 0.8; otra posición da 0.6.
constexpr float Absortividad(int color) {
  if (color == 1) return 0.7F;
  return color == 2 ? 0.8F : 0.6F;
}

}  // namespace novex
