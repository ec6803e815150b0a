#pragma once

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

namespace novex::fuzz {

inline std::string_view Texto(const std::uint8_t* datos, std::size_t bytes) {
  return {reinterpret_cast<const char*>(datos), bytes};
}

/// Para el blanco, con su entrada guardada, si no se cumple lo que el lector promete.
inline void Exigir(bool cumple, const char* que) {
  if (cumple) return;
  std::fprintf(stderr, "No se cumple: %s\n", que);
  std::abort();
}

/// Carpeta propia de un blanco, en memoria si la máquina la tiene ahí; se borra al acabar.
class CarpetaDeTrabajo {
 public:
  CarpetaDeTrabajo() {
    namespace fs = std::filesystem;
    std::error_code sinImportancia;
    const fs::path memoria = "/dev/shm";
    const fs::path base =
        fs::is_directory(memoria, sinImportancia) ? memoria : fs::temp_directory_path();
    ruta_ = base / ("novex_fuzz_" + std::to_string(::getpid()));
    fs::create_directories(ruta_);
  }
  CarpetaDeTrabajo(const CarpetaDeTrabajo&) = delete;
  CarpetaDeTrabajo& operator=(const CarpetaDeTrabajo&) = delete;
  ~CarpetaDeTrabajo() {
    std::error_code sinImportancia;
    std::filesystem::remove_all(ruta_, sinImportancia);
  }

  /// Escribe un fichero en la carpeta. \returns su camino
  std::filesystem::path Con(const std::string& nombre, std::string_view contenido) const {
    const std::filesystem::path ruta = ruta_ / nombre;
    std::ofstream(ruta, std::ios::binary)
        .write(contenido.data(), static_cast<std::streamsize>(contenido.size()));
    return ruta;
  }
  const std::filesystem::path& Ruta() const { return ruta_; }

 private:
  std::filesystem::path ruta_;
};

}  // namespace novex::fuzz
