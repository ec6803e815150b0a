#include "entry/ProduccionPrevista.h"

#include "base/ErrorFichero.h"
#include "demand/Clima.h"
#include "systems/Fotovoltaica.h"

namespace novex {

std::optional<TablaMensual> ProduccionPrevista::Calcular(const Edificio& edificio) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  std::shared_ptr<const FicheroMet> met;
  try {
    met = ficheros_.Met(
        ficheros_.Espacio().Clima(edificio.GetLocalizacion().ZonaClimatica, g.CodigoPostal));
  } catch (const ErrorFichero&) {
    return std::nullopt;
  }
  if (!met) return std::nullopt;
  if (met != met_) {
    clima_ = std::make_unique<SeriesClima>();
    LeerClima(*met, *clima_);
    RedondearClima(*clima_);
    met_ = met;
  }
  return ProduccionFotovoltaica(g, *clima_);
}

}  // namespace novex
