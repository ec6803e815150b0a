#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "demand/calculo.h"
#include "systems/GeneradorPreparado.h"

namespace novex {

/// Una bomba o unos ventiladores de un bloque en el año.
struct AuxiliarSistema {
  std::string nombre;  ///< "SBZR", "GEN2", "VentUTC"...
  bool ventilador = false;
  Servicio servicio = kCalefaccion;  ///< el que los mueve
  double caudal = 0;                 ///< de todos los equipos: l/h de una bomba, m3/h de aire
  double especifica = 0;             ///< W por m3/h a plena carga
  double consumo = 0;                ///< kWh/año
};

/// Las bombas y los ventiladores de un bloque, en el orden del fichero de proyecto: los de un
/// sistema de calor y frío llevan "C" y "R". Los que no funcionan en el año quedan a 0.
std::vector<AuxiliarSistema> AuxiliaresDeBloque(const GeneradorPreparado& generador,
                                                const calculo& caso);

/// Suma del año de una magnitud horaria de los sistemas, y su mayor valor; 0 si el caso no la
/// tiene.
double SumaAnual(const calculo& caso, std::string_view atributo);
double MayorAnual(const calculo& caso, std::string_view atributo);

}  // namespace novex
