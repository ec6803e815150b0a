#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

namespace novex::pruebas {

/// Carpeta con los climas oficiales desempaquetados, que se borra al acabar. Vacía si no los hay:
/// están en `clima_oficial/met_2014.tar.xz` de la carpeta que dice NOVEX_DATOS_PRUEBA.
class ClimaOficial {
 public:
  ClimaOficial() {
    const char* datos = std::getenv("NOVEX_DATOS_PRUEBA");
    if (datos == nullptr) return;
    const auto paquete = std::filesystem::path(datos) / "clima_oficial" / "met_2014.tar.xz";
    std::error_code error;
    if (!std::filesystem::is_regular_file(paquete, error)) return;
    const auto destino = std::filesystem::temp_directory_path() /
                         ("novex_clima_oficial_" + std::to_string(::getpid()));
    std::filesystem::create_directories(destino);
    carpeta_ = destino;
    const std::string orden =
        "tar -xf '" + paquete.string() + "' -C '" + destino.string() + "' >/dev/null 2>&1";
    if (std::system(orden.c_str()) != 0) Borrar();
  }
  ClimaOficial(const ClimaOficial&) = delete;
  ClimaOficial& operator=(const ClimaOficial&) = delete;
  ~ClimaOficial() { Borrar(); }

  const std::optional<std::filesystem::path>& Carpeta() const { return carpeta_; }

 private:
  void Borrar() {
    std::error_code sinImportancia;
    if (carpeta_) std::filesystem::remove_all(*carpeta_, sinImportancia);
    carpeta_.reset();
  }
  std::optional<std::filesystem::path> carpeta_;
};

}  // namespace novex::pruebas
