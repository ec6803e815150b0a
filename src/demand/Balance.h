#pragma once

#include <array>
#include <vector>

#include "demand/AjustesUso.h"
#include "demand/ElementosHuecos.h"
#include "demand/ElementosOpacos.h"
#include "demand/PasoVentilacion.h"
#include "demand/RespuestaZona.h"
#include "demand/calculo.h"
#include "model/Edificio.h"

namespace novex {

/// Cargas de una hora por m2 de superficie útil, W/m2: calefacción <= 0 y refrigeración >= 0.
struct CargasPorSuperficie {
  float calefaccion = 0, refrigeracion = 0;
};

/// Balance térmico de la zona: una temperatura por hora, de una ecuación lineal sin iterar.
/// Mantiene la historia de temperaturas; antes de la hora 1 la zona está a 20 °C.
class Balance {
 public:
  Balance(const Edificio& edificio, const AjustesUso& ajustes, const RespuestaZona& respuesta,
          float Htb, ElementosOpacos& opacos, ElementosHuecos& huecos, calculo& caso);

  /// Calor de los opacos y de los huecos en la hora. Antes del primer balance de cada hora.
  void Ganancias(int h, int mes);
  /// Balance de demanda: fija la temperatura y las cargas (W) de la hora, y lo que aporta cada
  /// elemento. Un segundo balance de la misma hora lee los elementos como los dejó el primero.
  CargasPorSuperficie Demanda(int h, int mes, const AireHora& aire);
  /// Temperatura de la hora con el calor que el equipo entrega de verdad. Las cargas están en kW.
  /// \param falta lo que el equipo no alcanza, W: negativa en calefacción y positiva en
  /// refrigeración
  void Flotar(int h, int mes, const AireHora& aire, float falta);

 private:
  struct Hora;
  Hora Preparar(int h, int mes, const AireHora& aire) const;
  float TemperaturaLibre(const Hora& hora, float calorEquipo) const;
  void Imponer(int h, float T);
  void AireImpulsion(int h, const AireHora& aire);
  float Anterior(int h) const { return historia_[static_cast<std::size_t>(h - 1) + kPrevias]; }

  static constexpr std::size_t kPrevias = kTerminosZona;
  const AjustesUso ajustes_;
  ElementosOpacos& opacos_;
  ElementosHuecos& huecos_;
  calculo& caso_;
  std::array<float, kTerminosZona> respuesta_{};  ///< suma de los tres factores, W/K
  float K_, Htb_, superficie_;
  std::vector<float> historia_;  ///< temperatura de la hora h en h + kPrevias
  float sumaOpacos_ = 0;         ///< de la última hora preparada, W
  SerieHoraria opacosHora_;      ///< calor de los opacos en cada hora, W
  Valores& cargaInterna_;
  Valores& puentes_;
  Valores& ventilacion_;
};

}  // namespace novex
