#pragma once

#include <memory>
#include <string>

#include "model/Cambios.h"
#include "systems/Despacho.h"

namespace novex::pruebas {

/// Un edificio de 100 m2 con un año sintético de clima, consumo y cargas, para probar sistemas sin
/// pasar por la demanda. El agua de red está a 10 °C, el medio es de 15 °C y el sol da ocho horas.
struct CasoSistemas {
  CasoSistemas();

  template <class Cambio>
  void Generales(Cambio cambio) {
    CambiarGenerales(edificio, cambio);
  }
  /// Añade un sistema de un bloque, que sirve de agua caliente toda la superficie.
  Instalaciones& Anadir(const std::string& tipo, Instalaciones bloque);
  GeneradorPreparado Preparar(const std::string& tipo, const Instalaciones& bloque);
  HoraSistemas Hora(int h) const;
  /// Cargas de una hora, kW positivas; las de ventilación, con su signo.
  void Cargas(int h, float calefaccion, float refrigeracion, float ventilacion = 0);
  std::size_t Avisos(const std::string& parte) const;

  Edificio edificio;
  AjustesUso ajustes;
  std::unique_ptr<calculo> caso = std::make_unique<calculo>();
  RegistroMensajes mensajes;
};

/// Bloque con todos los datos puestos: generadores de 20 kW, un depósito de 200 l entre 55 y 60 °C,
/// curvas iguales a 1 y consumos proporcionales a la carga parcial.
Instalaciones BloqueCompleto(const std::string& seleccion,
                             const std::string& instalacion = "Individual/Vivienda");

/// Pone en un bloque la alimentación, en el campo que sea.
void Alimentar(Instalaciones& bloque, const std::string& alimentacion);

/// Captadores de 4 m2 y depósito solar de 300 l.
void PonerSolar(DatosGenerales& g);

}  // namespace novex::pruebas
