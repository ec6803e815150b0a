#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace novex {

inline constexpr std::size_t kRanuras = 52;

/// Las 52 posiciones de composición de la envolvente, en su orden de almacenamiento. El nombre de
/// cada una es su clave en el fichero de proyecto.
namespace ranura {
enum Ranura : std::size_t {
  MuroExt1,
  MuroExt2,
  MuroExt3,
  MuroExt4,
  MuroExt5,  // muro exterior
  MuroTerr1,
  MuroTerr2,  // muro al terreno
  MuroOtro1,
  MuroOtro5,  // muro adiabático (medianera)
  MuroOtro2,
  MuroOtro6,  // muro interior del mismo uso
  MuroOtro3,
  MuroExt6,
  MuroOtro7,
  MuroExt7,  // a local no acondicionado y exterior de este
  TechoExt1,
  TechoExt2,
  TechoExt3,  // cubierta horizontal
  TechoInc1,
  TechoInc2,
  TechoInc3,  // cubierta inclinada
  TechoTerr1,
  TechoTerr2,  // cubierta al terreno
  TechoOtro1,
  TechoOtro2,  // cubierta adiabática
  TechoInt1,
  TechoInt2,  // partición superior del mismo uso
  TechoVent1,
  TechoVent2,
  TechoVent3,
  TechoVent4,  // bajo buhardilla y exterior de esta
  SueloTerr1,
  SueloTerr2,
  SueloTerr3,  // suelo al terreno
  SueloExt1,
  SueloExt2,  // suelo al exterior
  SueloVent1,
  MuroExt8,
  SueloVent3,
  MuroExt9,  // sobre local no acondicionado y su exterior
  SueloOtro1,
  SueloOtro3,  // sobre vacío sanitario
  SueloOtro2,
  SueloOtro4,  // suelo adiabático
  SueloInt1,
  SueloInt2,  // partición inferior del mismo uso
  MuroOtro8,
  MuroOtro9,  // muro interior a otro uso
  TechoInt3,
  TechoInt4,  // partición superior a otro uso
  SueloInt3,
  SueloInt4  // partición inferior a otro uso
};
}  // namespace ranura

/// Claves de la envolvente en el orden de `ranura`.
class TablaEnvolvente {
 public:
  /// Clave de una posición. \throws std::out_of_range si `indice` no está entre 0 y 51.
  static std::string_view Clave(std::size_t indice);
  /// Posición de una clave, comparada exactamente; vacío si no es ninguna.
  static std::optional<std::size_t> Indice(std::string_view clave);
};

/// Sectores de orientación de los elementos verticales e inclinados, en el orden de los ficheros.
enum Sector : std::size_t { norte, oeste, sur_oeste, sur, sur_este, este };
inline constexpr std::size_t kSectores = 6;
/// Columna de los huecos horizontales; la 6 no se usa.
inline constexpr std::size_t kColumnaHorizontal = 7;
inline constexpr std::size_t kColumnasHuecos = 8;

inline constexpr std::array<std::string_view, kSectores> kNombreSector = {
    "norte", "oeste", "sur_oeste", "sur", "sur_este", "este"};

}  // namespace novex
