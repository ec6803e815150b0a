#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "reference/Cerramiento.h"
#include "reference/FicheroCatalogo.h"

namespace novex {

/// Rama del catálogo de materiales: clase de orientación y lista.
struct RamaMateriales {
  bool vertical = true;
  std::string_view lista = kListaCte;  ///< `kListaCte` o `kListaNoCte`
  bool operator==(const RamaMateriales&) const = default;
};

/// Un material y dónde está en el catálogo.
struct MaterialCatalogo {
  RamaMateriales rama;
  std::size_t grupo = 0;   ///< posición del grupo en su rama
  std::size_t indice = 0;  ///< posición en el grupo
  Capa capa;
};

/// Los textos con que el usuario define un material nuevo.
struct MaterialNuevo {
  std::string nombre{};
  std::string espesor{};  ///< m
  std::string rterm{};    ///< m2K/W; solo en el grupo "Sin inercia"
  std::string k{};        ///< W/mK; en los demás, con `den` (kg/m3) y `cp` (J/kgK)
  std::string den{};
  std::string cp{};
  std::string rvapor{};
  std::string ini{};
};

/// Materiales por clase de orientación, lista y grupo, sobre `Materiales.xml`. Cada cambio se
/// guarda en el fichero; si no se puede guardar, no hay cambio.
class CatalogoMateriales {
 public:
  /// \throws ErrorFichero si el fichero falta o está mal formado
  explicit CatalogoMateriales(std::filesystem::path ruta)
      : fichero_(std::move(ruta), "MaterialesNovex") {}

  /// Grupos de una rama, en el orden del fichero.
  std::vector<std::string> Grupos(RamaMateriales rama) const;
  /// Materiales de un grupo, o de todos con "Todos", en el orden del fichero.
  std::vector<MaterialCatalogo> Materiales(RamaMateriales rama, std::string_view grupo) const;
  /// Materiales de todo el catálogo cuyo nombre o grupo contiene el texto, sin distinguir
  /// mayúsculas ni acentos. Uno que está en las dos clases sale dos veces.
  std::vector<MaterialCatalogo> Buscar(std::string_view texto) const;

  /// ¿Se pueden crear y borrar capas en el grupo elegido? No con "Todos" ni, en la lista oficial,
  /// en los bloques, cuya resistencia es la de la pieza.
  static bool PuedeCrear(std::string_view lista, std::string_view grupo);
  /// Espesor que admite una fábrica de ladrillo, como se enseña; vacío si no es de ellas.
  static std::string_view EspesorAdmitido(std::string_view nombre);

  /// Añade el material elegido con otro espesor, junto a los de su nombre y por orden de espesor.
  /// \param espesor tecleado, en m; se comprueba con "Espesor"
  /// \returns el material del catálogo con ese espesor, que puede ser uno que ya estaba; vacío si
  /// no se puede crear o guardar
  std::optional<MaterialCatalogo> NuevoEspesor(const MaterialCatalogo& elegido,
                                               std::string_view espesor, Mensajes& mensajes);
  /// Añade un material a un grupo, por orden de espesor entre los de su nombre.
  /// \returns el material añadido; vacío si falta el nombre o el grupo, o no se puede guardar
  std::optional<MaterialCatalogo> NuevoMaterial(RamaMateriales rama, std::string_view grupo,
                                                const MaterialNuevo& datos, Mensajes& mensajes);
  /// Borra un material. \returns si se ha borrado y guardado
  bool Borrar(const MaterialCatalogo& elegido, Mensajes& mensajes);
  /// Cambia un material por su vecino. \returns si se ha movido y guardado
  bool Mover(const MaterialCatalogo& elegido, Sentido sentido, Mensajes& mensajes);

 private:
  std::optional<MaterialCatalogo> Insertar(RamaMateriales rama, std::size_t grupo, const Capa& capa,
                                           Mensajes& mensajes);

  FicheroCatalogo fichero_;
};

/// Lee una capa de los atributos de un elemento de catálogo; lo que falta queda vacío o 0.
Capa CapaDeNodo(const NodoConservado& nodo, std::string_view grupo);
/// Pone en un elemento los atributos de una capa, con sus decimales.
void PonerCapa(NodoConservado& nodo, const Capa& capa);

}  // namespace novex
