#pragma once

#include <array>

#include "demand/Series.h"
#include "demand/VectorEnergetico.h"

namespace novex {

/// Lo que el año deja por meses, en kWh del edificio salvo donde se dice.
struct TablasMensuales {
  /// Consumo por vector y servicio.
  std::array<std::array<TablaMensual, kServiciosDemanda>, kVectoresConsumo> consumo{};
  std::array<TablaMensual, kServiciosDemanda> ambiente{};  ///< calor tomado del ambiente
  std::array<TablaMensual, kServiciosDemanda> bombas{};
  std::array<TablaMensual, kServiciosDemanda> ventiladores{};  ///< de los equipos; ACS sin uso
  TablaMensual ventilacion{};                                  ///< ventiladores de la ventilación
  TablaMensual iluminacion{};
  TablaMensual produccionFotovoltaica{};
  std::array<TablaMensual, kServiciosDemanda> defecto{};  ///< energía final del equipo por defecto
  TablaMensual calorBiomasa{};
  TablaMensual solarCaptada{}, perdidaTuberiaCaptador{}, perdidaDepositoSolar{};
  TablaMensual perdidaDeposito{}, perdidaRetorno{}, irradiacionCaptadores{};
  /// Demanda, kWh/m2: calefacción <= 0.
  std::array<TablaMensual, kServiciosDemanda> demanda{};
  /// Demanda servida por sistemas, kWh.
  std::array<TablaMensual, kServiciosDemanda> servida{};
};

/// Suma a la posición del mes.
inline void SumarMes(TablaMensual& tabla, int mes, float valor) {
  tabla[static_cast<std::size_t>(mes)] += valor;
}

/// Pone en la posición 0 la suma de los doce meses.
inline void SumarAno(TablaMensual& tabla) {
  float suma = 0;
  for (std::size_t m = 1; m <= 12; ++m) suma += tabla[m];
  tabla[0] = suma;
}

}  // namespace novex
