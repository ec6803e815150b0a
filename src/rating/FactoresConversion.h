#pragma once

#include <array>
#include <string_view>

#include "base/Mensajes.h"
#include "demand/ResultadosCaso.h"
#include "demand/VectorEnergetico.h"
#include "files/xmlParser.h"

namespace novex {

/// Filas del fichero de factores, por la posición del hijo.
enum class FilaFactor : std::size_t {
  ElectricidadNacional,  ///< no se usa
  ElectricidadPeninsular,
  ElectricidadExtrapeninsular,  ///< no se usa
  ElectricidadBaleares,
  ElectricidadCanarias,
  ElectricidadCeutayMelilla,
  Gasoleo_C,
  GLP,
  GasNatural,
  Carbon,
  Biomasa_Otros,
  Biomasa_Pellet,
  Energiasolartermica
};

using TablaFactores = std::array<FactorConversion, kFilasFactores>;

/// Lee los coeficientes de paso de `FactoresConversion.xml`: un hijo por fila, por su posición.
/// \param raiz elemento `FACTORES_CONVERSION`
/// \param mensajes recibe los avisos de los números que no se entienden
/// \returns las filas; las que faltan en el fichero quedan a 0
TablaFactores LeerFactores(const XMLNode& raiz, Mensajes& mensajes);

/// Convierte energía final en primaria y en emisiones. Es la única puerta a los coeficientes. La
/// electricidad toma los del sistema eléctrico de la provincia, que se resuelve al construirlo.
class Conversor {
 public:
  /// \param factores filas leídas
  /// \param provincia texto completo de la provincia del edificio
  Conversor(const TablaFactores& factores, std::string_view provincia);

  /// Emisiones de una energía final. \param energia kWh \returns kg de CO2
  float Emisiones(VectorEnergetico vector, float energia) const;
  /// Energía primaria total, renovable y no renovable de una energía final. \returns kWh
  float PrimariaTotal(VectorEnergetico vector, float energia) const;
  float PrimariaRenovable(VectorEnergetico vector, float energia) const;
  float PrimariaNoRenovable(VectorEnergetico vector, float energia) const;
  /// Energía final en la unidad pedida. \param unidad de `UnidadEnergia`; otra da 0
  float Convertir(VectorEnergetico vector, std::size_t unidad, float energia) const;

  /// Las mismas con el nombre del vector, comparado exactamente; un nombre desconocido da 0.
  float Emisiones(std::string_view vector, float energia) const;
  float PrimariaTotal(std::string_view vector, float energia) const;
  float PrimariaRenovable(std::string_view vector, float energia) const;
  float PrimariaNoRenovable(std::string_view vector, float energia) const;
  float Convertir(std::string_view vector, std::size_t unidad, float energia) const;

 private:
  std::array<FactorConversion, kVectores> factor_{};
};

/// Nombre de un vector en el certificado.
std::string_view TextoCertificado(VectorEnergetico vector);
/// Lo mismo por su nombre; vacío si no es un vector.
std::string_view TextoCertificado(std::string_view vector);

}  // namespace novex
