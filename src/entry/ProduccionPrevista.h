#pragma once

#include <memory>
#include <optional>

#include "calculation/Entorno.h"
#include "demand/Series.h"
#include "model/Edificio.h"

namespace novex {

/// Lo que producirán los campos fotovoltaicos de un caso, sin calcularlo: solo hace falta el clima,
/// que se prepara una vez mientras no sea otro.
class ProduccionPrevista {
 public:
  explicit ProduccionPrevista(FicherosPrograma& ficheros) : ficheros_(ficheros) {}
  /// Producción de cada mes y, en la posición 0, del año, kWh; la misma que da el cálculo. Nada si
  /// falta el fichero de clima o no se puede leer.
  std::optional<TablaMensual> Calcular(const Edificio& edificio);

 private:
  FicherosPrograma& ficheros_;
  std::shared_ptr<const FicheroMet> met_;
  std::unique_ptr<SeriesClima> clima_;
};

}  // namespace novex
