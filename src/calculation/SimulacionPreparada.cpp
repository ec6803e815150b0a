#include "calculation/SimulacionPreparada.h"

#include "calculation/ComprobarDatos.h"
#include "calculation/PrepararCaso.h"

namespace novex {
namespace {

std::unique_ptr<calculo> CopiarForzando(const calculo& preparado, const Forzados& forzados) {
  auto caso = std::make_unique<calculo>(preparado);
  caso->resultados.forzados = forzados;
  return caso;
}

}  // namespace

SimulacionPreparada::SimulacionPreparada(const Edificio& edificio, const calculo& preparado,
                                         const Forzados& forzados, Mensajes& mensajes)
    : edificio_(edificio.Clonar()),
      calculo_(CopiarForzando(preparado, forzados)),
      simulacion_(*edificio_, ResolverAjustes(*edificio_), *calculo_, mensajes) {}

bool SimulacionPreparada::Avanzar(int horas) {
  if (simulacion_.Avanzar(horas)) return true;
  simulacion_.Terminar();
  ComprobarResultados(*calculo_);
  return false;
}

}  // namespace novex
