#include "entry/Sitio.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "base/NumeroTexto.h"
#include "demand/FicheroMet.h"
#include "entry/CambiarGenerales.h"
#include "model/CatalogoCampos.h"
#include "reference/ValoresPuentes.h"

namespace novex {
namespace {

constexpr std::string_view kSi = "SI";
constexpr std::string_view kNo = "NO";

// La zona vale por debajo del límite (m); la última de cada capital no lo tiene.
struct TramoAltitud {
  int limite = 0;
  std::string_view zona;
};
struct FilaAltitud {
  std::string_view capital;
  std::array<TramoAltitud, 6> tramos;
};
constexpr int kSin = std::numeric_limits<int>::max();

constexpr std::array<FilaAltitud, 52> kAltitudes = {{
    {"Albacete", {{{450, "C3"}, {950, "D3"}, {kSin, "E1"}}}},
    {"Alicante/Alacant", {{{250, "B4"}, {700, "C3"}, {kSin, "D3"}}}},
    {"Almería", {{{100, "A4"}, {250, "B4"}, {400, "B3"}, {800, "C3"}, {kSin, "D3"}}}},
    {"Ávila", {{{550, "D2"}, {850, "D1"}, {kSin, "E1"}}}},
    {"Badajoz", {{{400, "C4"}, {450, "C3"}, {kSin, "D3"}}}},
    {"Barcelona", {{{250, "C2"}, {450, "D2"}, {750, "D1"}, {kSin, "E1"}}}},
    {"Bilbao", {{{250, "C1"}, {kSin, "D1"}}}},
    {"Burgos", {{{600, "D1"}, {kSin, "E1"}}}},
    {"Cáceres", {{{600, "C4"}, {1050, "D3"}, {kSin, "E1"}}}},
    {"Cádiz", {{{150, "A3"}, {450, "B3"}, {600, "C3"}, {850, "C2"}, {kSin, "D2"}}}},
    {"Castellón de la Plana/Castelló de la Plana",
     {{{100, "B3"}, {500, "C3"}, {600, "D3"}, {1000, "D2"}, {kSin, "E1"}}}},
    {"Ceuta", {{{kSin, "B3c"}}}},
    {"Ciudad Real", {{{450, "C4"}, {500, "C3"}, {kSin, "D3"}}}},
    {"Córdoba", {{{150, "B4"}, {550, "C4"}, {kSin, "D3"}}}},
    {"Coruña (A)", {{{200, "C1"}, {kSin, "D1"}}}},
    {"Cuenca", {{{800, "D3"}, {1050, "D2"}, {kSin, "E1"}}}},
    {"Girona", {{{100, "C2"}, {600, "D2"}, {kSin, "E1"}}}},
    {"Granada", {{{50, "A4"}, {350, "B4"}, {600, "C4"}, {800, "C3"}, {1300, "D3"}, {kSin, "E1"}}}},
    {"Guadalajara", {{{950, "D3"}, {1000, "D2"}, {kSin, "E1"}}}},
    {"Huelva", {{{50, "A4"}, {150, "B4"}, {350, "B3"}, {800, "C3"}, {kSin, "D3"}}}},
    {"Huesca", {{{200, "C3"}, {400, "D3"}, {700, "D2"}, {kSin, "E1"}}}},
    {"Jaén", {{{350, "B4"}, {750, "C4"}, {1250, "C3"}, {kSin, "E1"}}}},
    {"León", {{{kSin, "E1"}}}},
    {"Lleida", {{{100, "C3"}, {600, "D3"}, {kSin, "E1"}}}},
    {"Logroño", {{{200, "C2"}, {700, "D2"}, {kSin, "E1"}}}},
    {"Lugo", {{{500, "D1"}, {kSin, "E1"}}}},
    {"Madrid", {{{500, "C3"}, {950, "D3"}, {1000, "D2"}, {kSin, "E1"}}}},
    {"Málaga", {{{100, "A3"}, {300, "B3"}, {700, "C3"}, {kSin, "D3"}}}},
    {"Melilla", {{{kSin, "A3c"}}}},
    {"Murcia", {{{100, "B3"}, {550, "C3"}, {kSin, "D3"}}}},
    {"Ourense", {{{150, "C3"}, {300, "C2"}, {800, "D2"}, {kSin, "E1"}}}},
    {"Oviedo", {{{50, "C1"}, {550, "D1"}, {kSin, "E1"}}}},
    {"Palencia", {{{800, "D1"}, {kSin, "E1"}}}},
    {"Palma de Mallorca", {{{250, "B3c"}, {kSin, "C3c"}}}},
    {"Palmas de Gran Canaria (Las)",
     {{{350, "alfa3c"}, {750, "A2c"}, {1000, "B2c"}, {kSin, "C2c"}}}},
    {"Pamplona/Iruña", {{{100, "C2"}, {350, "D2"}, {600, "D1"}, {kSin, "E1"}}}},
    {"Pontevedra", {{{350, "C1"}, {kSin, "D1"}}}},
    {"Salamanca", {{{850, "D2"}, {kSin, "E1"}}}},
    {"Donostia-San Sebastián", {{{400, "D1"}, {kSin, "E1"}}}},
    {"Santa Cruz de Tenerife", {{{350, "alfa3c"}, {750, "A2c"}, {1000, "B2c"}, {kSin, "C2c"}}}},
    {"Santander", {{{150, "C1"}, {650, "D1"}, {kSin, "E1"}}}},
    {"Segovia", {{{1050, "D2"}, {kSin, "E1"}}}},
    {"Sevilla", {{{200, "B4"}, {kSin, "C4"}}}},
    {"Soria", {{{750, "D2"}, {800, "D1"}, {kSin, "E1"}}}},
    {"Tarragona", {{{100, "B3"}, {500, "C3"}, {kSin, "D3"}}}},
    {"Teruel", {{{450, "C3"}, {500, "C2"}, {1000, "D2"}, {kSin, "E1"}}}},
    {"Toledo", {{{500, "C4"}, {kSin, "D3"}}}},
    {"Valencia", {{{50, "B3"}, {500, "C3"}, {950, "D2"}, {kSin, "E1"}}}},
    {"Valladolid", {{{800, "D2"}, {kSin, "E1"}}}},
    {"Vitoria-Gasteiz", {{{600, "D1"}, {kSin, "E1"}}}},
    {"Zamora", {{{800, "D2"}, {kSin, "E1"}}}},
    {"Zaragoza", {{{200, "C3"}, {650, "D3"}, {kSin, "E1"}}}},
}};

// Capital de una provincia; vacía si no está en la lista.
std::string_view CapitalDe(const XMLNode& capitales, std::string_view provincia) {
  for (std::size_t i = 0; i < capitales.childCount(); ++i) {
    const XMLNode fila = capitales.childAt(i);
    if (fila.attributeValue("P") == provincia) return fila.attributeValue("C").value_or("");
  }
  return {};
}

std::string_view ZonaDeAltitud(const Localizacion& sitio, const XMLNode& capitales) {
  return ZonaPorAltitud(CapitalDe(capitales, sitio.Provincia), sitio.asnm);
}

bool ZonaFijada(const Localizacion& sitio) {
  return sitio.Cambio_zona_temperatura == kSi;
}

void PonerZona(Localizacion& sitio, std::string_view zona) {
  if (!ZonaFijada(sitio) && !zona.empty()) sitio.ZonaClimatica = zona;
}

std::string MarcaDe(std::string_view juego) {
  return "-" + std::string(juego);
}

void Guardar(Edificio& edificio, Localizacion sitio) {
  edificio.SetConstruccion(PuentesPorTabla(edificio.GetConstruccion(), sitio.ZonaClimatica));
  edificio.SetLocalizacion(std::move(sitio));
}

}  // namespace

std::string_view ZonaPorAltitud(std::string_view capital, int altitud) {
  const auto* fila = std::find_if(kAltitudes.begin(), kAltitudes.end(),
                                  [&](const FilaAltitud& f) { return f.capital == capital; });
  if (fila == kAltitudes.end()) return {};
  for (const TramoAltitud& tramo : fila->tramos)
    if (altitud < tramo.limite || tramo.limite == kSin) return tramo.zona;
  return {};
}

bool EsZonaClimatica(std::string_view zona) {
  return std::find(kZonasMet.begin(), kZonasMet.end(), zona) != kZonasMet.end();
}

bool PonerMunicipio(Edificio& edificio, const CatalogoMunicipios& municipios,
                    const XMLNode& capitales, std::string_view provincia,
                    std::string_view municipio, bool conservarAltitud, Mensajes& mensajes) {
  const Municipio* fila = municipios.Exacto(provincia, municipio);
  if (fila == nullptr) return false;
  Localizacion sitio = edificio.GetLocalizacion();
  sitio.Provincia = fila->provincia;
  sitio.Municipio = fila->nombre;
  if (!conservarAltitud) sitio.asnm = fila->altitud;
  double latitud = 0;
  const bool esNumero = LeerReal(fila->latitud, latitud);
  sitio.latitud = ComprobarValor(esNumero ? Fijo(latitud, 2) : fila->latitud, "Latitud", mensajes);
  sitio.zona_radiante = fila->zonaRadiacion;
  const bool altitudPropia = conservarAltitud && sitio.asnm != fila->altitud;
  PonerZona(sitio, fila->ZonaClimatica());
  if (altitudPropia) PonerZona(sitio, ZonaDeAltitud(sitio, capitales));
  Guardar(edificio, std::move(sitio));
  return true;
}

void PonerAltitud(Edificio& edificio, const XMLNode& capitales, std::string_view texto,
                  Mensajes& mensajes) {
  Localizacion sitio = edificio.GetLocalizacion();
  sitio.asnm = static_cast<int>(ComprobarValor(texto, "Cota", mensajes));
  PonerZona(sitio, ZonaDeAltitud(sitio, capitales));
  Guardar(edificio, std::move(sitio));
}

bool FijarZona(Edificio& edificio, std::string_view zona) {
  if (!EsZonaClimatica(zona)) return false;
  Localizacion sitio = edificio.GetLocalizacion();
  sitio.Cambio_zona_temperatura = kSi;
  sitio.ZonaClimatica = zona;
  Guardar(edificio, std::move(sitio));
  return true;
}

void SoltarZona(Edificio& edificio, const CatalogoMunicipios& municipios,
                const XMLNode& capitales) {
  Localizacion sitio = edificio.GetLocalizacion();
  sitio.Cambio_zona_temperatura = kNo;
  const Municipio* fila = municipios.Exacto(sitio.Provincia, sitio.Municipio);
  if (fila != nullptr) PonerZona(sitio, fila->ZonaClimatica());
  if (fila == nullptr || fila->altitud != sitio.asnm)
    PonerZona(sitio, ZonaDeAltitud(sitio, capitales));
  Guardar(edificio, std::move(sitio));
}

std::string_view JuegoClima(const DatosGenerales& generales) {
  for (const std::string_view juego : kJuegosClima)
    if (generales.CodigoPostal == MarcaDe(juego)) return juego;
  return kJuegosClima.front();
}

bool PonerJuegoClima(Edificio& edificio, std::string_view juego) {
  if (std::find(kJuegosClima.begin(), kJuegosClima.end(), juego) == kJuegosClima.end())
    return false;
  if (JuegoClima(edificio.GetDatosGenerales()) == juego) return true;
  CambiarGenerales(edificio, [&](DatosGenerales& g) {
    g.CodigoPostal = juego == kJuegosClima.front() ? std::string() : MarcaDe(juego);
  });
  return true;
}

}  // namespace novex
