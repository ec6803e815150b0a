#pragma once

#include <filesystem>
#include <string>

#include "outputs/CasoCalculado.h"
#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Un fichero como dirección "file:" de un documento HTML. Todo lo que no es una letra, una cifra o
/// un separador va codificado; también "_", para que ninguna carpeta parezca una marca.
std::string DireccionFichero(const std::filesystem::path& ruta);

/// Nombre de la flecha de una letra, "flechaA.bmp" a "flechaG.bmp"; sin letra, la neutra.
std::string FlechaDe(std::string_view letra);

/// Las imágenes de un edificio que los documentos enseñan; vacías si no las tiene.
struct ImagenesDocumento {
  std::filesystem::path carpeta;  ///< la de imágenes del programa
  std::filesystem::path edificio, plano;
};

/// Añade las imágenes de un documento: casillas, escala, flechas de las letras y las del edificio.
/// \param caso ya calificado
void VariablesImagenes(const CasoCalculado& caso, const ImagenesDocumento& imagenes,
                       std::vector<VBLE>& variables);

}  // namespace novex
