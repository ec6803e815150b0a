#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "outputs/CasoCalculado.h"

namespace novex {

/// Nombre corto de un servicio en los documentos: "ACS", "CAL", "REF", "VEN" o "ILU".
std::string_view SiglaServicio(std::size_t servicio);

/// Un generador que da un servicio, con lo que ha hecho en el año. Son valores: cada salida les da
/// su forma.
struct GeneradorServicio {
  Servicio servicio = kACS;
  std::size_t sistema = 0;  ///< posición del sistema en el caso, desde 0
  std::size_t bloque = 0;   ///< posición entre los bloques del caso, desde 0: la de sus sumas
  int generador = 1;        ///< 1, o 2 para la caldera que acompaña a una bomba de calor
  std::string unidad;       ///< nombre del sistema, como lo ha escrito el usuario
  std::string clase;        ///< "Caldera", "BC aire-agua"...
  int equipos = 1;
  float potencia = 0;            ///< nominal de todos los equipos, kW; 0 si no se define
  float rendimientoNominal = 0;  ///< razón; 0 si no se puede saber
  /// Energía dada entre consumida en el año, razón; vacío si no ha dado o consumido nada.
  std::optional<float> rendimientoEstacional;
  float dado = 0, consumido = 0;  ///< kWh/año en el servicio; el frío dado es el sensible
  std::optional<VectorEnergetico> vector;  ///< vacío si su combustible no es ninguno
  bool sustitucion = false;                ///< es el equipo por defecto
  bool bombaDeCalor = false;               ///< de compresión, en calor o en frío

  /// "2x) Caldera"; la del equipo por defecto es su clase.
  std::string Etiqueta() const;
};

/// Los generadores de un servicio en el orden de los sistemas; una bomba de calor con caldera son
/// dos. El último es el equipo por defecto, si ha tenido que suplir a los sistemas.
/// \param caso ya plegado \param servicio uno de los que tienen demanda
std::vector<GeneradorServicio> GeneradoresDeServicio(const CasoCalculado& caso, Servicio servicio);

/// Suma de las potencias nominales de los sistemas de un servicio, kW; el equipo por defecto no
/// tiene.
float PotenciaTotal(const std::vector<GeneradorServicio>& generadores);

}  // namespace novex
