#include "base/FicheroSeguro.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <system_error>

#include "base/ErrorFichero.h"

namespace novex {
namespace {

[[noreturn]] void Fallar(const std::filesystem::path& ruta, const std::string& que) {
  throw ErrorFichero(ruta.string(), 0, 0, 0, que + " \"" + ruta.string() + "\"");
}

// Cierra el descriptor y borra el fichero provisional si no se llegó a renombrar.
class Provisional {
 public:
  explicit Provisional(std::filesystem::path destino)
      : ruta_(std::move(destino += ".parcial." + std::to_string(::getpid()))),
        descriptor_(::open(ruta_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644)) {}
  Provisional(const Provisional&) = delete;
  Provisional& operator=(const Provisional&) = delete;
  ~Provisional() {
    if (descriptor_ >= 0) ::close(descriptor_);
    std::error_code sinImportancia;
    if (!renombrado_) std::filesystem::remove(ruta_, sinImportancia);
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
    return renombrado_;
  }

 private:
  std::filesystem::path ruta_;
  int descriptor_;
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
  Provisional provisional(ruta);
  if (!provisional.Abierto() || !provisional.Escribir(contenido) || !provisional.Renombrar(ruta))
    Fallar(ruta, "No se pudo escribir el fichero");
}

}  // namespace novex
