#pragma once

#include <string>
#include <vector>

#include "base/Mensajes.h"
#include "demand/calculo.h"
#include "model/GestorEdifActivo.h"
#include "model/NombreMostrado.h"

namespace novex {

/// Un caso con su cálculo hecho, para mostrarlo.
struct CasoCalculado {
  std::string nombre;  ///< "Viejo", "Mejora_1"...
  const Edificio* edificio;
  const calculo* resultado;
  std::vector<Mensaje> mensajes;  ///< avisos de su lectura y su cálculo
};

/// Los casos de un proyecto que están calculados, en su orden y sin mensajes.
std::vector<CasoCalculado> CasosCalculados(const GestorEdifActivo& gestor);

}  // namespace novex
