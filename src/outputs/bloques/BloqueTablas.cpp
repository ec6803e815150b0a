#include <map>

#include "outputs/EnergiaRenovable.h"
#include "outputs/bloques/Bloque.h"
#include "outputs/bloques/BloquesResultados.h"
#include "outputs/documentos/EquiposServicio.h"

namespace novex {
namespace {

using bloque::Grupo;
using bloque::Hoja;
using bloque::HojaCifra;
using V = VectorEnergetico;

bool TomaRenovable(const GeneradorServicio& g) {
  return g.bombaDeCalor || g.vector == V::Biomasa_Pellet || g.vector == V::Biomasa_Otros;
}

// Potencia de calor de las bombas y de las calderas de biomasa; un generador que da los dos
// servicios cuenta una vez.
double PotenciaTermica(const CasoCalculado& caso) {
  std::map<std::pair<std::size_t, int>, float> potencias;
  for (const Servicio s : {kCalefaccion, kACS})
    for (const GeneradorServicio& g : GeneradoresDeServicio(caso, s))
      if (!g.sustitucion && TomaRenovable(g)) potencias[{g.bloque, g.generador}] = g.potencia;
  double kW = 0;
  for (const auto& [generador, potencia] : potencias) kW += static_cast<double>(potencia);
  return kW;
}

NodoConservado Termica(const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const OrigenesServicio cal = OrigenesDe(r, kCalefaccion), ref = OrigenesDe(r, kRefrigeracion),
                         acs = OrigenesDe(r, kACS);
  const float energia = cal.Termica() + ref.Termica() + acs.Termica();
  if (!(energia > 0.0F)) return Grupo("Termica");
  std::string fuentes;
  const auto anadir = [&fuentes](const char* fuente, float kWh) {
    if (kWh > 0.0F) fuentes += (fuentes.empty() ? "" : " + ") + std::string(fuente);
  };
  anadir("Solar térmica", acs.solar);
  anadir("Medio ambiente", cal.ambiente + acs.ambiente);
  anadir("Biomasa", cal.biomasa + acs.biomasa);
  const float demanda = r.demandaACS * caso.edificio->GetRecinto(0).Suelo_habitable_m2;
  return Grupo("Termica",
               {Grupo("Sistema",
                      {Hoja("Id", "TERMICA-1"), Hoja("Nombre", "Renovable térmica"),
                       Hoja("Tipo", fuentes), HojaCifra("PotenciaInstalada", PotenciaTermica(caso)),
                       HojaCifra("EnergiaGenerada", energia),
                       HojaCifra("CoberturaConsumoFinalCal", Porciento(cal.Termica(), cal.total)),
                       HojaCifra("CoberturaConsumoFinalRef", Porciento(ref.Termica(), ref.total)),
                       HojaCifra("CoberturaConsumoFinalAcs", Porciento(acs.Termica(), acs.total)),
                       HojaCifra("CoberturaDemandaAcs", Porciento(acs.Termica(), demanda))})});
}

NodoConservado Electrica(const CasoCalculado& caso) {
  double kW = 0;
  float autoconsumida = 0;
  for (const float pico : caso.edificio->GetDatosGenerales().PotPico_FV)
    kW += static_cast<double>(pico);
  for (std::size_t s = 0; s < kServicios; ++s)
    autoconsumida += OrigenesDe(caso.resultado->resultados, static_cast<Servicio>(s)).fotovoltaica;
  const float generada = caso.resultado->meses.produccionFotovoltaica[0];
  if (kW == 0.0 && generada == 0.0F) return Grupo("Electrica");
  return Grupo("Electrica",
               {Grupo("Sistema", {Hoja("Id", "ELECTRICA-1"), Hoja("Nombre", "Fotovoltaica insitu"),
                                  Hoja("Tipo", "Fotovoltaica"), HojaCifra("PotenciaInstalada", kW),
                                  HojaCifra("EnergiaGenerada", generada),
                                  HojaCifra("EnergiaGeneradaAutoconsumida", autoconsumida)})});
}

}  // namespace

NodoConservado BloqueTablas(const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const float area = caso.edificio->GetRecinto(0).Suelo_habitable_m2;
  const float otros = EmisionesNoElectricas(r);
  return Grupo("Tablas", {Grupo("EnergiasRenovables", {Termica(caso), Electrica(caso)}),
                          Grupo("DesgloseEmisiones",
                                {HojaCifra("ConsumoElectrico", r.emisionesElectricidad),
                                 HojaCifra("ConsumoOtros", otros),
                                 HojaCifra("TotalConsumoElectrico", r.emisionesElectricidad * area),
                                 HojaCifra("TotalConsumoOtros", otros * area)})});
}

}  // namespace novex
