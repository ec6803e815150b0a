#pragma once

#include <cstddef>
#include <string_view>

#include "base/Mensajes.h"
#include "model/Recinto.h"

namespace novex {

/// Elementos de la envolvente que se dan con un área total y una parte de ella: la que está fuera
/// del primer plano de fachada en un muro, la que está a la sombra en una cubierta.
enum class ElementoConParte { Muro, CubiertaHorizontal, CubiertaInclinada };

/// Un área de esas en un recinto.
struct CasillaArea {
  ElementoConParte elemento = ElementoConParte::Muro;
  std::size_t tipo = 0;   ///< tipo constructivo, desde 0
  Sector sector = norte;  ///< no cuenta en la cubierta horizontal
};

/// Guarda el área total tecleada, m2. Si es menor que su parte avisa dos veces y la parte toma el
/// total. El muro norte no tiene parte. \throws std::out_of_range si el tipo no existe
void PonerAreaTotal(Recinto& recinto, const CasillaArea& casilla, std::string_view texto,
                    Mensajes& mensajes);

/// Guarda la parte tecleada, m2; en el muro norte no hace nada. El total queda como está.
/// \throws std::out_of_range si el tipo no existe
void PonerAreaParte(Recinto& recinto, const CasillaArea& casilla, std::string_view texto,
                    Mensajes& mensajes);

/// Lo que queda del total sin la parte, m2, nunca negativo: el área al sol de una cubierta o la del
/// primer plano de un muro. \throws std::out_of_range si el tipo no existe
float AreaRestante(const Recinto& recinto, const CasillaArea& casilla);

}  // namespace novex
