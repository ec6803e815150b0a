#pragma once

#include <memory>
#include <string>

#include "demand/calculo.h"
#include "model/Edificio.h"

namespace novex::pruebas {

/// Cambia los datos generales o la localización de un edificio.
template <class Cambio>
void CambiarGenerales(Edificio& edificio, Cambio cambio) {
  DatosGenerales generales = edificio.GetDatosGenerales();
  cambio(generales);
  edificio.SetDatosGenerales(generales);
}

inline void PonerLugar(Edificio& edificio, const std::string& zona,
                       const std::string& provincia = "Madrid") {
  Localizacion lugar = edificio.GetLocalizacion();
  lugar.ZonaClimatica = zona;
  lugar.Provincia = provincia;
  edificio.SetLocalizacion(lugar);
}

/// Un edificio de 100 m2 en la península.
inline std::unique_ptr<Edificio> EdificioDe100(int perfilUso, const std::string& equiposDefecto) {
  auto edificio = std::make_unique<Edificio>();
  edificio->GetRecinto(0).Suelo_habitable_m2 = 100;
  CambiarGenerales(*edificio, [&](DatosGenerales& g) {
    g.PerfilUso = perfilUso;
    g.Equipos_Defecto = equiposDefecto;
  });
  PonerLugar(*edificio, "D3");
  return edificio;
}

}  // namespace novex::pruebas
