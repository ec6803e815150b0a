#pragma once

#include <string_view>

#include "base/Mensajes.h"

namespace novex {

enum class TipoCampo { Ninguno, Real, Entero };

/// Una entrada del catálogo de campos: los límites que se admiten al teclear o leer un número.
struct CampoCatalogo {
  std::string_view clave;
  std::string_view texto;  ///< sujeto del mensaje
  TipoCampo tipo = TipoCampo::Ninguno;
  float minimo = 0;
  float maximo = 0;
  float sustitucion = 0;  ///< valor que se toma en lugar del erróneo
  std::string_view unidad;
};

/// Entrada de una clave, o nulo si no está en el catálogo.
const CampoCatalogo* BuscarCampo(std::string_view clave);

/// Comprueba un número tecleado contra los límites de su clave. La coma vale por punto. Un texto
/// que no es número, un real donde se espera un entero o un valor fuera de los límites dan un
/// aviso, y se devuelve el valor que lo sustituye. \returns el valor aceptado, en la unidad de la
/// clave
float ComprobarValor(std::string_view texto, std::string_view clave, Mensajes& mensajes);

/// Entrada de los lectores de ficheros: 0 para "", "0" y "00", y si no `ComprobarValor` con la
/// clave sin límites "Cualquiera".
float ValorSinComprobar(std::string_view texto, Mensajes& mensajes);

}  // namespace novex
