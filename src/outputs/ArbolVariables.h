#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Serie.h"
#include "demand/calculo.h"
#include "model/Edificio.h"

namespace novex {

/// De dónde llega la serie de una variable.
enum class ViaSerie {
  Balance,    ///< del fichero de balance del caso, por su etiqueta
  Recinto,    ///< de lo que el cálculo guarda de la zona y del caso
  Sistemas,   ///< del fichero de sistemas del caso, por su etiqueta
  Calculada,  ///< se rehace de otras, como la radiación sobre un plano
};

/// Una variable horaria que el caso tiene.
struct NodoVariable {
  std::string grupo;     ///< rama del árbol
  std::string texto;     ///< nombre, código y unidad: "Temp.seca TSE(ºC)"
  std::string codigo;    ///< "TSE"
  std::string etiqueta;  ///< con que está guardada; vacía si se calcula
  ViaSerie via = ViaSerie::Balance;
  ClaseSerie clase = ClaseSerie::Otra;
  std::string unidad;  ///< la del texto: "ºC", "kWh", "" si no tiene
  bool operator==(const NodoVariable&) const = default;
};

/// Las variables de un caso, rama a rama en el orden del árbol: las fijas, las que dependen de su
/// ventilación, una rama por instalación y las de energía solar si la hay.
/// \param caso ya calculado; sin calcular faltan las que dejan los sistemas
std::vector<NodoVariable> ArbolVariables(const Edificio& edificio, const calculo& caso);

/// ¿Sale una variable al buscar un texto? Sí, si cada una de sus palabras está en el grupo o en el
/// texto del nodo, sin contar mayúsculas ni acentos. Sin texto salen todas.
bool SaleAlBuscar(const NodoVariable& nodo, std::string_view buscado);

}  // namespace novex
