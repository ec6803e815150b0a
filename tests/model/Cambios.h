#pragma once

#include <string>
#include <utility>

#include "model/Edificio.h"

namespace novex::pruebas {

/// Cambian un registro de un edificio: lo sacan, lo cambian y lo guardan.
template <class Cambio>
void CambiarGenerales(Edificio& edificio, Cambio cambio) {
  DatosGenerales registro = edificio.GetDatosGenerales();
  cambio(registro);
  edificio.SetDatosGenerales(std::move(registro));
}
template <class Cambio>
void CambiarConstruccion(Edificio& edificio, Cambio cambio) {
  Construccion registro = edificio.GetConstruccion();
  cambio(registro);
  edificio.SetConstruccion(std::move(registro));
}
template <class Cambio>
void CambiarLugar(Edificio& edificio, Cambio cambio) {
  Localizacion registro = edificio.GetLocalizacion();
  cambio(registro);
  edificio.SetLocalizacion(std::move(registro));
}

inline void PonerLugar(Edificio& edificio, const std::string& zona,
                       const std::string& provincia = "Madrid") {
  CambiarLugar(edificio, [&](Localizacion& lugar) {
    lugar.ZonaClimatica = zona;
    lugar.Provincia = provincia;
  });
}

/// Una capa con lo que se compara y se muestra de ella.
inline material Capa(const std::string& nombre, float espesor, float conductividad,
                     float resistencia = 0) {
  material m;
  m.Material = nombre;
  m.Espesor = espesor;
  m.Conductividad = conductividad;
  m.Resistencia_termica = resistencia;
  return m;
}

}  // namespace novex::pruebas
