#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

#include "files/xmlParser.h"
#include "model/TablaEnvolvente.h"

namespace novex {

/// Filas del documento de transmitancias máximas, desde 0.
inline constexpr std::size_t kFilasMaximo = 13;

/// Ficheros de límites de la carpeta de datos. Uno que falta queda vacío y sus límites son 0.
struct DocumentosHE {
  XMLNode klimite, radJulio, valorMaximoU, valorMaximo, accesorios;
};
/// Lee los ficheros de límites. \throws ErrorFichero si uno que está no se entiende
DocumentosHE LeerDocumentosHE(const std::filesystem::path& datos);

/// Límites de transmitancia global y de permeabilidad de una zona.
struct LimitesZonaHE1 {
  float Compacidad1 = 0, Compacidad4 = 0;    ///< K límite a esas compacidades, W/m2K
  float Compacidad1R = 0, Compacidad4R = 0;  ///< en intervenciones
  float VA2 = 0, VA4 = 0;                    ///< n50 límite a compacidad 2 y 4, 1/h
  bool hay = false;                          ///< ¿trae el fichero la zona?
};
LimitesZonaHE1 LeerKlimite(const XMLNode& raiz, std::string_view zona);

/// Irradiación acumulada de julio de una zona, kWh/m2.
struct RadiacionJulio {
  std::array<float, kSectores> sector{};
  float horizontal = 0;
  bool hay = false;
};
RadiacionJulio LeerRadJulio(const XMLNode& raiz, std::string_view zona);

/// Límites de las trece filas de una zona, en su orden: W/m2K, y la última m3/h m2.
struct LimitesMaximos {
  std::array<float, kFilasMaximo> limite{};
  bool hay = false;
};
LimitesMaximos LeerValorMaximoU(const XMLNode& raiz, std::string_view zona);

/// Rótulos de las trece filas; los que faltan en el documento, los propios.
std::array<std::string, kFilasMaximo> LeerRotulosMaximo(const XMLNode& raiz);

/// Factor de una protección móvil (0 sin ella) para un tipo de vidrio; 0 si el fichero no la trae.
/// Los tipos desde el tercero toman la columna de doble bajo emisivo.
float FactorAccesorio(const XMLNode& raiz, int sombra, int vidrio);

}  // namespace novex
