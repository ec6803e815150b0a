#include "outputs/documentos/VariablesRenovables.h"

#include <numeric>

#include "outputs/documentos/VariablesCalificacion.h"

namespace novex {
namespace {

using enum VectorEnergetico;

// Energía final de un servicio en el año por su origen, kWh.
struct OrigenesServicio {
  float total = 0, biomasa = 0, ambiente = 0, solar = 0, fotovoltaica = 0;
};

OrigenesServicio Origenes(const ResultadosCaso& r, Servicio servicio) {
  const auto& vectores = r.servicio[servicio].finalPorVector;
  const auto ano = [&](VectorEnergetico v) { return vectores[Indice(v)][0]; };
  OrigenesServicio o;
  for (std::size_t v = 0; v < kVectores; ++v) o.total += ano(static_cast<VectorEnergetico>(v));
  o.biomasa = ano(Biomasa_Pellet) + ano(Biomasa_Otros);
  o.ambiente = ano(MedioAmbiente);
  o.solar = ano(Energiasolartermica);
  o.fotovoltaica = ano(Energiasolarfotovoltaica);
  return o;
}

float Porciento(float parte, float total) {
  return total > 0.0F ? 100.0F * parte / total : 0.0F;
}

class Cifras {
 public:
  explicit Cifras(std::vector<VBLE>& variables) : variables_(variables) {}
  void operator()(const char* nombre, float valor) {
    variables_.push_back({nombre, CifraDocumento(valor)});
  }

 private:
  std::vector<VBLE>& variables_;
};

}  // namespace

void VariablesRenovables(const CasoCalculado& caso, std::vector<VBLE>& variables) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const float superficie = caso.edificio->GetRecinto(0).Suelo_habitable_m2;
  const OrigenesServicio calor = Origenes(r, kCalefaccion);
  const OrigenesServicio agua = Origenes(r, kACS);
  Cifras poner(variables);

  const float biomasaCalor = Porciento(calor.biomasa, calor.total);
  const float ambienteCalor = Porciento(calor.ambiente, calor.total);
  poner("SOLARCAL", 0);
  poner("BIOCAL", biomasaCalor);
  poner("BCCAL", ambienteCalor);
  poner("TOTCALREN", biomasaCalor + ambienteCalor);
  for (const char* nombre : {"SOLARREF", "BIOREF", "BCREF", "TOTREFREN"}) poner(nombre, 0);

  const auto filaACS = [&](float total, const std::array<const char*, 4>& nombres) {
    const std::array<float, 3> partes = {Porciento(agua.solar, total),
                                         Porciento(agua.biomasa, total),
                                         Porciento(agua.ambiente, total)};
    for (std::size_t i = 0; i < partes.size(); ++i) poner(nombres[i], partes[i]);
    poner(nombres[3], partes[0] + partes[1] + partes[2]);
  };
  filaACS(agua.total, {"SOLARACS", "BIOACS", "BCACS", "TOTACSREN"});
  filaACS(r.demandaACS * superficie, {"SOLARDEMACS", "BIODEMACS", "BCDEMACS", "TOTDEMACS"});

  float fotovoltaica = agua.fotovoltaica + calor.fotovoltaica +
                       Origenes(r, kRefrigeracion).fotovoltaica +
                       Origenes(r, kVentilacion).fotovoltaica;
  if (!caso.edificio->GetDatosGenerales().EsResidencial())
    fotovoltaica += Origenes(r, kIluminacion).fotovoltaica;
  poner("FOTOVOLT", fotovoltaica);
  poner("TOTALFOTOVOLT", fotovoltaica);

  // La suma de los servicios y no el total que se califica, que en las zonas sin refrigeración no
  // la lleva: la electricidad sí.
  float emisiones = 0;
  for (const IndicadoresServicio& s : r.servicio) emisiones += s.porUnidad[kEmisiones][0];
  const float otras = emisiones - r.emisionesElectricidad;
  poner("CO2ELECM2", r.emisionesElectricidad);
  poner("CO2ELEC", r.emisionesElectricidad * superficie);
  poner("CO2COMBM2", otras);
  poner("CO2COMB", otras * superficie);
}

void VariablesFotovoltaica(const CasoCalculado& caso, NOVEX_TO_MODELOCERTIFICADO& modelo) {
  const auto& potencias = caso.edificio->GetDatosGenerales().PotPico_FV;
  const float potencia = std::accumulate(potencias.begin(), potencias.end(), 0.0F);
  if (potencia == 0.0F) {
    modelo.variables.push_back({"POTENCIARENOVABLE", "-"});
    return;
  }
  modelo.variables.push_back({"POTENCIARENOVABLE", CifraDocumento(potencia)});
  const auto fila = [&](const char* texto, Servicio servicio) {
    const float energia = Origenes(caso.resultado->resultados, servicio).fotovoltaica;
    modelo.producciones.push_back(
        {texto, "ELECTRICIDAD", "Fotovoltaica insitu", CifraDocumento(energia)});
  };
  fila("ACS", kACS);
  fila("CAL", kCalefaccion);
  fila("REF", kRefrigeracion);
}

}  // namespace novex
