#pragma once

#include <array>

#include "demand/ResultadosCaso.h"
#include "model/Edificio.h"

namespace novex {

/// Conductancias de un elemento al terreno (ISO 13370), W/K.
struct CoeficientesTerreno {
  float Hg = 0;   ///< estacionaria
  float Hpi = 0;  ///< periódica interior
  float Hpe = 0;  ///< periódica exterior
};

/// Suelo en contacto con el terreno. 0 si la U o el área son 0.
/// \param U W/m2K; \param area m2; \param perimetro m, 0 se toma como el de un cuadrado
CoeficientesTerreno CoeficientesSolera(float U, float area, float perimetro,
                                       const SueloTerreno& suelo);

/// Muro en contacto con el terreno. \param profundidad m, 0 se toma como 1
CoeficientesTerreno CoeficientesMuroTerreno(float U, float area, float profundidad);

/// Flujo hacia la zona en un mes (1 a 12), W.
/// \param mediaAnual temperatura exterior media del año, °C
/// \param amplitud mayor desviación de un mes, K
float FlujoTerreno(const CoeficientesTerreno& coef, int mes, float mediaAnual, float amplitud);

}  // namespace novex
