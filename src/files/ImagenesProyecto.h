#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/EspacioTrabajo.h"
#include "base/Mensajes.h"
#include "model/GestorEdifActivo.h"

namespace novex {

/// Las dos imágenes de un proyecto.
enum class LugarImagen { Edificio, Plano };

/// Lo que es una imagen por sus primeros bytes.
enum class ClaseImagen { Jpeg, Png };

/// Una imagen lista para enseñarse.
struct ImagenDecodificada {
  ClaseImagen clase = ClaseImagen::Jpeg;
  std::string bytes;
};

/// Tamaño mayor de un fichero de imagen que se toma, en bytes.
inline constexpr std::size_t kTamanoMaximoImagen = std::size_t{20} * 1024 * 1024;

/// El texto con que se guarda la imagen de un fichero: sus bytes en Base64 tras la marca de su
/// clase. La clase la dicen los bytes, no la extensión.
/// \returns nada, con su aviso, si el fichero no se puede abrir, pasa de `kTamanoMaximoImagen`, no
/// es JPEG ni PNG o es un PNG que no se puede decodificar
std::optional<std::string> TextoDeImagen(const std::filesystem::path& fichero, Mensajes& mensajes);

/// Los bytes de la imagen que guarda un texto, con los marcadores enteros o a medias.
/// \returns nada, con su aviso, si el texto no tiene la marca de una imagen, su Base64 está dañado
/// o sus bytes no son los de una imagen JPEG o PNG
std::optional<ImagenDecodificada> DecodificarImagen(std::string_view texto, Mensajes& mensajes);

/// El texto de una imagen de un caso; nulo si no la tiene.
const std::shared_ptr<const std::string>& ImagenDe(const DatosPantalla& pantalla,
                                                   LugarImagen lugar);

/// Pone el texto de una imagen en todos los casos del proyecto, que la comparten; nulo la quita.
void PonerImagen(GestorEdifActivo& gestor, LugarImagen lugar,
                 const std::shared_ptr<const std::string>& texto);

/// Fichero de trabajo de una imagen, el que nombran los documentos. Se llama ".jpg" también cuando
/// guarda un PNG.
std::filesystem::path RutaImagen(const EspacioTrabajo& espacio, LugarImagen lugar);

/// Escribe una imagen en su fichero de trabajo. \returns false, con su aviso, si no se puede
bool VolcarImagen(const EspacioTrabajo& espacio, LugarImagen lugar,
                  const ImagenDecodificada& imagen, Mensajes& mensajes);

}  // namespace novex
