#include "outputs/documentos/VariablesRenovables.h"

#include <numeric>

#include "outputs/EnergiaRenovable.h"
#include "outputs/documentos/VariablesCalificacion.h"

namespace novex {
namespace {

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
  const OrigenesServicio calor = OrigenesDe(r, kCalefaccion);
  const OrigenesServicio agua = OrigenesDe(r, kACS);
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
                       OrigenesDe(r, kRefrigeracion).fotovoltaica +
                       OrigenesDe(r, kVentilacion).fotovoltaica;
  if (!caso.edificio->GetDatosGenerales().EsResidencial())
    fotovoltaica += OrigenesDe(r, kIluminacion).fotovoltaica;
  poner("FOTOVOLT", fotovoltaica);
  poner("TOTALFOTOVOLT", fotovoltaica);

  const float otras = EmisionesNoElectricas(r);
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
    const float energia = OrigenesDe(caso.resultado->resultados, servicio).fotovoltaica;
    modelo.producciones.push_back(
        {texto, "ELECTRICIDAD", "Fotovoltaica insitu", CifraDocumento(energia)});
  };
  fila("ACS", kACS);
  fila("CAL", kCalefaccion);
  fila("REF", kRefrigeracion);
}

}  // namespace novex
