#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace novex {

/// Secciones de la exigencia, como se nombran en las pantallas y en la salida.
inline constexpr std::string_view kSeccionHE0 = "HE0";
inline constexpr std::string_view kSeccionHE1 = "HE1";
inline constexpr std::string_view kSeccionHE3 = "HE3";
inline constexpr std::string_view kSeccionHE4 = "HE4";
inline constexpr std::string_view kSeccionHE5 = "HE5";
inline constexpr std::string_view kSeccionCondensaciones = "Condensaciones";

/// Lo que se dice de un requisito: todo lo que una pantalla, la consola o un documento enseñan de
/// él sale de aquí, sin calcular nada más.
struct Veredicto {
  std::string seccion;           ///< una de las secciones
  std::string requisito;         ///< qué se exige
  std::optional<double> valor;   ///< del edificio; sin él, no se ha calculado
  std::optional<double> limite;  ///< sin él, no hay límite
  std::string unidad;
  std::string veredicto;  ///< el texto que se enseña
  std::string nota;       ///< por qué no se aplica, o de dónde sale el límite
  bool aplica = true;     ///< ¿se exige en este caso?
  bool pasa = true;       ///< lo que no se exige pasa
};

}  // namespace novex
