#pragma once

#include "model/Edificio.h"

namespace novex {

/// Altura y plantas que se deducen de las áreas del caso.
struct AlturaEdificio {
  float alturaPlanta = 0;  ///< volumen entre superficie útil, m
  float plantas = 1;       ///< superficie útil entre suelos, al menos 1
  float Total() const { return alturaPlanta * plantas; }
};

/// Altura de planta y número de plantas del caso. Sin superficie útil la altura es 0; sin suelos,
/// una planta.
AlturaEdificio AlturaDeEdificio(const Edificio& edificio);

/// Longitudes de los puentes térmicos estimadas con las áreas, m, cortadas a metros enteros.
/// Devuelve el registro de construcción con ellas; en modo distinto de "Estimados" lo devuelve como
/// está. Con varios recintos quedan las del último.
Construccion LongitudesEstimadas(const Edificio& edificio);

}  // namespace novex
