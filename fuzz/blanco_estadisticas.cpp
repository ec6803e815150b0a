// Las estadísticas de clima, tres tablas separadas por un byte nulo. Una que no se da es la del
// ejemplo que acompaña al programa.
#include <algorithm>
#include <array>

#include "Comun.h"
#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "demand/EstadisticasClima.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t bytes) {
  using namespace novex;
  static const fuzz::CarpetaDeTrabajo carpeta;
  static const std::array<std::string, 3> nombres = {"mensual.csv", "perfil_diario.csv",
                                                     "tendencia.csv"};
  static const std::array<std::string, 3> ejemplo = {
      LeerFichero(NOVEX_RAIZ_DATOS "/clima/mensual.csv"),
      LeerFichero(NOVEX_RAIZ_DATOS "/clima/perfil_diario.csv"),
      LeerFichero(NOVEX_RAIZ_DATOS "/clima/tendencia.csv")};
  std::string_view resto = fuzz::Texto(datos, bytes);
  for (std::size_t i = 0; i < nombres.size(); ++i) {
    const std::size_t fin = std::min(resto.find('\0'), resto.size());
    carpeta.Con(nombres[i], fin == 0 ? std::string_view(ejemplo[i]) : resto.substr(0, fin));
    resto.remove_prefix(std::min(fin + 1, resto.size()));
  }
  try {
    const EstadisticasClima clima = LeerEstadisticasClima(carpeta.Ruta());
    fuzz::Exigir(clima.zonas.size() == 32, "todas las zonas");
  } catch (const ErrorFichero&) {
  }
  return 0;
}
