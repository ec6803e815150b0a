#pragma once

#include <array>

#include "demand/VectorEnergetico.h"

namespace novex {

/// Estado de la hora que ven los generadores.
struct HoraSistemas {
  int h = 0;
  int mes = 0;
  float THE = 0;                        ///< bulbo húmedo exterior, °C
  float TSE = 0;                        ///< temperatura seca exterior, °C
  float humedoInterior = 15;            ///< bulbo húmedo de la zona en la hora anterior, °C
  float consigna = 0;                   ///< de la hora, °C; 0 si no se pide nada
  float Tanterior = 20, Wanterior = 0;  ///< estado de la zona en la hora anterior
  float presion = 101325;               ///< Pa
};

/// Cargas de una hora, por servicio de demanda, kW.
using CargasHora = std::array<float, kServiciosDemanda>;

/// Circuitos con bomba de un bloque.
enum Circuito : std::size_t { kSBZ, kGEN1, kGEN2, kDEP, kINT, kRET };
inline constexpr std::size_t kCircuitos = 6;

/// Lo que un bloque hace en una hora. Todo en kW durante la hora (kWh), y auxiliares en W.
struct RespuestaHora {
  CargasHora noDado{};  ///< lo que queda sin dar
  CargasHora dado{};    ///< calor entregado; en refrigeración, el frío sensible
  float frioTotal = 0;
  CargasHora consumo1{};  ///< del generador 1, en su vector
  CargasHora consumo2{};  ///< del generador 2, en el suyo
  CargasHora dado2{};     ///< parte de lo dado que ha hecho el generador 2
  CargasHora ambiente{};  ///< calor tomado del ambiente
  float calorBiomasa = 0;
  /// Potencia de cada bomba, W: por `Circuito`, sin refrigeración y con ella.
  std::array<float, kCircuitos> bombaCalor{}, bombaFrio{};
  CargasHora bombas{};        ///< W
  CargasHora ventiladores{};  ///< W
  float bombaYaContada = 0;   ///< del generador 1 que ya ha contado el depósito, W
  /// Anota la potencia de una bomba a un servicio. \param W vatios
  void AnotarBomba(Circuito c, Servicio s, float W) {
    bombas[s] += W;
    (s == kRefrigeracion ? bombaFrio : bombaCalor)[c] += W;
  }
  float resistencia = 0;  ///< de una bomba de calor, kW, ya contada en lo dado y lo consumido
};

}  // namespace novex
