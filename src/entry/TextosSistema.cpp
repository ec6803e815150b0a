#include "entry/TextosSistema.h"

#include "base/NumeroTexto.h"
#include "entry/ListasSistemas.h"
#include "systems/ClasesSistema.h"
#include "systems/RepartoSuperficies.h"

namespace novex {
namespace {

// Valores de `PerfilUso`.
constexpr int kEdificiosEnBloque = 1;
constexpr int kViviendaEnBloque = 2;

constexpr const char* kIndividualVivienda = "Individual: Datos de la instalación de la vivienda";
constexpr const char* kIndividualBloque =
    "Individual: Datos de la instalaciones que existen en todo el bloque";
constexpr const char* kIndividualTerciario =
    "Individual: Datos de las instalaciones que existen en todo el edificio terciario";
constexpr const char* kCentralBloque = "Centralizada: Datos de la instalación de todo el bloque";
constexpr const char* kCentralTerciario =
    "Centralizada: Datos de la instalación de todo el edificio terciario";
constexpr const char* kCentralParte =
    "Centralizada: Datos de la instalación de todo el bloque (le corresponde en consumo 1/";

constexpr std::string_view kNotaSuelo =
    "Los cálculos de suelo radiante son aproximados, no se contempla inercia.";
constexpr std::string_view kNotaRecuperador[] = {
    "Estos equipos deben cumplir el reglamento UE 1253/2014 y a partir del 1 Enero de 2018",
    " la potencia específica (W/m3/s) debe ser menor del valor 1100+(EFIt-0,73)*3000-300*q/2"};
constexpr std::string_view kNotaVentilacion =
    "La definición de equipos debe ser coherente con el sistema de ventilación definido.";

bool SirveLaZona(const SistemaResidencial& sistema) {
  const TipoSistema tipo = TipoSistemaDe(sistema.Tipo_sistema);
  return DaCalefaccion(tipo) || DaRefrigeracion(tipo);
}

struct NombreServicio {
  Servicio servicio;
  const char* nombre;
};
constexpr NombreServicio kServiciosReparto[] = {
    {kCalefaccion, "calefacción"}, {kRefrigeracion, "refrigeración"}, {kACS, "ACS"}};

// "calefacción 75 %", tras un punto si ya hay otro.
void AnadirParte(std::string& texto, const char* nombre, float parte) {
  if (!texto.empty()) texto += " · ";
  texto += std::string(nombre) + " " + Fijo(100 * static_cast<double>(parte), 0) + " %";
}

std::string SinBlancosEnMas(std::string texto) {
  constexpr std::string_view kMas = " + ";
  for (std::size_t i; (i = texto.find(kMas)) != std::string::npos;) texto.replace(i, 3, "+");
  return texto;
}

}  // namespace

std::string EtiquetaInstalacion(const DatosGenerales& generales, std::string_view tipologia) {
  const bool central = tipologia == kCentralizada;
  if (!generales.EsResidencial()) return central ? kCentralTerciario : kIndividualTerciario;
  if (!central)
    return generales.PerfilUso == kEdificiosEnBloque ? kIndividualBloque : kIndividualVivienda;
  if (generales.PerfilUso != kViviendaEnBloque) return kCentralBloque;
  return kCentralParte + General(generales.NVBloqueF) + ")";
}

std::string EtiquetaClase(const SistemaResidencial& sistema) {
  if (sistema.instalaciones.empty()) return sistema.Nombre_sistema;
  const Instalaciones& bloque = sistema.instalaciones.front();
  if (!SirveLaZona(sistema) || bloque.Emisor.empty()) return bloque.Seleccion;
  return bloque.Seleccion + " (" + SinBlancosEnMas(bloque.Emisor) + ")";
}

std::string EtiquetaSistema(const SistemaResidencial& sistema) {
  return std::string(RotuloServicio(sistema.Tipo_sistema)) + ": " + EtiquetaClase(sistema);
}

std::string TextoReparto(const Edificio& edificio, std::size_t sistema) {
  const SistemaResidencial& s = edificio.GetSistema(sistema);
  const TipoSistema tipo = TipoSistemaDe(s.Tipo_sistema);
  const SistemaAire aire = ResolverAjustes(edificio).aire;
  const CargasHora partes = RepartirServicios(edificio, aire).partes.at(sistema);
  std::string texto;
  for (const auto& [servicio, nombre] : kServiciosReparto) {
    const bool suyo = servicio == kACS           ? DaACS(tipo)
                      : servicio == kCalefaccion ? DaCalefaccion(tipo)
                                                 : DaRefrigeracion(tipo);
    if (suyo) AnadirParte(texto, nombre, partes[servicio]);
  }
  const bool delAire = EsSistemaDeAire(s) && aire != SistemaAire::UTA;
  return (delAire ? "Reparto del aire de ventilación: " : "Reparto: ") + texto;
}

std::string TextoSinSistema(const Edificio& edificio) {
  constexpr float kDespreciable = 0.005F;
  const CargasHora falta = RepartirServicios(edificio, ResolverAjustes(edificio).aire).sinSistema;
  std::string texto;
  for (const auto& [servicio, nombre] : kServiciosReparto)
    if (falta[servicio] >= kDespreciable) AnadirParte(texto, nombre, falta[servicio]);
  return texto.empty() ? texto : "Sin sistema: " + texto;
}

std::vector<std::string_view> NotasSistema(const Edificio& edificio,
                                           const SistemaResidencial& sistema) {
  std::vector<std::string_view> notas;
  bool suelo = false, ventilacion = false;
  for (const Instalaciones& bloque : sistema.instalaciones) {
    suelo |= EmisorBase(bloque.Emisor) == "Suelo radiante";
    ventilacion |= bloque.Emisor.ends_with("Sist.Vent.");
  }
  if (SirveLaZona(sistema) && suelo) notas.push_back(kNotaSuelo);
  if (edificio.GetDatosGenerales().Recuperador != "No")
    notas.insert(notas.end(), std::begin(kNotaRecuperador), std::end(kNotaRecuperador));
  if (SirveLaZona(sistema) && ventilacion) notas.push_back(kNotaVentilacion);
  return notas;
}

}  // namespace novex
