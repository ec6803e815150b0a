#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "files/xmlParser.h"
#include "model/ListasHuecos.h"

namespace novex {

/// Un vidrio del catálogo.
struct VidrioCatalogo {
  std::string nombre;
  float U = 0;   ///< W/m2K, vertical
  float UH = 0;  ///< W/m2K, horizontal
  float g = 0;   ///< factor solar, tanto por uno
};

/// Un marco del catálogo.
struct MarcoCatalogo {
  std::string nombre;
  float U = 0;   ///< W/m2K, vertical
  float UH = 0;  ///< W/m2K, horizontal
};

/// Una clase de permeabilidad (UNE-EN 12207).
struct ClasePermeabilidad {
  int clase = 0;
  std::string nombre;
  float C100 = 0;  ///< m3/h m2 a 100 Pa
};

/// Vidrios y marcos por su posición en `listaHuecos::kCristales` y `kMarcos`, y clases de
/// permeabilidad.
struct CatalogoVidrios {
  std::array<std::vector<VidrioCatalogo>, listaHuecos::kCristales.size()> vidrios;
  std::array<std::vector<MarcoCatalogo>, listaHuecos::kMarcos.size()> marcos;
  std::vector<ClasePermeabilidad> permeabilidades;

  /// El vidrio de un tipo y una posición; nulo si no existe.
  const VidrioCatalogo* Vidrio(int tipo, int posicion) const;
  /// El marco de un tipo y una posición; nulo si no existe.
  const MarcoCatalogo* Marco(int tipo, int posicion) const;
  /// La clase de una permeabilidad a 100 Pa; vacía si no es de ninguna.
  std::optional<ClasePermeabilidad> ClaseDe(float C100) const;
};

/// Lee el catálogo. Las filas cuyo tipo no es de las listas se saltan.
/// \param raiz elemento `VidriosMarcos` de `VidriosMarcos.xml`
CatalogoVidrios LeerCatalogoVidrios(const XMLNode& raiz);

}  // namespace novex
