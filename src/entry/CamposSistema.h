#pragma once

#include <string_view>
#include <vector>

#include "entry/ListasSistemas.h"
#include "model/Edificio.h"

namespace novex {

/// Grupos en que se enseñan los campos de un sistema, en su orden.
enum class GrupoCampos {
  Servicio,
  Generador,
  Unidades,
  Deposito,  ///< distribución, alimentación y depósito
  Bombas,
  Emisores,
  Retorno,
  Control,
  Superficies
};

/// Un campo que usa un sistema.
struct CampoMostrado {
  GrupoCampos grupo;
  std::string_view etiqueta;
  ListaTextos valores;  ///< lo que guarda, si se elige de una lista
  ListaTextos rotulos;  ///< lo que se lee de cada uno; vacía, lo mismo
  bool operator==(const CampoMostrado& otro) const {
    return etiqueta == otro.etiqueta && valores.data() == otro.valores.data();
  }
};

/// Los campos que pide la clase de generador de un bloque con su arreglo de agua, por grupos. Los
/// que su modelo no lee no están.
/// \param sistema el del bloque, que da los servicios
std::vector<CampoMostrado> CamposMostrados(const Edificio& edificio,
                                           const SistemaResidencial& sistema,
                                           const Instalaciones& bloque);

/// Circuitos de bomba que mueve un bloque: "SBZ", "GEN1", "GEN2", "DEP", "INT", "RET".
std::vector<std::string_view> BombasUsadas(const SistemaResidencial& sistema,
                                           const Instalaciones& bloque);

/// ¿Da agua caliente con una distribución y una alimentación que no forman ningún arreglo? El
/// depósito y los captadores no se simulan en ese caso.
bool ArregloSinDefinir(const SistemaResidencial& sistema, const Instalaciones& bloque);

/// ¿Toma algún sistema del caso calor de los captadores solares?
bool HayArregloSolar(const Edificio& edificio);

}  // namespace novex
