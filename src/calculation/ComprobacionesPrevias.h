#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "model/Edificio.h"

namespace novex {

/// Página del proyecto en que se corrige lo que dice un mensaje.
enum class PaginaProyecto {
  Global,
  Muros,
  Cubiertas,
  Suelos,
  Huecos,
  CiudadEntorno,
  Instalaciones
};

/// Nombre de una página tal como lo lee el usuario.
std::string_view NombrePagina(PaginaProyecto pagina);

/// Algo que impide calcular un caso y dónde se corrige.
struct MensajePrevio {
  std::string texto;
  PaginaProyecto pagina;
  std::string_view campo{};             ///< dirección del campo, si es uno
  std::optional<std::size_t> ranura{};  ///< composición del elemento, si es de uno opaco
  bool operator==(const MensajePrevio&) const = default;
};

/// Pasa a un caso las pruebas previas a todo cálculo: relación de los suelos y del volumen con la
/// superficie útil, sistemas de agua caliente, coeficientes operacionales, U de los elementos con
/// área y, en uso terciario, emisores frente a la ventilación. \returns lo que falla, en el orden
/// de las pruebas
std::vector<MensajePrevio> MensajesPrevios(const Edificio& edificio);

/// El texto de la última prueba previa que falla, que es el que se muestra; vacío si pasa todas.
std::string ComprobacionesPrevias(const Edificio& edificio);

/// ¿Es una vivienda sin ningún sistema de agua caliente?
bool FaltaACS(const Edificio& edificio);
/// ¿Es una vivienda con algún hueco de clase "Escaparate"?
bool HayEscaparateEnVivienda(const Edificio& edificio);

/// Todo lo que impide calcular un caso: los mensajes previos, la falta de agua caliente y los
/// escaparates en una vivienda, cada uno con su página.
std::vector<MensajePrevio> TodasLasComprobaciones(const Edificio& edificio);

/// Avisos que se dan, en su orden, a quien quiere calcular un caso que no se puede; ninguno si se
/// puede. De las pruebas previas solo va la última que falla.
std::vector<Mensaje> AvisosPrevios(const Edificio& edificio);

}  // namespace novex
