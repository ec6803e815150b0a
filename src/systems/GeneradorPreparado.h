#pragma once

#include <optional>

#include "demand/VectorEnergetico.h"
#include "model/Edificio.h"
#include "systems/ClasesSistema.h"

namespace novex {

/// Bomba de un circuito, lista para la hora.
struct BombaPreparada {
  float potencia = 0;  ///< a plena carga, kW, ya por equipos y por vivienda
  ControlBomba control = ControlBomba::Constante;
  float caudal = 0;  ///< kg/s de una bomba
  /// Potencia con carga parcial `x` (limitada a 1), W.
  float Potencia(float x) const;
};

/// Prepara una bomba. \param porEquipos equipos entre viviendas que la comparten
BombaPreparada PrepararBomba(const BombaCircuito& bomba, float porEquipos);

/// Un bloque de generador con sus textos resueltos y sus potencias ya multiplicadas por los equipos
/// y divididas por las viviendas que comparten la instalación.
struct GeneradorPreparado {
  GeneradorPreparado(const Edificio& edificio, const SistemaResidencial& sistema,
                     const Instalaciones& bloque, int numeroSistema);

  const Instalaciones* datos;
  int numero;  ///< del sistema, desde 1
  TipoSistema tipo;
  ClaseGenerador clase;
  bool individual;   ///< "Individual/Vivienda"
  bool partida;      ///< la bomba de calor tiene unidad interior aparte
  bool conColector;  ///< circuito de zona con colector
  bool biomasa1, biomasa2;
  bool curvasGenericas;   ///< fabricante "Defecto" o ninguno
  bool anadirVentilador;  ///< se cuentan los ventiladores de las unidades interiores
  std::optional<VectorEnergetico> vector1, vector2;

  float porEquipos;                            ///< equipos entre viviendas
  float caldera1, caldera2;                    ///< kW
  float bombaCalor, consumoBomba;              ///< kW, calefacción
  float radiador;                              ///< kW
  float frioTotal, frioSensible, consumoFrio;  ///< kW
  float apoyo;                                 ///< resistencia de apoyo, kW
  float perdidaLinea;        ///< parte de la capacidad que pierde la línea frigorífica
  float ventilador;          ///< de las unidades terminales, W; 0 si el emisor no lleva
  float ventiladorInterior;  ///< de las unidades interiores de refrigerante, W
  BombaPreparada SBZ, GEN1, GEN2, DEP, INT, RET;
};

}  // namespace novex
