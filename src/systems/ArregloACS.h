#pragma once

#include "systems/GeneradorPreparado.h"

namespace novex {

/// Qué hay entre el generador de agua caliente y el grifo.
struct ArregloACS {
  bool deposito = false;  ///< depósito de consumo
  bool depositoSolar = false;
  bool captadores = false;
  LadoAgua lado = LadoAgua::Otro;
  AlimentacionACS alimentacion = AlimentacionACS::Otra;

  /// El agua de red pasa por el depósito solar antes de llegar al de consumo o al grifo.
  bool AlimentacionDirecta() const {
    return alimentacion == AlimentacionACS::DirectoIntercambiador ||
           alimentacion == AlimentacionACS::DirectoInteracumulador;
  }
  /// El depósito solar se carga con un intercambiador exterior; si no, con serpentín.
  bool CargaPorIntercambiador() const {
    return alimentacion == AlimentacionACS::DirectoIntercambiador ||
           alimentacion == AlimentacionACS::RecirculadoIntercambiador ||
           alimentacion == AlimentacionACS::RecirculadoIntercambiadorS;
  }
  /// El agua del depósito solar entra al de consumo por un serpentín.
  bool RecirculadoPorSerpentin() const {
    return alimentacion == AlimentacionACS::RecirculadoIntercambiadorS ||
           alimentacion == AlimentacionACS::RecirculadoInteracumuladorS;
  }
  /// El agua del depósito solar entra directa al de consumo.
  bool RecirculadoDirecto() const {
    return alimentacion == AlimentacionACS::RecirculadoIntercambiador ||
           alimentacion == AlimentacionACS::RecirculadoInteracumulador;
  }
};

/// Arreglo de un sistema de agua caliente. Una combinación que la tabla no lista no tiene depósito,
/// depósito solar ni captadores.
ArregloACS ResolverArreglo(TipoSistema tipo, const Instalaciones& bloque);

}  // namespace novex
