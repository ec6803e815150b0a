#pragma once

#include <stdexcept>
#include <string>

namespace novex {

/// Fichero que falta, que no se entiende o que no se puede escribir. Es el único tipo que sale de
/// la lectura y la escritura de ficheros; cada programa lo recoge en un solo lugar. `what()` da el
/// mensaje completo para el usuario.
class ErrorFichero : public std::runtime_error {
 public:
  /// \param rutaFichero camino del fichero, tal como se pidió
  /// \param codigoError código de la tabla de la capa XML, o 0 si no le corresponde ninguno
  /// \param lineaError,columnaError posición desde 1, o 0 si no se conoce
  /// \param mensaje texto completo que se muestra
  ErrorFichero(std::string rutaFichero, int codigoError, int lineaError, int columnaError,
               const std::string& mensaje)
      : std::runtime_error(mensaje),
        ruta(std::move(rutaFichero)),
        codigo(codigoError),
        linea(lineaError),
        columna(columnaError) {}

  std::string ruta;
  int codigo;
  int linea;
  int columna;
};

}  // namespace novex
