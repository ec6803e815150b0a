#include "outputs/bloques/DerivadosDeResultados.h"

#include "demand/CargaInternaMedia.h"
#include "model/GestorEdifActivo.h"
#include "outputs/ReglasResultados.h"
#include "outputs/bloques/AuxiliaresSistema.h"
#include "outputs/bloques/BloquesResultados.h"

namespace novex {
namespace {

constexpr std::size_t kCasosUsuario = 1 + caso::kMejoras;

DatosDerivados::Caso DeCaso(const CasoCalculado& caso) {
  const calculo& r = *caso.resultado;
  const auto kWh = [&r](const char* atributo) {
    return static_cast<float>(SumaAnual(r, atributo) * 0.001);
  };
  DatosDerivados::Caso d = VentilacionDeCaso(caso);
  d.UCTE = r.resultados.Uefectiva;
  d.WBombCAPST = kWh("WCS");
  d.WBombDEPST = kWh("WDEPS");
  d.WBombRECST = kWh("WRECS");
  d.WEnergiaFinalVent = r.meses.ventilacion[0];
  d.WEnergiaFinalVentUTC = r.meses.ventiladores[kCalefaccion][0];
  d.WEnergiaFinalVentUTR = r.meses.ventiladores[kRefrigeracion][0];
  d.CargaInternaMedia = CargaInternaMedia(*caso.edificio);
  d.resultadosSistemas = ResultadosDeSistemas(caso);
  return d;
}

}  // namespace

DatosDerivados DerivadosDeResultados(const std::vector<CasoCalculado>& casos,
                                     const DocumentosHE& documentos) {
  DatosDerivados derivados;
  std::vector<CasoCalculado> mejoras;
  for (std::size_t i = 0; i < kCasosUsuario; ++i)
    for (const CasoCalculado& c : casos) {
      if (c.nombre != GestorEdifActivo::NombreCasoUsuario(i)) continue;
      derivados.casos.resize(i + 1);
      derivados.casos[i] = DeCaso(c);
      if (i > 0) mejoras.push_back(c);
    }
  const CasoCalculado* base = CasoBase(casos);
  if (base == nullptr) return derivados;
  derivados.casos.front().bloques = {BloqueSistemas(*base),
                                     BloqueIndicadores(*base),
                                     BloqueIndicadoresReferencia(*base),
                                     BloqueTablas(*base),
                                     BloqueEscalas(*base),
                                     BloqueCalificacion(*base),
                                     BloqueMedidasMejora(*base, mejoras),
                                     BloqueInspecciones(base->edificio->GetDatosGenerales()),
                                     BloqueDatosBalance(*base),
                                     BloqueResultadosBalance(*base),
                                     BloqueOtrosIndicadores(*base, documentos)};
  return derivados;
}

}  // namespace novex
