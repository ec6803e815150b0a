#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/Tabla.h"
#include "model/Cambios.h"
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
  template <class Cambio>
  void Generales(Cambio cambio) {
    CambiarGenerales(*edificio, cambio);
  }
  void PonerSimulacionLibre() {
    Generales([](DatosGenerales& g) { g.Tiposimulacion = "Simulacion"; });
  }
  /// Energía final de un vector en un servicio, kWh del edificio en el año.
  void PonerFinal(Servicio s, VectorEnergetico v, float kWh) {
    Resultados().servicio[s].finalPorVector[Indice(v)][0] = kWh;
  }
  /// Añade un sistema de un bloque, con su sitio en las sumas del cálculo.
  Instalaciones& AnadirSistema(const std::string& tipo, const std::string& seleccion = "",
                               const std::string& nombre = "", int equipos = 1) {
    SistemaResidencial sistema;
    sistema.Tipo_sistema = tipo;
    sistema.Nombre_sistema = nombre;
    Instalaciones& i = sistema.instalaciones.emplace_back();
    i.Seleccion = seleccion;
    i.NEquipos = equipos;
    edificio->AnadirSistema(std::move(sistema));
    resultado->sumasBloques.emplace_back();
    return edificio->GetSistema(edificio->NumeroSistemas() - 1).instalaciones[0];
  }
  void Poner(int perfilUso, const std::string& zona, const std::string& modo) {
    Generales([&](DatosGenerales& g) {
      g.PerfilUso = perfilUso;
      g.Modo_trabajo = modo;
    });
    pruebas::CambiarLugar(*edificio, [&](Localizacion& lugar) { lugar.ZonaClimatica = zona; });
  }
};

using Textos = std::vector<std::string>;

/// Los textos de una fila o de una columna de una tabla.
inline Textos FilaDe(const Tabla& tabla, std::size_t i) {
  Textos textos;
  for (const Celda& celda : tabla.filas.at(i)) textos.push_back(celda.texto);
  return textos;
}
inline Textos ColumnaDe(const Tabla& tabla, std::size_t i) {
  Textos textos;
  for (const auto& fila : tabla.filas) textos.push_back(fila.at(i).texto);
  return textos;
}

}  // namespace novex::pruebas
