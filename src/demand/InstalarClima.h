#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace novex {

/// Lo que pasó con el fichero de clima de una zona.
struct ClimaInstalado {
  std::string zona;
  std::filesystem::path origen;  ///< vacío si la carpeta no lo tiene
  bool instalado = false;
  std::vector<std::string> faltas;  ///< por qué no se instaló
};

/// Instala los ficheros de clima oficiales de una carpeta: busca `zona<zona>.met` con cualquier
/// caja de letras, los comprueba (`ComprobarMet`) y copia los que valen, byte a byte, como
/// `Zona<zona>.met`. \param carpeta de la que se toman \param carpetaConjunto la del conjunto de
/// clima; se crea si no está \returns una entrada por zona, en el orden de `kZonasMet` \throws
/// ErrorFichero si la carpeta no se puede leer o si no se puede escribir.
std::vector<ClimaInstalado> InstalarClima(const std::filesystem::path& carpeta,
                                          const std::filesystem::path& carpetaConjunto);

}  // namespace novex
