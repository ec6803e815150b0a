#pragma once

#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <string>
#include <system_error>

namespace novex::pruebas {

/// Carpeta propia de una prueba, que se borra al acabar.
class CarpetaTemporal {
 public:
  CarpetaTemporal() {
    static std::atomic<int> cuenta{0};
    ruta_ = std::filesystem::temp_directory_path() /
            ("novex_" + std::to_string(::getpid()) + "_" + std::to_string(cuenta++));
    std::filesystem::create_directories(ruta_);
  }
  CarpetaTemporal(const CarpetaTemporal&) = delete;
  CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;
  ~CarpetaTemporal() {
    std::error_code sinImportancia;
    std::filesystem::remove_all(ruta_, sinImportancia);
  }
  std::filesystem::path operator/(const std::string& nombre) const { return ruta_ / nombre; }

 private:
  std::filesystem::path ruta_;
};

}  // namespace novex::pruebas
