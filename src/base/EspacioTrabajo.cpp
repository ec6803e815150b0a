#include "base/EspacioTrabajo.h"

#include <array>

namespace novex {

std::string CarpetaClima(const std::string& codigoPostal) {
  for (const char* ano : {"1992", "2002", "2012", "2022"})
    if (codigoPostal == std::string("-") + ano) return std::string("database") + ano;
  return "databaseCTE";
}

std::filesystem::path EspacioTrabajo::Clima(const std::string& zona,
                                            const std::string& codigoPostal) const {
  return programa / CarpetaClima(codigoPostal) / ("Zona" + zona + ".met");
}

std::filesystem::path BuscarCarpetaPrograma(const std::filesystem::path& ejecutable) {
  const std::filesystem::path junto = ejecutable.parent_path();
  const std::array<std::filesystem::path, 3> candidatas = {junto / "programa", junto,
                                                           junto.parent_path() / "share" / "novex"};
  for (const auto& carpeta : candidatas) {
    std::error_code sinImportancia;
    if (std::filesystem::is_directory(carpeta / "database", sinImportancia)) return carpeta;
  }
  return {};
}

}  // namespace novex
