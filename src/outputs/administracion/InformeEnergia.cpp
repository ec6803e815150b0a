#include "outputs/administracion/InformeEnergia.h"

#include "compliance/Requisitos.h"
#include "outputs/administracion/EscrituraInforme.h"
#include "outputs/administracion/InformeIdentificacion.h"
#include "rating/FactoresConversion.h"

namespace novex {
namespace {

using V = VectorEnergetico;

constexpr int kDecimalesFactor = 3;

// Los vectores que se compran, en el orden del informe.
constexpr std::array kVectoresComprados = {V::GasNatural,   V::Gasoleo_C,     V::GLP,
                                           V::Carbon,       V::Biomasa_Otros, V::Biomasa_Pellet,
                                           V::Electricidad, V::Biocarburantes};

double D(float x) {
  return static_cast<double>(x);
}

// Energía final del año de un servicio en un vector, kWh.
double Final(const ResultadosCaso& r, Servicio servicio, V vector) {
  return D(r.servicio[servicio].finalPorVector[Indice(vector)][0]);
}

double FinalTotal(const ResultadosCaso& r, Servicio servicio) {
  double suma = 0;
  for (std::size_t v = 0; v < kVectores; ++v) suma += Final(r, servicio, static_cast<V>(v));
  return suma;
}

double PorCiento(double parte, double total) {
  return total > 0.0 ? 100.0 * parte / total : 0.0;
}

// Una clase de renovable térmica, con lo que da a cada servicio en el año, kWh.
struct RenovableTermica {
  const char* nombre;
  double calefaccion, acs;
};

void AnadirTermica(XMLNode& renovables, const RenovableTermica& t, const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const double demandaACS = D(r.demandaACS) * D(caso.edificio->GetRecinto(0).Suelo_habitable_m2);
  XMLNode n = renovables.appendChild("Sistema");
  AnadirDato(n, "Nombre", t.nombre);
  AnadirCifra(n, "ConsumoFinalCalefaccion", PorCiento(t.calefaccion, FinalTotal(r, kCalefaccion)));
  AnadirCifra(n, "ConsumoFinalRefrigeracion", 0.0);
  AnadirCifra(n, "ConsumoFinalACS", PorCiento(t.acs, FinalTotal(r, kACS)));
  AnadirCifra(n, "DemandaACS", PorCiento(t.acs, demandaACS));
}

std::array<RenovableTermica, 3> RenovablesTermicas(const ResultadosCaso& r) {
  const auto biomasa = [&](Servicio s) {
    return Final(r, s, V::Biomasa_Pellet) + Final(r, s, V::Biomasa_Otros);
  };
  return {{{"Captadores solares térmicos", 0.0, Final(r, kACS, V::Energiasolartermica)},
           {"Biomasa", biomasa(kCalefaccion), biomasa(kACS)},
           {"Bomba de calor (energía del ambiente)", Final(r, kCalefaccion, V::MedioAmbiente),
            Final(r, kACS, V::MedioAmbiente)}}};
}

void AnadirFactores(XMLNode& padre, const char* etiqueta, const TablaFactores& factores,
                    float FactorConversion::*cual, float biocarburantes) {
  struct FilaEscrita {
    const char* etiqueta;
    FilaFactor fila;
  };
  constexpr std::array<FilaEscrita, 10> kFilas = {
      {{"GasNatural", FilaFactor::GasNatural},
       {"GasoleoC", FilaFactor::Gasoleo_C},
       {"GLP", FilaFactor::GLP},
       {"Carbon", FilaFactor::Carbon},
       {"BiomasaPellet", FilaFactor::Biomasa_Pellet},
       {"BiomasaOtros", FilaFactor::Biomasa_Otros},
       {"ElectricidadPeninsular", FilaFactor::ElectricidadPeninsular},
       {"ElectricidadBaleares", FilaFactor::ElectricidadBaleares},
       {"ElectricidadCanarias", FilaFactor::ElectricidadCanarias},
       {"ElectricidadCeutayMelilla", FilaFactor::ElectricidadCeutayMelilla}}};
  XMLNode n = padre.appendChild(etiqueta);
  for (const FilaEscrita& f : kFilas)
    AnadirCifra(n, f.etiqueta, factores[static_cast<std::size_t>(f.fila)].*cual, kDecimalesFactor);
  AnadirCifra(n, "Biocarburante", biocarburantes, kDecimalesFactor);
}

// Lo comprado de un vector, kWh/m2: el global cuenta también la ventilación.
void AnadirVector(XMLNode& vectores, V vector, const CasoCalculado& caso) {
  const std::string_view nombre = VectorInforme(vector, caso.edificio->GetLocalizacion().Provincia);
  const double area = D(caso.edificio->GetRecinto(0).Suelo_habitable_m2);
  if (nombre.empty() || !(area > 0.0)) return;
  const ResultadosCaso& r = caso.resultado->resultados;
  const ServiciosInforme servicios(*caso.edificio);
  double global = 0;
  for (std::size_t s = 0; s < kServicios; ++s)
    if (SeInforma(static_cast<Servicio>(s), servicios))
      global += Final(r, static_cast<Servicio>(s), vector) / area;
  if (global == 0.0) return;
  XMLNode n = vectores.appendChild(nombre);
  AnadirCifra(n, "Global", global);
  AnadirServicios(n, servicios, [&](Servicio s) { return Final(r, s, vector) / area; });
}

}  // namespace

void AnadirRenovables(XMLNode& informe, const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  XMLNode renovables, termica;
  const auto lista = [&](const char* etiqueta) {
    if (!renovables) renovables = informe.appendChild("EnergiasRenovables");
    return renovables.appendChild(etiqueta);
  };
  for (const RenovableTermica& t : RenovablesTermicas(r)) {
    if (!(t.calefaccion > 0.0) && !(t.acs > 0.0)) continue;
    if (!termica) termica = lista("Termica");
    AnadirTermica(termica, t, caso);
  }
  double fotovoltaica = 0;
  for (std::size_t s = 0; s < kServicios; ++s)
    fotovoltaica += Final(r, static_cast<Servicio>(s), V::Energiasolarfotovoltaica);
  if (!(fotovoltaica > 0.0)) return;
  XMLNode n = lista("Electrica").appendChild("Sistema");
  AnadirDato(n, "Nombre", "Fotovoltaica insitu");
  AnadirCifra(n, "EnergiaGeneradaAutoconsumida", fotovoltaica);
}

void AnadirDemanda(XMLNode& informe, const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const DatosGenerales& g = caso.edificio->GetDatosGenerales();
  const bool conFrio = ServiciosInforme(*caso.edificio).refrigeracion;
  const auto bloque = [&](XMLNode n, float calefaccion, float refrigeracion, float acs) {
    AnadirCifra(n, "Global", D(calefaccion) + (conFrio ? D(refrigeracion) : 0.0) + D(acs));
    AnadirCifra(n, "Calefaccion", calefaccion);
    if (conFrio) AnadirCifra(n, "Refrigeracion", refrigeracion);
    AnadirCifra(n, "ACS", acs);
  };
  XMLNode demanda = informe.appendChild("Demanda");
  bloque(demanda.appendChild("EdificioObjeto"), r.demandaCalefaccion, r.demandaRefrigeracion,
         r.demandaACS);
  if (!g.EsResidencial()) {
    const auto referencia = [&](Indicador i) {
      return r.escala.referencia[static_cast<std::size_t>(i)];
    };
    bloque(demanda.appendChild("EdificioDeReferencia"), referencia(Indicador::DemandaCalefaccion),
           referencia(Indicador::DemandaRefrigeracion), r.escala.DemandaACS_solar_minima);
  } else if (InformaVerificacion(g) && r.limites.puestos) {
    XMLNode exigencias = demanda.appendChild("Exigencias");
    AnadirCifra(exigencias, "LimiteCalefaccionVivienda", r.limites.demandaCalefaccion);
    AnadirCifra(exigencias, "LimiteRefrigeracionVivienda", r.limites.demandaRefrigeracion);
  }
}

void AnadirConsumo(XMLNode& informe, const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const DatosGenerales& g = caso.edificio->GetDatosGenerales();
  const Conversor conversor(r.factores, caso.edificio->GetLocalizacion().Provincia);
  XMLNode consumo = informe.appendChild("Consumo");
  XMLNode factores = consumo.appendChild("FactoresdePaso");
  AnadirFactores(factores, "FinalAPrimariaNoRenovable", r.factores, &FactorConversion::EPNoR,
                 conversor.PrimariaNoRenovable(V::Biocarburantes, 1.0F));
  AnadirFactores(factores, "FinalAEmisiones", r.factores, &FactorConversion::CO2,
                 conversor.Emisiones(V::Biocarburantes, 1.0F));
  XMLNode vectores = consumo.appendChild("EnergiaFinalVectores");
  for (const V v : kVectoresComprados) AnadirVector(vectores, v, caso);
  XMLNode primaria = consumo.appendChild("EnergiaPrimariaNoRenovable");
  AnadirCifra(primaria, "Global", r.total[kPrimariaNoRenovable]);
  AnadirServicios(primaria, ServiciosInforme(*caso.edificio),
                  [&](Servicio s) { return r.servicio[s].porUnidad[kPrimariaNoRenovable][0]; });
  if (g.EsResidencial() && InformaVerificacion(g) && r.limites.puestos &&
      AplicaRequisito(g, Requisito::HE0) == Aplicacion::Si) {
    XMLNode exigencias = consumo.appendChild("Exigencias");
    AnadirCifra(exigencias, "LimiteViviendaGlobalEPNR", r.limites.CepNren);
  }
}

void AnadirEmisiones(XMLNode& informe, const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const ServiciosInforme servicios(*caso.edificio);
  const double area = D(caso.edificio->GetRecinto(0).Suelo_habitable_m2);
  // Entre las de la electricidad están todas las de refrigeración, que aquí pueden no contarse.
  double electricas = D(r.emisionesElectricidad);
  if (!servicios.refrigeracion)
    electricas -= D(r.servicio[kRefrigeracion].porUnidad[kEmisiones][0]);
  const double otras = D(r.total[kEmisiones]) - electricas;
  XMLNode n = informe.appendChild("EmisionesCO2");
  AnadirCifra(n, "Global", r.total[kEmisiones]);
  AnadirServicios(n, servicios, [&](Servicio s) { return r.servicio[s].porUnidad[kEmisiones][0]; });
  AnadirCifra(n, "ConsumoElectrico", electricas);
  AnadirCifra(n, "ConsumoOtros", otras);
  AnadirCifra(n, "TotalConsumoElectrico", electricas * area);
  AnadirCifra(n, "TotalConsumoOtros", otras * area);
}

}  // namespace novex
