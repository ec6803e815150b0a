#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/Mensajes.h"
#include "entry/AreasEnvolvente.h"
#include "model/Edificio.h"

namespace novex {

/// Las tres páginas de elementos opacos de la envolvente.
enum class PaginaOpacos { Cubiertas, Muros, Suelos };

/// Un dato de un elemento que no va por orientaciones: una longitud o una posición de una lista.
struct DatoElemento {
  std::string_view rotulo;
  std::string_view campo;  ///< etiqueta, como en `ClaseElemento`
  std::string_view ayuda;
  std::span<const std::string_view> textos{};   ///< los que guarda el fichero; vacío, un número
  std::span<const std::string_view> rotulos{};  ///< los que se enseñan, en el mismo orden
};

/// Una clase de elemento opaco con todo lo que se define de ella por tipo constructivo. Las
/// etiquetas llevan '*' en el lugar del sector y '#' en el del tipo; una vacía es que no lo tiene.
struct ClaseElemento {
  PaginaOpacos pagina = PaginaOpacos::Muros;
  std::string_view nombre;                     ///< el que se enseña
  std::string_view ayuda;                      ///< qué separa
  std::string_view elemento;                   ///< el del fichero, delante de sus etiquetas
  std::span<const std::size_t> ranuras;        ///< su composición, una por tipo
  std::string_view U;                          ///< etiqueta de su transmitancia
  std::string_view marca;                      ///< etiqueta de la marca de intervención
  std::string_view area{};                     ///< m2; las particiones interiores no la tienen
  std::optional<ElementoConParte> conParte{};  ///< si el área se da con una parte
  std::string_view parte{};
  std::string_view rotuloParte{};
  /// El cerramiento exterior del espacio no acondicionado, si lo hay.
  std::span<const std::size_t> ranurasExteriores{};
  std::string_view UExterior{};
  std::string_view areaExterior{};
  std::span<const DatoElemento> datos{};

  std::size_t Tipos() const { return ranuras.size(); }
  bool PorSectores() const { return area.find('*') != std::string_view::npos; }
};

/// Las clases de una página, en el orden en que se enseñan.
std::span<const ClaseElemento> ClasesDePagina(PaginaOpacos pagina);

/// Dirección de un campo de una clase (`files/AccesoCampos.h`). \param tipo desde 0
/// \param sector solo si la etiqueta lo lleva
std::string DireccionElemento(const ClaseElemento& clase, std::string_view etiqueta,
                              std::size_t tipo, std::size_t sector = norte);

/// Dirección de la transmitancia de una composición de la clase, también de las de su
/// cerramiento exterior; vacía si no es suya.
std::string DireccionU(const ClaseElemento& clase, std::size_t ranura);

/// ¿Lleva parte el área de un sector? No la del muro norte.
bool TieneParte(const ClaseElemento& clase, std::size_t sector);

/// Tipos de una clase que se usan: hasta el último con área, composición o U, y al menos uno.
std::size_t TiposEnUso(const Edificio& edificio, const ClaseElemento& clase);

/// Área de una clase con todos sus tipos y sectores, m2; 0 sin área.
double AreaDeClase(const Edificio& edificio, const ClaseElemento& clase);

/// Guarda una transmitancia tecleada, W/m2K, comprobada con "CoefU". Una U dada no sale de ninguna
/// composición: la que hubiera se quita. \throws std::out_of_range si la posición no existe
void PonerTransmitancia(Edificio& edificio, std::size_t ranura, std::string_view texto,
                        Mensajes& mensajes);

}  // namespace novex
