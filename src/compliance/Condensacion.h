#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "model/Edificio.h"

namespace novex {

/// Interfaces que se comprueban de un cerramiento, contadas desde la primera capa de fuera.
inline constexpr std::size_t kInterfacesComprobadas = 9;

/// Estados de cálculo del mes de proyecto a los dos lados de la envolvente y lo que exigen (CTE DA
/// DB-HE/2, UNE-EN ISO 13788).
struct CondicionesCondensacion {
  double Te = 0;       ///< temperatura exterior, °C
  double Ti = 20;      ///< temperatura interior, °C
  double HR = 55;      ///< humedad relativa interior, %
  double Pe = 0;       ///< presión de vapor exterior, Pa
  double Pi = 0;       ///< presión de vapor interior, Pa
  double Pmin = 0;     ///< saturación que da un 80 % de humedad en la superficie interior, Pa
  double theta = 0;    ///< temperatura superficial interior mínima, °C
  double fRsiMin = 0;  ///< factor de temperatura mínimo; con Te de 20 °C, o si sale negativo, 0
};

/// Condiciones de un caso: las de su clase de higrometría y el estado exterior de proyecto que dejó
/// el cálculo en `DatosClimaticosSitio`. Una clase que no existe es la de 55 %; un dato que no es
/// finito vale 0. El resultado es siempre finito.
CondicionesCondensacion CondicionesDeCondensacion(const Edificio& edificio);

/// Una cara de capa dentro de un cerramiento.
struct InterfazCondensacion {
  double P = 0;     ///< presión de vapor, Pa
  double Psat = 0;  ///< presión de saturación, Pa
  double T = 0;     ///< temperatura, °C
  double x = 0;     ///< distancia a la cara exterior, m
  double sd = 0;    ///< espesor de aire equivalente hasta ella, sin lo que ventila una cámara, m
};

/// Comprobación de un cerramiento.
struct CondensacionElemento {
  std::string clave;      ///< de su posición en la envolvente
  std::string nombre;     ///< de la composición
  std::size_t capas = 0;  ///< todas, también las que pasan de las comprobadas
  double fRsi = 0;        ///< factor de temperatura de la superficie interior
  /// De fuera adentro: la cara exterior, que no se comprueba, y una por capa hasta nueve.
  std::vector<InterfazCondensacion> interfaces;
  bool cumpleSuperficial = true;   ///< fRsi mayor que el mínimo
  bool cumpleIntersticial = true;  ///< P no pasa de Psat en ninguna interfaz comprobada

  bool Cumple() const { return cumpleSuperficial && cumpleIntersticial; }
  /// Posición de la interfaz comprobada con menos margen, la de mayor P − Psat; 0 sin ninguna.
  std::size_t InterfazPeor() const;
};

/// ¿Se comprueba la posición? Los cerramientos de lo acondicionado que dan al exterior y las
/// cubiertas enterradas; no los exteriores de un espacio no acondicionado.
bool SeCompruebaCondensacion(std::size_t ranura);

/// Comprueba una composición: factor de temperatura de su superficie y, por el método de Glaser,
/// presiones en sus interfaces.
/// \param ranura posición de la envolvente, que da las películas y el lado por el que se empieza
/// \returns todo finito; sin capas, solo la cara exterior
/// \throws std::out_of_range si `ranura` no está entre 0 y 51
CondensacionElemento ComprobarCondensacion(std::size_t ranura, const composicion& cerramiento,
                                           const CondicionesCondensacion& condiciones);

/// Comprueba los muros, las cubiertas y los suelos al exterior y las cubiertas al terreno que
/// tienen capas, en el orden de la envolvente. Una composición con el nombre de otra anterior de su
/// grupo no se repite.
std::vector<CondensacionElemento> CondensacionElementos(const Edificio& edificio,
                                                        const CondicionesCondensacion& condiciones);

}  // namespace novex
