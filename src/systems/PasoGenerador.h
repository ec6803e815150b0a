#pragma once

#include "systems/ArregloACS.h"
#include "systems/DepositoEstratificado.h"

namespace novex {

/// Lo que el generador de un depósito puede meter en un minuto, de un solo equipo.
struct PasoGenerador {
  double temperatura = 0;  ///< del agua que entra al depósito o a su serpentín, °C
  double calor = 0;        ///< W
  double consumo = 0;      ///< W
  bool entra = false;      ///< hay generador que tome parte
};

/// Generador de un depósito con serpentín o con intercambiador exterior en un minuto.
/// \param generador 1 o 2, el que funciona
/// \param lado caudal del lado del depósito, kg/s \param primario caudal del lado del generador,
/// kg/s \param Ti temperatura fría del intercambiador, °C \param T temperaturas del depósito \param
/// THE bulbo húmedo exterior de la hora, °C
PasoGenerador CalcularPasoGenerador(const GeneradorPreparado& g, LadoAgua lado, int generador,
                                    double caudalDeposito, double primario, double Ti,
                                    const Nodos& T, float THE);

}  // namespace novex
