#include "base/Disco.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <system_error>

#include "base/ErrorFichero.h"

namespace novex {
namespace {

// Permisos de un fichero que ya existe, o los corrientes de uno nuevo.
mode_t PermisosDe(const std::filesystem::path& destino) {
  struct stat datos {};
  return ::stat(destino.c_str(), &datos) == 0 ? datos.st_mode & 0777U : 0644U;
}

// Deja en el disco el cambio de nombre. El fichero ya está en su sitio: si no se puede, no se
// pierde nada que no se perdiera antes.
void VolcarCarpeta(Disco& disco, const std::filesystem::path& fichero) {
  const std::filesystem::path carpeta =
      fichero.has_parent_path() ? fichero.parent_path() : std::filesystem::path(".");
  const int descriptor = ::open(carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  disco.Volcar(descriptor);
  disco.Cerrar(descriptor);
}

// Fichero al lado del destino, con nombre propio. Cierra el descriptor y se borra si no se llegó a
// renombrar.
class Provisional {
 public:
  Provisional(Disco& disco, const std::filesystem::path& destino) : disco_(disco) {
    std::string plantilla = destino.string() + ".parcial.XXXXXX";
    descriptor_ = disco_.Crear(plantilla);
    if (descriptor_ < 0) return;
    ruta_ = plantilla;
    // Con otros permisos lo escrito vale lo mismo.
    disco_.Permitir(descriptor_, PermisosDe(destino));
  }
  Provisional(const Provisional&) = delete;
  Provisional& operator=(const Provisional&) = delete;
  ~Provisional() {
    if (descriptor_ >= 0) disco_.Cerrar(descriptor_);
    if (!renombrado_ && !ruta_.empty()) disco_.Borrar(ruta_);
  }

  bool Abierto() const { return descriptor_ >= 0; }

  bool Escribir(std::string_view contenido) {
    while (!contenido.empty()) {
      const ssize_t n = disco_.Escribir(descriptor_, contenido);
      if (n < 0 && errno == EINTR) continue;
      if (n <= 0) return false;
      contenido.remove_prefix(static_cast<std::size_t>(n));
    }
    return disco_.Volcar(descriptor_);
  }

  bool Renombrar(const std::filesystem::path& destino) {
    const bool cerrado = disco_.Cerrar(descriptor_);
    descriptor_ = -1;
    if (!cerrado) return false;
    renombrado_ = disco_.Renombrar(ruta_, destino);
    if (renombrado_) VolcarCarpeta(disco_, destino);
    return renombrado_;
  }

 private:
  Disco& disco_;
  std::filesystem::path ruta_;
  int descriptor_ = -1;
  bool renombrado_ = false;
};

}  // namespace

int Disco::Crear(std::string& plantilla) {
  return ::mkostemp(plantilla.data(), O_CLOEXEC);
}

bool Disco::Permitir(int descriptor, mode_t permisos) {
  return ::fchmod(descriptor, permisos) == 0;
}

ssize_t Disco::Escribir(int descriptor, std::string_view contenido) {
  return ::write(descriptor, contenido.data(), contenido.size());
}

bool Disco::Volcar(int descriptor) {
  return ::fsync(descriptor) == 0;
}

bool Disco::Cerrar(int descriptor) {
  return ::close(descriptor) == 0;
}

bool Disco::Renombrar(const std::filesystem::path& de, const std::filesystem::path& a) {
  std::error_code fallo;
  std::filesystem::rename(de, a, fallo);
  return !fallo;
}

void Disco::Borrar(const std::filesystem::path& ruta) {
  std::error_code sinImportancia;
  std::filesystem::remove(ruta, sinImportancia);
}

void EscribirFicheroEn(Disco& disco, const std::filesystem::path& ruta,
                       std::string_view contenido) {
  // Un enlace sigue siendo un enlace: se cambia el fichero al que lleva.
  std::error_code sinImportancia;
  std::filesystem::path destino = std::filesystem::weakly_canonical(ruta, sinImportancia);
  if (destino.empty()) destino = ruta;
  Provisional provisional(disco, destino);
  if (!provisional.Abierto() || !provisional.Escribir(contenido) || !provisional.Renombrar(destino))
    throw ErrorFichero(ruta.string(), 0, 0, 0,
                       "No se pudo escribir el fichero \"" + ruta.string() + "\"");
}

}  // namespace novex
