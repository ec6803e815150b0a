#pragma once

#include <string>
#include <vector>

#include "entry/DefinicionExpres.h"

namespace novex {

/// Lo que el usuario ha dado de una definición exprés y de dónde sale lo demás. En `entrada`, un
/// texto vacío es un dato que no ha dado.
struct SupuestosExpres {
  EntradaExpres entrada;
  int plantas = 0;          ///< 0, sin dar
  bool conVidrios = false;  ///< ha dado las ventanas
  bool conPuerta = false;   ///< ha dado la puerta
  bool conTipoCubierta = false, conTipoSuelo = false, conInstalacion = false;
};

/// Completa una definición exprés con una forma de edificio según su uso: una unifamiliar exenta de
/// planta cuadrada y dos plantas; un bloque o un terciario exento, el doble de largo que de fondo,
/// con las fachadas largas al norte y al sur; un piso con fachadas opuestas al norte y al sur y
/// medianeras a los lados. Las ventanas que no se dan son de 1,20 x 1,20 m y cubren un quinto de
/// cada fachada. Lo dado no cambia.
/// \param perfilUso `PerfilUso`
/// \returns una línea por cada dato supuesto, con su valor y su razón
std::vector<std::string> CompletarExpres(SupuestosExpres& supuestos, int perfilUso);

}  // namespace novex
