#include <algorithm>
#include <array>

#include "base/Calendario.h"
#include "compliance/ControlSolar.h"
#include "compliance/TransmitanciaGlobal.h"
#include "demand/CargaInternaMedia.h"
#include "outputs/bloques/Bloque.h"
#include "outputs/bloques/BloquesResultados.h"
#include "outputs/documentos/EquiposServicio.h"
#include "rating/FactoresConversion.h"

namespace novex {
namespace {

using bloque::Grupo;
using bloque::Hoja;
using bloque::HojaCifra;
using V = VectorEnergetico;
using Meses = std::array<double, kMeses>;

constexpr int kDecimalesFactor = 3;
constexpr const char* kVersionHE = "HE2019";
constexpr const char* kRed = "RED";
constexpr const char* kInsitu = "INSITU";
constexpr const char* kSinServicio = "NDEF";

// Fila de factores de paso. La electricidad tiene dos: la de la red y la producida en el edificio.
struct FilaPaso {
  const char* vector;
  const char* origen;
  V factores;
};
constexpr std::array kFilasPaso = {FilaPaso{"BIOMASA", kRed, V::Biomasa_Otros},
                                   FilaPaso{"BIOMASADENSIFICADA", kRed, V::Biomasa_Pellet},
                                   FilaPaso{"CARBON", kRed, V::Carbon},
                                   FilaPaso{"ELECTRICIDAD", kRed, V::Electricidad},
                                   FilaPaso{"ELECTRICIDAD", kInsitu, V::Energiasolarfotovoltaica},
                                   FilaPaso{"GASNATURAL", kRed, V::GasNatural},
                                   FilaPaso{"GASOLEO", kRed, V::Gasoleo_C},
                                   FilaPaso{"GLP", kRed, V::GLP},
                                   FilaPaso{"MEDIOAMBIENTE", kInsitu, V::MedioAmbiente}};

// Un componente suma los vectores que en el balance son uno: a la electricidad de la red, la
// fotovoltaica que el servicio aprovecha; al ambiente, la solar térmica.
struct VectorBalance {
  const char* nombre;
  V primero;
  std::optional<V> segundo;
};
constexpr std::array kVectoresBalance = {
    VectorBalance{"BIOMASA", V::Biomasa_Otros, std::nullopt},
    VectorBalance{"BIOMASADENSIFICADA", V::Biomasa_Pellet, std::nullopt},
    VectorBalance{"CARBON", V::Carbon, std::nullopt},
    VectorBalance{"ELECTRICIDAD", V::Electricidad, V::Energiasolarfotovoltaica},
    VectorBalance{"GASNATURAL", V::GasNatural, std::nullopt},
    VectorBalance{"GASOLEO", V::Gasoleo_C, std::nullopt},
    VectorBalance{"GLP", V::GLP, std::nullopt},
    VectorBalance{"MEDIOAMBIENTE", V::MedioAmbiente, V::Energiasolartermica}};
constexpr std::array kOrden = {kCalefaccion, kRefrigeracion, kVentilacion, kACS, kIluminacion};

NodoConservado Factor(const FilaPaso& fila, const Conversor& conversor) {
  const auto factor = [](float valor) {
    return Fijo(static_cast<double>(valor), kDecimalesFactor);
  };
  return Grupo(
      "Dato",
      {Hoja("Vector", fila.vector), Hoja("Origen", fila.origen), Hoja("Destino", "SUMINISTRO"),
       Hoja("Paso", "A"), Hoja("ren", factor(conversor.PrimariaRenovable(fila.factores, 1.0F))),
       Hoja("nren", factor(conversor.PrimariaNoRenovable(fila.factores, 1.0F))),
       Hoja("co2", factor(conversor.Emisiones(fila.factores, 1.0F))), Hoja("Comentario", "")});
}

struct Componente {
  const char *vector, *tipo, *subtipo;
  std::string servicio;
  const char* comentario;
};

NodoConservado Dato(const Componente& c, const Meses& meses) {
  std::string valores;
  for (const double kWh : meses) valores += (valores.empty() ? "" : ", ") + bloque::Cifra(kWh);
  return Grupo("Dato", {Hoja("Vector", c.vector), Hoja("Tipo", c.tipo), Hoja("Subtipo", c.subtipo),
                        Hoja("Servicio", c.servicio), Hoja("Valores", valores),
                        Hoja("Comentario", c.comentario)});
}

void Sumar(const TablaMensual& tabla, Meses& meses) {
  for (std::size_t m = 0; m < meses.size(); ++m) meses[m] += static_cast<double>(tabla[m + 1]);
}

bool HayEnergia(const Meses& meses) {
  return std::any_of(meses.begin(), meses.end(), [](double kWh) { return kWh != 0.0; });
}

// \returns lo tomado del ambiente, con las cifras con que se ha escrito
Meses AnadirConsumos(const ResultadosCaso& r, std::vector<NodoConservado>& datos) {
  Meses ambiente{};
  for (const VectorBalance& v : kVectoresBalance)
    for (const Servicio s : kOrden) {
      Meses meses{};
      Sumar(r.servicio[s].finalPorVector[Indice(v.primero)], meses);
      if (v.segundo) Sumar(r.servicio[s].finalPorVector[Indice(*v.segundo)], meses);
      if (!HayEnergia(meses)) continue;
      if (v.primero == V::MedioAmbiente)
        for (std::size_t m = 0; m < meses.size(); ++m)
          ambiente[m] += RealInicial(bloque::Cifra(meses[m]));
      datos.push_back(Dato({v.nombre, "CONSUMO", "EPB", std::string(SiglaServicio(s)), ""}, meses));
    }
  return ambiente;
}

// Lo que el edificio produce: la electricidad de los paneles y el calor de su entorno, que ha de
// ser justo el que consume.
void AnadirProducciones(const calculo& caso, const Meses& ambiente,
                        std::vector<NodoConservado>& datos) {
  Meses electricidad{};
  Sumar(caso.meses.produccionFotovoltaica, electricidad);
  const auto anadir = [&](const char* vector, const char* comentario, const Meses& meses) {
    if (HayEnergia(meses))
      datos.push_back(Dato({vector, "PRODUCCION", kInsitu, kSinServicio, comentario}, meses));
  };
  anadir("ELECTRICIDAD", "Fotovoltaica insitu", electricidad);
  anadir("MEDIOAMBIENTE", "", ambiente);
}

}  // namespace

NodoConservado BloqueDatosBalance(const CasoCalculado& caso) {
  const Edificio& edificio = *caso.edificio;
  const ResultadosCaso& r = caso.resultado->resultados;
  const Conversor conversor(r.factores, edificio.GetLocalizacion().Provincia);
  NodoConservado factores = Grupo("Datos"), componentes = Grupo("Datos");
  for (const FilaPaso& fila : kFilasPaso) factores.hijos.push_back(Factor(fila, conversor));
  const Meses ambiente = AnadirConsumos(r, componentes.hijos);
  AnadirProducciones(*caso.resultado, ambiente, componentes.hijos);
  return Grupo("DatosBalance", {Hoja("kexp", "0.00"),
                                HojaCifra("AreaRef", edificio.GetRecinto(0).Suelo_habitable_m2),
                                Grupo("FactoresPaso", {std::move(factores)}),
                                Grupo("Componentes", {std::move(componentes)})});
}

NodoConservado BloqueResultadosBalance(const CasoCalculado& caso) {
  double total = 0, noRenovable = 0;
  for (const IndicadoresServicio& s : caso.resultado->resultados.servicio) {
    total += static_cast<double>(s.porUnidad[kPrimariaTotal][0]);
    noRenovable += static_cast<double>(s.porUnidad[kPrimariaNoRenovable][0]);
  }
  return Grupo("ResultadosBalance",
               {Grupo("Epm2", {HojaCifra("tot", total), HojaCifra("nren", noRenovable)})});
}

NodoConservado BloqueOtrosIndicadores(const CasoCalculado& caso, const DocumentosHE& documentos) {
  const Edificio& edificio = *caso.edificio;
  const ResultadosCaso& r = caso.resultado->resultados;
  const TransmitanciaGlobal K = ComprobarK(edificio, r, documentos);
  return Grupo(
      "OtrosIndicadores",
      {Hoja("VersionHE", kVersionHE), HojaCifra("Volumen", edificio.GetRecinto(0).Volumen_total_m3),
       HojaCifra("Compacidad", K.envolvente.Compacidad()),
       HojaCifra("CargaInternaMedia", CargaInternaMedia(edificio)),
       HojaCifra("n50", ComprobarN50(edificio, r, documentos).n50), HojaCifra("K", K.K),
       HojaCifra("qsoljul", ComprobarControlSolar(edificio, documentos).q)});
}

}  // namespace novex
