#include "entry/CatalogoMunicipios.h"

#include <algorithm>
#include <array>

#include "base/NumeroTexto.h"
#include "base/Texto.h"

namespace novex {
namespace {

constexpr std::array<std::string_view, 5> kExtrapeninsulares = {
    "Santa Cruz de Tenerife", "Las Palmas", "Illes Balears", "Ceuta", "Melilla"};

// Más allá de esto una altitud es una errata del fichero.
constexpr double kAltitudMaxima = 9000;

// ¿Empieza por las letras alguna de las formas del nombre, que van separadas por barra, guion o
// paréntesis ("Vitoria-Gasteiz", "Coruña (A)")? Ambos textos son claves de búsqueda.
enum class Comienzo { No, Principio, Parte };
Comienzo ComienzoDe(const std::string& nombre, const std::string& letras) {
  if (nombre.starts_with(letras)) return Comienzo::Principio;
  for (std::size_t i = 1; i < nombre.size(); ++i) {
    const char anterior = nombre[i - 1];
    if ((anterior == '/' || anterior == '-' || anterior == '(' || anterior == ' ') &&
        nombre.compare(i, letras.size(), letras) == 0)
      return Comienzo::Parte;
  }
  return Comienzo::No;
}

}  // namespace

bool EsExtrapeninsular(std::string_view provincia) {
  return std::find(kExtrapeninsulares.begin(), kExtrapeninsulares.end(), provincia) !=
         kExtrapeninsulares.end();
}

std::string Municipio::ZonaClimatica() const {
  return letra + cifra + (EsExtrapeninsular(provincia) ? "c" : "");
}

CatalogoMunicipios::CatalogoMunicipios(const XMLNode& raiz) {
  municipios_.reserve(raiz.childCount());
  for (std::size_t i = 0; i < raiz.childCount(); ++i) {
    const XMLNode fila = raiz.childAt(i);
    const auto texto = [&](std::string_view clave) {
      return std::string(fila.attributeValue(clave).value_or(""));
    };
    double altitud = 0;
    if (!LeerReal(texto("A"), altitud) || std::abs(altitud) > kAltitudMaxima) continue;
    municipios_.push_back({texto("P"), texto("C"), static_cast<int>(altitud), texto("LAT"),
                           texto("ZL"), std::string(SinBlancos(texto("ZN"))), texto("RAD")});
  }
}

const Municipio* CatalogoMunicipios::Exacto(std::string_view provincia,
                                            std::string_view nombre) const {
  for (const Municipio& m : municipios_)
    if (m.nombre == nombre && m.provincia == provincia) return &m;
  return nullptr;
}

std::vector<std::string> CatalogoMunicipios::Provincias() const {
  std::vector<std::string> nombres;
  for (const Municipio& m : municipios_)
    if (nombres.empty() || nombres.back() != m.provincia) nombres.push_back(m.provincia);
  std::sort(nombres.begin(), nombres.end(), [](const std::string& a, const std::string& b) {
    return ClaveBusqueda(a) < ClaveBusqueda(b);
  });
  nombres.erase(std::unique(nombres.begin(), nombres.end()), nombres.end());
  return nombres;
}

std::vector<const Municipio*> CatalogoMunicipios::DeProvincia(std::string_view provincia) const {
  std::vector<const Municipio*> lista;
  for (const Municipio& m : municipios_)
    if (m.provincia == provincia) lista.push_back(&m);
  return lista;
}

std::vector<const Municipio*> CatalogoMunicipios::Empiezan(std::string_view letras,
                                                           std::string_view provincia) const {
  const std::string clave = ClaveBusqueda(SinBlancos(letras));
  const std::string claveProvincia = ClaveBusqueda(SinBlancos(provincia));
  std::vector<const Municipio*> principio;
  std::vector<const Municipio*> partes;
  for (const Municipio& m : municipios_) {
    if (!claveProvincia.empty() &&
        ComienzoDe(ClaveBusqueda(m.provincia), claveProvincia) == Comienzo::No)
      continue;
    const Comienzo comienzo = ComienzoDe(ClaveBusqueda(m.nombre), clave);
    if (comienzo == Comienzo::Principio) principio.push_back(&m);
    if (comienzo == Comienzo::Parte) partes.push_back(&m);
  }
  principio.insert(principio.end(), partes.begin(), partes.end());
  return principio;
}

const Municipio* CatalogoMunicipios::Elegir(std::string_view provincia,
                                            std::string_view nombre) const {
  if (const Municipio* m = Exacto(provincia, nombre)) return m;
  const std::vector<const Municipio*> candidatos = Empiezan(nombre, provincia);
  const std::string clave = ClaveBusqueda(SinBlancos(nombre));
  const Municipio* igual = nullptr;
  for (const Municipio* m : candidatos)
    if (ClaveBusqueda(m->nombre) == clave) {
      if (igual != nullptr && igual->provincia != m->provincia) return nullptr;
      if (igual == nullptr) igual = m;
    }
  if (igual != nullptr) return igual;
  return candidatos.size() == 1 ? candidatos.front() : nullptr;
}

}  // namespace novex
