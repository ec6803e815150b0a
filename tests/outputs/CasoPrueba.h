#pragma once

#include <memory>

#include "outputs/CasoCalculado.h"

namespace novex::pruebas {

/// Un caso con su edificio y su cálculo, para llenarlo a mano.
struct CasoDePrueba {
  std::unique_ptr<Edificio> edificio = std::make_unique<Edificio>();
  std::unique_ptr<calculo> resultado = std::make_unique<calculo>();

  CasoCalculado Mostrar() const { return {"Viejo", edificio.get(), resultado.get(), {}}; }
  ResultadosCaso& Resultados() { return resultado->resultados; }
  void Poner(int perfilUso, const std::string& zona, const std::string& modo) {
    DatosGenerales generales = edificio->GetDatosGenerales();
    generales.PerfilUso = perfilUso;
    generales.Modo_trabajo = modo;
    edificio->SetDatosGenerales(generales);
    Localizacion lugar = edificio->GetLocalizacion();
    lugar.ZonaClimatica = zona;
    edificio->SetLocalizacion(lugar);
  }
};

}  // namespace novex::pruebas
