#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "model/Edificio.h"
#include "systems/CatalogoEquipos.h"

namespace novex {

/// Dónde está un bloque: su sistema y su lugar en él, desde 0.
struct LugarBloque {
  std::size_t sistema = 0, bloque = 0;
};
/// El bloque que ocupa una posición entre los de todos los sistemas, desde 1.
std::optional<LugarBloque> LugarDeBloque(const Edificio& edificio, std::size_t numero);
/// La posición, desde 1, del primer bloque de un sistema entre los de todos.
std::size_t NumeroDeBloque(const Edificio& edificio, std::size_t sistema);

/// Pone un campo de un sistema por su etiqueta con lo que se sigue de él: una potencia rellena los
/// caudales y las potencias mínimas; la clase y la tipología pasan por las mismas comprobaciones
/// que un sistema nuevo; un lado del agua, por las alimentaciones que admite; y el tipo de una
/// caldera genérica cambia sus curvas. \param numero el del bloque, desde 1 \param catalogo puede
/// ser nulo \returns si se ha puesto; con su aviso si no
bool PonerCampoSistema(Edificio& edificio, std::size_t numero, std::string_view etiqueta,
                       std::string_view texto, const CatalogoEquipos* catalogo, Mensajes& mensajes);

/// ¿Siguen ofreciéndose las clases de los bloques de un sistema si pasa a dar otros servicios?
/// \param cual el sistema, desde 0 \param tipoSistema texto de `Tipo_sistema`
bool AdmiteServicios(const Edificio& edificio, std::size_t cual, std::string_view tipoSistema);
/// Da a un sistema otros servicios: sus bloques conservan clase, tamaño y alimentación, y lo demás
/// que el servicio nuevo no admita pasa a lo primero que se ofrece. \param cual desde 0
/// \returns false, sin cambios, si no se admiten
bool CambiarServicios(Edificio& edificio, std::size_t cual, std::string_view tipoSistema);

/// Da a un bloque curvas propias. Dejan de ser las de su modelo, que si es genérico se volverían a
/// tomar del catálogo. \returns si eran otras
bool PonerCurvas(const CurvasEquipo& curvas, Instalaciones& bloque);

/// Un tamaño que el dimensionado daría a un bloque.
struct CambioTamano {
  std::string_view etiqueta;
  float antes = 0, despues = 0;
};
/// Tamaños de un bloque (potencias, unidades, depósito, caudales) que el dimensionado de uno nuevo
/// con sus mismas elecciones cambiaría, de los que su clase usa. \param numero desde 1
std::vector<CambioTamano> CambiosDimensionado(const Edificio& edificio, std::size_t numero);
/// Pone en un bloque los tamaños de unas etiquetas de `CambiosDimensionado`. Lo demás no cambia.
void AplicarDimensionado(Edificio& edificio, std::size_t numero,
                         const std::vector<std::string>& etiquetas);

}  // namespace novex
