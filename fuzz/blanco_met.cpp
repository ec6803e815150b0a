// El lector de ficheros de clima y su repaso.
#include <algorithm>

#include "Comun.h"
#include "base/ErrorFichero.h"
#include "demand/Clima.h"
#include "demand/FicheroMet.h"

namespace {

void Probar(std::string_view texto) {
  using namespace novex;
  try {
    const FicheroMet leido = LeerMet(texto, "entrada.met");
    fuzz::Exigir(leido.horas.size() == static_cast<std::size_t>(kHorasAno), "un año entero");
    static_cast<void>(ResumirMet(leido));
    SeriesClima series;
    LeerClima(leido, series);
  } catch (const ErrorFichero&) {
  }
  static_cast<void>(ComprobarMet(texto));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t bytes) {
  const std::string_view texto = novex::fuzz::Texto(datos, bytes);
  Probar(texto);
  // Un año son 8760 líneas de hora: las de una entrada corta se repiten hasta tenerlas.
  constexpr std::size_t kHoras = 8760, kMayor = 1'000'000;
  const std::size_t titulo = texto.find('\n');
  const std::size_t lugar = titulo < bytes ? texto.find('\n', titulo + 1) : titulo;
  if (lugar >= bytes) return 0;
  const std::string_view horas = texto.substr(lugar + 1);
  const auto lineas = static_cast<std::size_t>(std::count(horas.begin(), horas.end(), '\n'));
  if (lineas == 0 || lineas >= kHoras || kHoras / lineas * horas.size() > kMayor) return 0;
  std::string entero(texto);
  for (std::size_t i = 0; i <= kHoras / lineas; ++i) entero += horas;
  Probar(entero);
  return 0;
}
