#include <algorithm>
#include <array>

#include "outputs/HojaCalificacion.h"
#include "outputs/bloques/Bloque.h"
#include "outputs/bloques/BloquesResultados.h"
#include "rating/FactoresConversion.h"

namespace novex {
namespace {

using bloque::Grupo;
using bloque::Hoja;
using bloque::HojaCifra;

// Elementos de los servicios, en el orden en que se escriben.
constexpr std::array<std::pair<Servicio, const char*>, kServicios> kElementos = {
    {{kCalefaccion, "Cal"},
     {kRefrigeracion, "Ref"},
     {kACS, "Acs"},
     {kIluminacion, "Ilu"},
     {kVentilacion, "Ven"}}};
constexpr const char* kTotal = "Tot";

constexpr std::array<std::pair<UnidadEnergia, const char*>, 3> kUnidades = {
    {{kFinal, "EnergiaFinal"},
     {kPrimariaNoRenovable, "EnergiaPrimariaNoRenovable"},
     {kEmisiones, "Emisiones"}}};

NodoConservado Demanda(float calefaccion, float refrigeracion, float acs) {
  return Grupo("Demanda", {HojaCifra("Cal", calefaccion), HojaCifra("Ref", refrigeracion),
                           HojaCifra("Acs", acs)});
}

// Un elemento por servicio con su cifra y el total; la iluminación, solo en terciario.
template <class Valor>
NodoConservado PorServicio(const char* nombre, bool residencial, Valor valor, float total) {
  NodoConservado grupo = Grupo(nombre);
  for (const auto& [servicio, elemento] : kElementos)
    if (servicio != kIluminacion || !residencial)
      grupo.hijos.push_back(HojaCifra(elemento, valor(servicio)));
  grupo.hijos.push_back(HojaCifra(kTotal, total));
  return grupo;
}

// Un elemento por vector con energía, que dice cuál es y lo que toma cada servicio.
NodoConservado Vector(std::string_view nombre, bool residencial,
                      const std::array<float, kServicios>& energia) {
  float total = 0;
  for (const float kWh : energia) total += kWh;
  NodoConservado vector = PorServicio(
      "Vector", residencial, [&](Servicio s) { return energia[s]; }, total);
  vector.hijos.insert(vector.hijos.begin(), Hoja("Nombre", std::string(nombre)));
  return vector;
}

float PorArea(float kWh, const CasoCalculado& caso) {
  const float area = caso.edificio->GetRecinto(0).Suelo_habitable_m2;
  return area > 0.0F ? kWh / area : 0.0F;
}

NodoConservado EnergiaFinalVectores(const CasoCalculado& caso) {
  const bool residencial = caso.edificio->GetDatosGenerales().EsResidencial();
  NodoConservado grupo = Grupo("EnergiaFinalVectores");
  for (std::size_t v = 0; v < kVectores; ++v) {
    std::array<float, kServicios> energia{};
    for (std::size_t s = 0; s < kServicios; ++s)
      energia[s] = PorArea(caso.resultado->resultados.servicio[s].finalPorVector[v][0], caso);
    if (std::any_of(energia.begin(), energia.end(), [](float e) { return e != 0.0F; }))
      grupo.hijos.push_back(Vector(kNombreVector[v], residencial, energia));
  }
  return grupo;
}

// Energía final de la referencia: su demanda servida por el equipo por defecto, y la iluminación.
std::array<float, kServicios> FinalReferencia(const ResultadosCaso& r) {
  const EscalaCaso& e = r.escala;
  std::array<float, kServicios> final{};
  final[kACS] = e.DemandaACS_solar_minima;
  final[kCalefaccion] = e.referencia[static_cast<std::size_t>(Indicador::DemandaCalefaccion)];
  final[kRefrigeracion] = e.referencia[static_cast<std::size_t>(Indicador::DemandaRefrigeracion)];
  for (std::size_t s = 0; s < kServiciosDemanda; ++s)
    final[s] = r.defecto.rendimiento[s] > 0.0F ? final[s] / r.defecto.rendimiento[s] : 0.0F;
  final[kIluminacion] = e.iluminacionReferencia;
  return final;
}

void AnadirFinalReferencia(const ResultadosCaso& r, NodoConservado& bloque,
                           NodoConservado& vectores) {
  const auto final = FinalReferencia(r);
  float total = 0;
  for (const float kWh : final) total += kWh;
  bloque.hijos.push_back(PorServicio(
      "EnergiaFinal", false, [&](Servicio s) { return final[s]; }, total));
  for (std::size_t v = 0; v < kVectores; ++v) {
    std::array<float, kServicios> energia{};
    for (std::size_t s = 0; s < kServiciosDemanda; ++s)
      if (r.defecto.combustible[s] == kNombreVector[v]) energia[s] = final[s];
    if (v == Indice(VectorEnergetico::Electricidad)) energia[kIluminacion] = final[kIluminacion];
    if (std::any_of(energia.begin(), energia.end(), [](float e) { return e != 0.0F; }))
      vectores.hijos.push_back(Vector(kNombreVector[v], false, energia));
  }
}

const char* Elemento(Indicador indicador) {
  switch (indicador) {
    case Indicador::DemandaCalefaccion:
    case Indicador::EmisionesCalefaccion:
    case Indicador::EPriNoRCalefaccion:
      return "Cal";
    case Indicador::DemandaRefrigeracion:
    case Indicador::EmisionesRefrigeracion:
    case Indicador::EPriNoRRefrigeracion:
      return "Ref";
    case Indicador::EmisionesACS:
    case Indicador::EPriNoRACS:
      return "Acs";
    case Indicador::EmisionesIlu:
    case Indicador::EPriNoRIlu:
      return "Ilu";
    default:
      return kTotal;
  }
}

// Los límites de las clases de una fila; sin escala en vigor, como lo dice la hoja.
std::vector<NodoConservado> Limites(const FilaCalificacion& fila, const ResultadosCaso& r) {
  const auto& th = r.escala.th[static_cast<std::size_t>(fila.indicador)];
  std::vector<NodoConservado> limites;
  for (std::size_t i = 0; i < th.size(); ++i) {
    std::string texto = fila.escala.size() == 1 ? fila.escala.front() : std::string();
    if (i + 1 < fila.escala.size() && !fila.escala[i + 1].empty()) texto = bloque::Cifra(th[i]);
    limites.push_back(Hoja(std::string(1, static_cast<char>('A' + static_cast<int>(i))), texto));
  }
  return limites;
}

// Los tres grupos de lo que se califica, con lo que `de` da de cada fila de la hoja.
template <class DeFila>
NodoConservado DeLaHoja(const char* nombre, const CasoCalculado& caso, DeFila de) {
  NodoConservado salida = Grupo(nombre);
  const HojaCalificacion primaria = HojaDeCalificacion(caso, BaseCalificacion::PrimariaNoRenovable);
  const HojaCalificacion emisiones = HojaDeCalificacion(caso, BaseCalificacion::Emisiones);
  const auto anadir = [&](const char* grupo, std::vector<FilaCalificacion> filas) {
    NodoConservado& nodo = salida.hijos.emplace_back(Grupo(grupo));
    for (const FilaCalificacion& fila : filas)
      nodo.hijos.push_back(de(Elemento(fila.indicador), fila));
  };
  const auto conTotal = [](const HojaCalificacion& hoja) {
    std::vector<FilaCalificacion> filas = hoja.servicios;
    if (hoja.rellena) filas.push_back(hoja.total);
    return filas;
  };
  anadir("Demanda", primaria.demanda);
  anadir("EnergiaPrimariaNoRenovable", conTotal(primaria));
  anadir("Emisiones", conTotal(emisiones));
  return salida;
}

}  // namespace

NodoConservado BloqueIndicadores(const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const bool residencial = caso.edificio->GetDatosGenerales().EsResidencial();
  NodoConservado bloque = Grupo("Indicadores");
  bloque.hijos.push_back(Demanda(r.demandaCalefaccion, r.demandaRefrigeracion, r.demandaACS));
  for (const auto& [unidad, nombre] : kUnidades)
    bloque.hijos.push_back(PorServicio(
        nombre, residencial, [&, u = unidad](Servicio s) { return r.servicio[s].porUnidad[u][0]; },
        r.total[unidad]));
  bloque.hijos.push_back(EnergiaFinalVectores(caso));
  return bloque;
}

NodoConservado BloqueIndicadoresReferencia(const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const bool residencial = caso.edificio->GetDatosGenerales().EsResidencial();
  const auto valor = [&r](std::optional<Indicador> i) {
    return i ? r.escala.referencia[static_cast<std::size_t>(*i)] : 0.0F;
  };
  NodoConservado bloque = Grupo("IndicadoresReferencia");
  bloque.hijos.push_back(Demanda(valor(Indicador::DemandaCalefaccion),
                                 valor(Indicador::DemandaRefrigeracion),
                                 r.escala.DemandaACS_solar_minima));
  NodoConservado vectores = Grupo("EnergiaFinalVectores");
  if (!residencial) AnadirFinalReferencia(r, bloque, vectores);
  for (const auto& [unidad, nombre] : kUnidades) {
    if (unidad == kFinal) continue;
    // El total de un terciario solo tiene los servicios con equipos.
    const float terciario =
        unidad == kEmisiones ? r.escala.totalReferenciaEmisiones : r.escala.totalReferenciaPrimaria;
    const float total = residencial ? valor(IndicadorDe(std::nullopt, unidad, true)) : terciario;
    bloque.hijos.push_back(PorServicio(
        nombre, residencial,
        [&, u = unidad](Servicio s) { return valor(IndicadorDe(s, u, residencial)); }, total));
  }
  if (!residencial) bloque.hijos.push_back(std::move(vectores));
  return bloque;
}

NodoConservado BloqueEscalas(const CasoCalculado& caso) {
  return DeLaHoja("Escalas", caso, [&](const char* elemento, const FilaCalificacion& fila) {
    return Grupo(elemento, Limites(fila, caso.resultado->resultados));
  });
}

NodoConservado BloqueCalificacion(const CasoCalculado& caso) {
  return DeLaHoja("Calificacion", caso, [](const char* elemento, const FilaCalificacion& fila) {
    return Hoja(elemento, fila.letra);
  });
}

}  // namespace novex
