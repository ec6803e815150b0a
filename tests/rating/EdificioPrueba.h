#pragma once

#include <memory>
#include <string>

#include "demand/calculo.h"
#include "model/Cambios.h"

namespace novex::pruebas {

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
