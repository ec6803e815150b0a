#include "rating/Escala.h"

#include <algorithm>

#include "base/Texto.h"
#include "demand/FicheroMet.h"
#include "model/CatalogoCampos.h"

namespace novex {
namespace {

// Nombres de los indicadores, por su posición: la clave y el que llevan en el fichero, vacío en los
// que no están en él.
struct NombresIndicador {
  std::string_view clave;
  std::string_view enFichero;
};
constexpr std::array<NombresIndicador, kIndicadores> kNombres = {
    {{"EmisionesTotales", "EmisionesTotales"},
     {"DemandaCalefaccion", "DemandaCalefaccion"},
     {"DemandaRefrigeracion", "DemandaRefrigeracion"},
     {"EmisionesCalefaccion", "EmisionesCalefaccion"},
     {"EmisionesRefrigeracion", "EmisionesRefrigeracion"},
     {"EmisionesACS", "EmisionesACS"},
     {"EPriNoRCalefaccion", "CEPcalefaccion"},
     {"EPriNoRRefrigeracion", "CEPrefrigeracion"},
     {"EPriNoRACS", "CEPACS"},
     {"EPriNoRTotales", "CEPtotal"},
     {"EmisionesIlu", ""},
     {"EPriNoRIlu", ""}}};

constexpr std::size_t kUmbrales = 6;
/// Umbrales de terciario, como parte del valor del edificio de referencia.
constexpr std::array<float, kUmbrales> kRazonTerciario = {0.4F, 0.65F, 1.0F, 1.3F, 1.6F, 2.0F};

constexpr std::size_t Fila(Indicador indicador) {
  return static_cast<std::size_t>(indicador);
}

bool EsDeRefrigeracion(Indicador indicador) {
  return indicador == Indicador::DemandaRefrigeracion ||
         indicador == Indicador::EmisionesRefrigeracion ||
         indicador == Indicador::EPriNoRRefrigeracion;
}

// Hijo de esa etiqueta cuyo atributo `nombre` es el dado.
XMLNode Buscar(const XMLNode& padre, std::string_view etiqueta, std::string_view nombre) {
  std::size_t posicion = 0;
  for (XMLNode hijo = padre.childNamed(etiqueta, &posicion); hijo;
       hijo = padre.childNamed(etiqueta, &posicion))
    if (hijo.attributeValue("nombre") == nombre) return hijo;
  return {};
}

float NumeroDe(const XMLNode& nodo, Mensajes& mensajes) {
  const auto texto = nodo.textAt(0);
  return texto ? ValorSinComprobar(*texto, mensajes) : 0.0F;
}

bool EsNuevo(const DatosGenerales& generales) {
  return generales.Modo_trabajo == "Nuevo";
}

// Una ampliación se compara con lo nuevo aunque el edificio exista.
std::string_view NombreReferencia(const DatosGenerales& generales) {
  const bool ampliacion =
      generales.Modo_trabajo == "Existente" && SinBlancosFinales(generales.Reforma) == "Ampliación";
  return EsNuevo(generales) || ampliacion ? "Nuevo" : "Existente";
}

void LeerReferencia(const XMLNode& nodo, bool nuevo, EscalaCaso& escala, Mensajes& mensajes) {
  if (!nodo) return;
  for (std::size_t i = 0; i < kIndicadores; ++i)
    if (!kNombres[i].enFichero.empty())
      escala.referencia[i] = NumeroDe(nodo.childNamed(kNombres[i].enFichero), mensajes);
  escala.DemandaACS = NumeroDe(nodo.childNamed("DemandaACS"), mensajes);
  escala.DemandaACS_solar_minima =
      nuevo ? NumeroDe(nodo.childNamed("DemandaACS_solar_minima"), mensajes) : escala.DemandaACS;
}

void LeerLimites(const XMLNode& tipo, EscalaCaso& escala, Mensajes& mensajes) {
  for (std::size_t i = 0; i < kIndicadores; ++i) {
    if (kNombres[i].enFichero.empty()) continue;
    const XMLNode limites = Buscar(tipo, "Limites", kNombres[i].enFichero);
    if (!limites) continue;
    // Hay zonas sin escala de refrigeración.
    if (EsDeRefrigeracion(static_cast<Indicador>(i)) && !limites.childAt(0).textAt(0)) continue;
    for (std::size_t k = 0; k < kUmbrales; ++k)
      escala.th[i][k] = NumeroDe(limites.childAt(k), mensajes);
  }
}

void CargarResidencial(const XMLNode& localidades, const Edificio& edificio, EscalaCaso& escala,
                       Mensajes& mensajes) {
  const DatosGenerales& generales = edificio.GetDatosGenerales();
  const std::string zona = ClaveLocalidad(edificio.GetLocalizacion().ZonaClimatica);
  if (zona.empty()) return;
  const XMLNode localidad = Buscar(localidades, "Localidad", zona);
  const XMLNode tipo =
      Buscar(localidad, "Tipo", generales.PerfilUso == 0 ? "Unifamiliar" : "Bloque");
  LeerReferencia(Buscar(tipo, "Referencia", NombreReferencia(generales)), EsNuevo(generales),
                 escala, mensajes);
  LeerLimites(tipo, escala, mensajes);
}

void CargarTerciario(EscalaCaso& escala) {
  const auto referencia = [&](Indicador i) { return escala.referencia[Fila(i)]; };
  for (std::size_t i = 0; i < kIndicadores; ++i) {
    // El total de emisiones suma los cuatro servicios, los haya o no en el edificio.
    const float r = static_cast<Indicador>(i) == Indicador::EmisionesTotales
                        ? referencia(Indicador::EmisionesCalefaccion) +
                              referencia(Indicador::EmisionesRefrigeracion) +
                              referencia(Indicador::EmisionesACS) +
                              referencia(Indicador::EmisionesIlu)
                        : escala.referencia[i];
    for (std::size_t k = 0; k < kUmbrales; ++k) escala.th[i][k] = r * kRazonTerciario[k];
  }
}

float TotalCalificado(const Edificio& edificio, const ResultadosCaso& resultados,
                      std::size_t unidad) {
  const DatosGenerales& generales = edificio.GetDatosGenerales();
  const auto anual = [&](Servicio s) { return resultados.servicio[s].porUnidad[unidad][0]; };
  const bool sinRefrigeracion =
      SinRefrigeracionCalificada(edificio) && generales.Tiposimulacion != "Simulacion";
  float total = anual(kCalefaccion) + (sinRefrigeracion ? 0.0F : anual(kRefrigeracion)) +
                anual(kACS) + anual(kVentilacion);
  if (!generales.EsResidencial()) total += anual(kIluminacion);
  return total;
}

}  // namespace

std::string_view ClaveIndicador(Indicador indicador) {
  return kNombres[Fila(indicador)].clave;
}

Indicador IndicadorDeClave(std::string_view clave) {
  for (std::size_t i = 0; i < kIndicadores; ++i)
    if (kNombres[i].clave == clave) return static_cast<Indicador>(i);
  return Indicador::EmisionesTotales;
}

std::string ClaveLocalidad(std::string_view zonaClimatica) {
  if (std::find(kZonasMet.begin(), kZonasMet.end(), zonaClimatica) == kZonasMet.end()) return {};
  if (zonaClimatica.back() != 'c') return std::string(zonaClimatica) + "_peninsular";
  std::string zona(zonaClimatica.substr(0, zonaClimatica.size() - 1));
  if (zona.starts_with("alfa")) zona.replace(0, 4, "alpha");
  return zona + "_extrapeninsular";
}

bool SinRefrigeracionCalificada(const Edificio& edificio) {
  const std::string& zona = edificio.GetLocalizacion().ZonaClimatica;
  return edificio.GetDatosGenerales().EsResidencial() &&
         (zona == "C1" || zona == "D1" || zona == "E1");
}

void CargarEscala(const XMLNode& localidades, const Edificio& edificio, EscalaCaso& escala,
                  Mensajes& mensajes) {
  if (edificio.GetDatosGenerales().EsResidencial())
    CargarResidencial(localidades, edificio, escala, mensajes);
  else
    CargarTerciario(escala);
}

std::string Letra(Indicador indicador, float valor, const Edificio& edificio,
                  const EscalaCaso& escala) {
  if (EsDeRefrigeracion(indicador) && SinRefrigeracionCalificada(edificio))
    return std::string(kSinLetra);
  const auto& th = escala.th[Fila(indicador)];
  if (valor < th[0]) return "A";
  if (valor < th[1]) return "B";
  if (valor < th[2]) return "C";
  if (valor < th[3]) return "D";
  // La obra nueva y las filas sin escala completa se quedan en "E".
  if (EsNuevo(edificio.GetDatosGenerales()) || th[5] == 0.0F) return "E";
  if (valor < th[4]) return "E";
  return valor < th[5] ? "F" : "G";
}

std::string Letra(std::string_view clave, float valor, const Edificio& edificio,
                  const EscalaCaso& escala) {
  return Letra(IndicadorDeClave(clave), valor, edificio, escala);
}

float ValorIndicador(Indicador indicador, const ResultadosCaso& resultados) {
  const auto anual = [&](Servicio s, UnidadEnergia unidad) {
    return resultados.servicio[s].porUnidad[unidad][0];
  };
  switch (indicador) {
    case Indicador::EmisionesTotales:
      return resultados.total[kEmisiones];
    case Indicador::DemandaCalefaccion:
      return resultados.demandaCalefaccion;
    case Indicador::DemandaRefrigeracion:
      return resultados.demandaRefrigeracion;
    case Indicador::EmisionesCalefaccion:
      return anual(kCalefaccion, kEmisiones);
    case Indicador::EmisionesRefrigeracion:
      return anual(kRefrigeracion, kEmisiones);
    case Indicador::EmisionesACS:
      return anual(kACS, kEmisiones);
    case Indicador::EPriNoRCalefaccion:
      return anual(kCalefaccion, kPrimariaNoRenovable);
    case Indicador::EPriNoRRefrigeracion:
      return anual(kRefrigeracion, kPrimariaNoRenovable);
    case Indicador::EPriNoRACS:
      return anual(kACS, kPrimariaNoRenovable);
    case Indicador::EPriNoRTotales:
      return resultados.total[kPrimariaNoRenovable];
    case Indicador::EmisionesIlu:
      return anual(kIluminacion, kEmisiones);
    case Indicador::EPriNoRIlu:
      return anual(kIluminacion, kPrimariaNoRenovable);
  }
  return 0.0F;
}

void CalificarCaso(const Edificio& edificio, calculo& caso) {
  ResultadosCaso& resultados = caso.resultados;
  for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
    resultados.total[u] = TotalCalificado(edificio, resultados, u);
  for (std::size_t i = 0; i < kIndicadores; ++i) {
    const auto indicador = static_cast<Indicador>(i);
    resultados.escala.letra[i] =
        Letra(indicador, ValorIndicador(indicador, resultados), edificio, resultados.escala);
  }
  resultados.calificado = true;
}

}  // namespace novex
