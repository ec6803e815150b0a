#pragma once

#include <optional>
#include <string>

#include "base/Mensajes.h"
#include "model/Edificio.h"
#include "systems/CatalogoEquipos.h"

namespace novex {

/// Lo que el usuario elige de un sistema nuevo. Los textos son los que se guardan.
struct PeticionSistema {
  std::string tipoSistema;  ///< `Tipo_sistema`
  std::string seleccion;    ///< clase de generador
  std::string tipologia;    ///< `TipoInstalacionesG`
  std::string nombre;       ///< vacío: "Sistema" y su número
  // Vacíos toman el valor de partida de la clase.
  std::string emisor, tipoBC1, distribucion, distribucion2;
  std::optional<float> superficie;  ///< acondicionada, m2; sin ella, la útil del primer recinto
};

/// Por qué no se puede añadir un sistema a un caso: superficie, equipos que ya hay (se mira solo el
/// primer bloque de cada sistema) o elecciones que no se ofrecen. Si fallan varias, la primera.
/// \returns el aviso, o nada si se puede
std::optional<Mensaje> RechazoSistema(const Edificio& edificio, const PeticionSistema& peticion);

/// El sistema que pide el usuario, con un bloque dimensionado para el caso. No comprueba si se
/// puede añadir. \param catalogo de donde salen las curvas genéricas; puede ser nulo
SistemaResidencial NuevoSistema(const Edificio& edificio, const PeticionSistema& peticion,
                                const CatalogoEquipos* catalogo);

/// Añade al caso el sistema que pide el usuario. \returns false, con su aviso y el caso sin
/// cambios, si no se puede
bool CrearSistema(Edificio& edificio, const PeticionSistema& peticion,
                  const CatalogoEquipos* catalogo, Mensajes& mensajes);

/// Pone en un bloque el modelo genérico de su clase: en una caldera el de su `TipoGenerador1`, en
/// las demás el primero. Una clase que no está en el catálogo queda sin modelo ni curvas.
/// \returns si se ha puesto
bool PonerModeloGenerico(const CatalogoEquipos& catalogo, Instalaciones& bloque);

}  // namespace novex
