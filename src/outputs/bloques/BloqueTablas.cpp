#include <map>

#include "outputs/bloques/Bloque.h"
#include "outputs/bloques/BloquesResultados.h"
#include "outputs/documentos/EquiposServicio.h"

namespace novex {
namespace {

using bloque::Grupo;
using bloque::Hoja;
using bloque::HojaCifra;
using V = VectorEnergetico;

double Anual(const ResultadosCaso& r, Servicio servicio, V vector) {
  return static_cast<double>(r.servicio[servicio].finalPorVector[Indice(vector)][0]);
}

// Energía térmica renovable de un servicio en el año, kWh.
struct Renovable {
  double solar = 0, ambiente = 0, biomasa = 0, total = 0;
  double Suma() const { return solar + ambiente + biomasa; }
  double Parte(double de) const { return de > 0.0 ? 100.0 * Suma() / de : 0.0; }
};

Renovable RenovableDe(const ResultadosCaso& r, Servicio servicio) {
  Renovable e;
  e.solar = Anual(r, servicio, V::Energiasolartermica);
  e.ambiente = Anual(r, servicio, V::MedioAmbiente);
  e.biomasa = Anual(r, servicio, V::Biomasa_Pellet) + Anual(r, servicio, V::Biomasa_Otros);
  for (const TablaMensual& tabla : r.servicio[servicio].finalPorVector)
    e.total += static_cast<double>(tabla[0]);
  return e;
}

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
  const Renovable cal = RenovableDe(r, kCalefaccion), ref = RenovableDe(r, kRefrigeracion),
                  acs = RenovableDe(r, kACS);
  const double energia = cal.Suma() + ref.Suma() + acs.Suma();
  if (!(energia > 0.0)) return Grupo("Termica");
  std::string fuentes;
  const auto anadir = [&fuentes](const char* fuente, double kWh) {
    if (kWh > 0.0) fuentes += (fuentes.empty() ? "" : " + ") + std::string(fuente);
  };
  anadir("Solar térmica", acs.solar);
  anadir("Medio ambiente", cal.ambiente + acs.ambiente);
  anadir("Biomasa", cal.biomasa + acs.biomasa);
  const double demanda =
      static_cast<double>(r.demandaACS * caso.edificio->GetRecinto(0).Suelo_habitable_m2);
  return Grupo("Termica",
               {Grupo("Sistema",
                      {Hoja("Id", "TERMICA-1"), Hoja("Nombre", "Renovable térmica"),
                       Hoja("Tipo", fuentes), HojaCifra("PotenciaInstalada", PotenciaTermica(caso)),
                       HojaCifra("EnergiaGenerada", energia),
                       HojaCifra("CoberturaConsumoFinalCal", cal.Parte(cal.total)),
                       HojaCifra("CoberturaConsumoFinalRef", ref.Parte(ref.total)),
                       HojaCifra("CoberturaConsumoFinalAcs", acs.Parte(acs.total)),
                       HojaCifra("CoberturaDemandaAcs", acs.Parte(demanda))})});
}

NodoConservado Electrica(const CasoCalculado& caso) {
  double kW = 0, autoconsumida = 0;
  for (const float pico : caso.edificio->GetDatosGenerales().PotPico_FV)
    kW += static_cast<double>(pico);
  for (const IndicadoresServicio& s : caso.resultado->resultados.servicio)
    autoconsumida += static_cast<double>(s.finalPorVector[Indice(V::Energiasolarfotovoltaica)][0]);
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
  const float otros = r.total[kEmisiones] - r.emisionesElectricidad;
  return Grupo("Tablas", {Grupo("EnergiasRenovables", {Termica(caso), Electrica(caso)}),
                          Grupo("DesgloseEmisiones",
                                {HojaCifra("ConsumoElectrico", r.emisionesElectricidad),
                                 HojaCifra("ConsumoOtros", otros),
                                 HojaCifra("TotalConsumoElectrico", r.emisionesElectricidad * area),
                                 HojaCifra("TotalConsumoOtros", otros * area)})});
}

}  // namespace novex
