#include "entry/VaporCerramiento.h"

#include "demand/Clima.h"
#include "reference/CatalogoComposiciones.h"

namespace novex {

std::optional<VaporCerramiento> VaporDeCapas(const Edificio& edificio, const XMLNode& capitales,
                                             std::size_t ranura, std::span<const Capa> capas) {
  if (capas.empty()) return std::nullopt;
  Edificio solo;
  ElegirComposicion(solo, ranura, {}, capas);
  solo.SetConstruccion(edificio.GetConstruccion());
  DatosClimaticosSitio sitio;
  RegistroMensajes callados;
  AnotarDatosCapital(capitales, edificio.GetLocalizacion(), sitio, callados);
  if (sitio.Pvproyecto <= 0.0F) return std::nullopt;
  solo.SetDatosClimaticosSitio(sitio);
  const CondicionesCondensacion condiciones = CondicionesDeCondensacion(solo);
  return VaporCerramiento{condiciones,
                          ComprobarCondensacion(ranura, solo.GetComposicion(ranura), condiciones)};
}

}  // namespace novex
