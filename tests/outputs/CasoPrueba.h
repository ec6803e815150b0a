#pragma once

#include <memory>

#include "outputs/CasoCalculado.h"
#include "rating/Escala.h"

namespace novex::pruebas {

/// Un caso con su edificio y su cálculo, para llenarlo a mano.
struct CasoDePrueba {
  std::unique_ptr<Edificio> edificio = std::make_unique<Edificio>();
  std::unique_ptr<calculo> resultado = std::make_unique<calculo>();

  CasoCalculado Mostrar() const { return {"Viejo", edificio.get(), resultado.get(), {}}; }
  /// Lo mismo, con las letras de sus valores y umbrales.
  CasoCalculado MostrarCalificado() {
    for (std::size_t i = 0; i < kIndicadores; ++i) {
      const auto indicador = static_cast<Indicador>(i);
      Resultados().escala.letra[i] =
          Letra(indicador, ValorIndicador(indicador, Resultados()), *edificio, Resultados().escala);
    }
    return Mostrar();
  }
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
