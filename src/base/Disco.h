#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace novex {

/// Puerto de las operaciones con que se escribe un fichero. La clase misma es el disco de verdad;
/// otra puede fallar en la que quiera. Cada una dice si ha podido, como la llamada del sistema.
class Disco {
 public:
  virtual ~Disco() = default;
  /// Crea un fichero nuevo. \param plantilla acaba en "XXXXXX", que se cambia por algo que no hay
  /// \returns su descriptor, o negativo
  virtual int Crear(std::string& plantilla);
  /// Da a un fichero abierto unos permisos.
  virtual bool Permitir(int descriptor, mode_t permisos);
  /// \returns cuántos bytes ha escrito, que pueden ser menos, o negativo
  virtual ssize_t Escribir(int descriptor, std::string_view contenido);
  /// Espera a que lo escrito esté en el disco.
  virtual bool Volcar(int descriptor);
  virtual bool Cerrar(int descriptor);
  /// Pone un fichero en el sitio de otro, de una vez.
  virtual bool Renombrar(const std::filesystem::path& de, const std::filesystem::path& a);
  virtual void Borrar(const std::filesystem::path& ruta);
};

/// Escribe un fichero entero como `EscribirFichero`, en un disco dado. \throws ErrorFichero si no
/// se puede escribir; el fichero anterior sigue como estaba
void EscribirFicheroEn(Disco& disco, const std::filesystem::path& ruta, std::string_view contenido);

}  // namespace novex
