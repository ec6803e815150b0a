#include "base/FicheroSeguro.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <system_error>

#include "base/ErrorFichero.h"

namespace novex {
namespace {

[[noreturn]] void Fallar(const std::filesystem::path& ruta, const std::string& que) {
  throw ErrorFichero(ruta.string(), 0, 0, 0, que + " \"" + ruta.string() + "\"");
}

// Permisos de un fichero que ya existe, o los corrientes de uno nuevo.
mode_t PermisosDe(const std::filesystem::path& destino) {
  struct stat datos {};
  return ::stat(destino.c_str(), &datos) == 0 ? datos.st_mode & 0777U : 0644U;
}

// Deja en el disco el cambio de nombre.
void VolcarCarpeta(const std::filesystem::path& fichero) {
  const std::filesystem::path carpeta =
      fichero.has_parent_path() ? fichero.parent_path() : std::filesystem::path(".");
  const int descriptor = ::open(carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

// Fichero al lado del destino, con nombre propio. Cierra el descriptor y se borra si no se llegó a
// renombrar.
class Provisional {
 public:
  explicit Provisional(const std::filesystem::path& destino) {
    std::string plantilla = destino.string() + ".parcial.XXXXXX";
    descriptor_ = ::mkostemp(plantilla.data(), O_CLOEXEC);
    ruta_ = plantilla;
    if (descriptor_ >= 0) ::fchmod(descriptor_, PermisosDe(destino));
  }
  Provisional(const Provisional&) = delete;
  Provisional& operator=(const Provisional&) = delete;
  ~Provisional() {
    if (descriptor_ >= 0) ::close(descriptor_);
    std::error_code sinImportancia;
    if (!renombrado_ && !ruta_.empty()) std::filesystem::remove(ruta_, sinImportancia);
  }

  bool Abierto() const { return descriptor_ >= 0; }

  bool Escribir(std::string_view contenido) {
    while (!contenido.empty()) {
      const ssize_t n = ::write(descriptor_, contenido.data(), contenido.size());
      if (n < 0 && errno == EINTR) continue;
      if (n <= 0) return false;
      contenido.remove_prefix(static_cast<std::size_t>(n));
    }
    return ::fsync(descriptor_) == 0;
  }

  bool Renombrar(const std::filesystem::path& destino) {
    const int cerrado = ::close(descriptor_);
    descriptor_ = -1;
    if (cerrado != 0) return false;
    std::error_code fallo;
    std::filesystem::rename(ruta_, destino, fallo);
    renombrado_ = !fallo;
    if (renombrado_) VolcarCarpeta(destino);
    return renombrado_;
  }

 private:
  std::filesystem::path ruta_;
  int descriptor_ = -1;
  bool renombrado_ = false;
};

}  // namespace

std::string LeerFichero(const std::filesystem::path& ruta) {
  std::error_code fallo;
  if (!std::filesystem::is_regular_file(ruta, fallo)) Fallar(ruta, "No se pudo abrir el fichero");
  const auto tamano = std::filesystem::file_size(ruta, fallo);
  if (fallo) Fallar(ruta, "No se pudo abrir el fichero");
  if (tamano > kTamanoMaximoFichero) Fallar(ruta, "Pasa de 256 MiB y no se lee el fichero");
  std::ifstream entrada(ruta, std::ios::binary);
  if (!entrada) Fallar(ruta, "No se pudo abrir el fichero");
  std::string contenido(static_cast<std::size_t>(tamano), '\0');
  entrada.read(contenido.data(), static_cast<std::streamsize>(contenido.size()));
  if (!entrada) Fallar(ruta, "No se pudo leer entero el fichero");
  return contenido;
}

void EscribirFichero(const std::filesystem::path& ruta, std::string_view contenido) {
  // Un enlace sigue siendo un enlace: se cambia el fichero al que lleva.
  std::error_code sinImportancia;
  std::filesystem::path destino = std::filesystem::weakly_canonical(ruta, sinImportancia);
  if (destino.empty()) destino = ruta;
  Provisional provisional(destino);
  if (!provisional.Abierto() || !provisional.Escribir(contenido) || !provisional.Renombrar(destino))
    Fallar(ruta, "No se pudo escribir el fichero");
}

}  // namespace novex
