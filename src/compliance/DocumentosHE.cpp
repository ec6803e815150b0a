#include "compliance/DocumentosHE.h"

#include <algorithm>

#include "reference/FicheroCatalogo.h"

namespace novex {
namespace {

constexpr std::array<std::string_view, kFilasMaximo> kAtributosMaximo = {
    "MuroMax",         "CerraTerrMax",        "ParticionMax",       "ParticionMedianeraMax",
    "SueloExtMax",     "TechoExtMax",         "HuecosMax",          "EscaparateMax",
    "PuertasMax",      "ParticionesIntMaxHz", "ParticionesIntMaxV", "ParticionesDUsoMax",
    "PermeabilidadMax"};

constexpr std::array<std::string_view, kFilasMaximo> kRotulos = {
    "Muros exteriores",
    "Cerramientos en contacto con el terreno",
    "Particiones con espacios no habitables",
    "Medianeras",
    "Suelos al exterior",
    "Cubiertas",
    "Huecos",
    "Escaparates",
    "Puertas",
    "Particiones interiores horizontales",
    "Particiones interiores verticales",
    "Particiones con distinto uso",
    "Permeabilidad de huecos"};

constexpr std::array<std::string_view, 13> kAccesorios = {"Persiana exterior blanca",
                                                          "Persiana exterior pastel",
                                                          "Persiana exterior oscura",
                                                          "Persiana exterior negra",
                                                          "Persiana interior blanca",
                                                          "Persiana interior pastel",
                                                          "Persiana interior oscura",
                                                          "Persiana interior negra",
                                                          "Cortina interior blanca",
                                                          "Cortina interior pastel",
                                                          "Cortina interior oscura",
                                                          "Cortina interior negra",
                                                          "Contraventanas"};
constexpr std::array<std::string_view, 3> kColumnasVidrio = {"Sencillo", "Doble",
                                                             "Doblebajoemisivo"};

XMLNode LeerSiEsta(const std::filesystem::path& ruta, std::string_view raiz) {
  std::error_code sinImportancia;
  if (!std::filesystem::exists(ruta, sinImportancia)) return {};
  return XMLNode::loadFile(ruta, raiz);
}

// La primera fila con ese valor en un atributo; vacía si no la hay.
XMLNode FilaDe(const XMLNode& raiz, std::string_view atributo, std::string_view valor) {
  for (std::size_t i = 0; i < raiz.childCount(); ++i) {
    XMLNode fila = raiz.childAt(i);
    if (fila.attributeValue(atributo) == valor) return fila;
  }
  return {};
}

float Numero(const XMLNode& fila, std::string_view atributo) {
  return NumeroDeCatalogo(fila.attributeValue(atributo).value_or(""));
}

}  // namespace

DocumentosHE LeerDocumentosHE(const std::filesystem::path& datos) {
  DocumentosHE d;
  d.klimite = LeerSiEsta(datos / "Klimite.xml", "Klimite");
  d.radJulio = LeerSiEsta(datos / "RadJulio.xml", "RadJulio");
  d.valorMaximoU = LeerSiEsta(datos / "ValorMaximoU.xml", "VALORMAXIMOU");
  d.valorMaximo = LeerSiEsta(datos / "ValorMaximo.xml", "VALORMAXIMO");
  d.accesorios = LeerSiEsta(datos / "Accesorios.xml", "Accesorios");
  return d;
}

LimitesZonaHE1 LeerKlimite(const XMLNode& raiz, std::string_view zona) {
  const XMLNode fila = FilaDe(raiz, "HE1", zona);
  LimitesZonaHE1 l;
  l.hay = static_cast<bool>(fila);
  l.Compacidad1 = Numero(fila, "Compacidad1");
  l.Compacidad4 = Numero(fila, "Compacidad4");
  l.Compacidad1R = Numero(fila, "Compacidad1R");
  l.Compacidad4R = Numero(fila, "Compacidad4R");
  l.VA2 = Numero(fila, "VA2");
  l.VA4 = Numero(fila, "VA4");
  return l;
}

RadiacionJulio LeerRadJulio(const XMLNode& raiz, std::string_view zona) {
  constexpr std::array<std::string_view, kSectores> kColumnas = {"N", "O", "SO", "S", "SE", "E"};
  const XMLNode fila = FilaDe(raiz, "HE1", zona);
  RadiacionJulio r;
  r.hay = static_cast<bool>(fila);
  for (std::size_t s = 0; s < kSectores; ++s) r.sector[s] = Numero(fila, kColumnas[s]);
  r.horizontal = Numero(fila, "Horiz");
  return r;
}

LimitesMaximos LeerValorMaximoU(const XMLNode& raiz, std::string_view zona) {
  const XMLNode fila = FilaDe(raiz, "HE1", zona);
  LimitesMaximos l;
  l.hay = static_cast<bool>(fila);
  for (std::size_t i = 0; i < kFilasMaximo; ++i) l.limite[i] = Numero(fila, kAtributosMaximo[i]);
  return l;
}

std::array<std::string, kFilasMaximo> LeerRotulosMaximo(const XMLNode& raiz) {
  std::array<std::string, kFilasMaximo> rotulos;
  for (std::size_t i = 0; i < kFilasMaximo; ++i)
    rotulos[i] = raiz.childAt(i + 1).attributeValue("CERRAMIENTO").value_or(kRotulos[i]);
  return rotulos;
}

float FactorAccesorio(const XMLNode& raiz, int sombra, int vidrio) {
  if (sombra <= 0) return 1.0F;
  const auto i = static_cast<std::size_t>(sombra - 1);
  if (i >= kAccesorios.size()) return 0.0F;
  const auto columna = static_cast<std::size_t>(std::clamp(vidrio, 0, 2));
  return Numero(FilaDe(raiz, "Tipo", kAccesorios[i]), kColumnasVidrio[columna]);
}

}  // namespace novex
