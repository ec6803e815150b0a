#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "model/Edificio.h"
#include "reference/Cerramiento.h"
#include "reference/FicheroCatalogo.h"

namespace novex {

/// Una composición y dónde está en el catálogo.
struct ComposicionCatalogo {
  FamiliaCerramiento familia = FamiliaCerramiento::MurosExterior;
  std::string subtipo;     ///< su grupo
  std::size_t grupo = 0;   ///< posición del grupo en la familia
  std::size_t indice = 0;  ///< posición en el grupo
  std::string nombre;
  std::string periodo;      ///< época en que se construía así; puede faltar
  std::vector<Capa> capas;  ///< de fuera adentro

  /// U con las películas de su familia, W/m2K.
  float U() const { return UCerramiento(capas, familia); }
};

/// Título de la vista previa de una composición elegida, al que sigue su nombre.
inline constexpr std::string_view kNuevoElegido = "Nuevo cerramiento elegido:  ";
/// Lo que se añade al nombre de una composición del catálogo que se abre para cambiarla.
inline constexpr std::string_view kMarcaCopia = "(D)";

/// Biblioteca de composiciones por familia y subtipo, sobre `Composiciones.xml`. Cada cambio se
/// guarda en el fichero; si no se puede guardar, no hay cambio.
class CatalogoComposiciones {
 public:
  /// \throws ErrorFichero si el fichero falta o está mal formado
  explicit CatalogoComposiciones(std::filesystem::path ruta)
      : fichero_(std::move(ruta), "ComposicionesNovex") {}

  /// Subtipos de una familia, en el orden del fichero.
  std::vector<std::string> Subtipos(FamiliaCerramiento familia) const;
  /// Composiciones de un subtipo, o de todos con "Todos", en el orden del fichero.
  std::vector<ComposicionCatalogo> Composiciones(FamiliaCerramiento familia,
                                                 std::string_view subtipo) const;
  /// Composiciones cuyo nombre, subtipo o época contiene el texto, sin distinguir mayúsculas ni
  /// acentos.
  std::vector<ComposicionCatalogo> Buscar(std::string_view texto) const;
  /// La primera composición de ese nombre en la familia; vacío si no está.
  std::optional<ComposicionCatalogo> PorNombre(FamiliaCerramiento familia,
                                               std::string_view nombre) const;

  /// Guarda en un subtipo la composición de una posición del edificio, con su nombre. Con "Todos",
  /// o un subtipo que no existe, avisa y no hace nada. Un nombre que ya está en el subtipo se
  /// numera. \returns si se ha guardado
  bool Almacenar(const Edificio& edificio, std::size_t ranura, std::string_view subtipo,
                 Mensajes& mensajes);
  /// ¿Se puede crear una composición en ese subtipo? Con "Todos" o uno que no existe, avisa.
  bool PuedeCrear(FamiliaCerramiento familia, std::string_view subtipo, Mensajes& mensajes) const;
  /// Crea una composición al final de un subtipo, después de comprobar su nombre y sus capas.
  /// \returns si se ha creado y guardado
  bool Crear(FamiliaCerramiento familia, std::string_view subtipo, std::string_view nombre,
             std::span<const Capa> capas, Mensajes& mensajes);
  /// Borra una composición. La última de un subtipo no se borra. \returns si se ha borrado
  bool Eliminar(const ComposicionCatalogo& elegida, Mensajes& mensajes);
  /// Cambia una composición por su vecina. \returns si se ha movido y guardado
  bool Mover(const ComposicionCatalogo& elegida, Sentido sentido, Mensajes& mensajes);

 private:
  bool Anadir(FamiliaCerramiento familia, std::string_view subtipo, std::string_view nombre,
              std::span<const Capa> capas, Mensajes& mensajes);

  FicheroCatalogo fichero_;
};

/// Copia de una composición para cambiarla, con la marca de copia en el nombre.
ComposicionCatalogo CopiaParaEditar(ComposicionCatalogo elegida);

/// Pone una composición en una posición del edificio: sus materiales pasan por el almacén del caso,
/// que junta los iguales, y la U de la posición es la de su familia.
/// \throws std::out_of_range si la posición no existe
void ElegirComposicion(Edificio& edificio, std::size_t ranura, std::string_view nombre,
                       std::span<const Capa> capas);
/// Capas de la composición de una posición, con las columnas del catálogo.
std::vector<Capa> CapasDeRanura(const Edificio& edificio, std::size_t ranura);

}  // namespace novex
