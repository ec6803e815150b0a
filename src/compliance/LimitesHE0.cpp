#include "compliance/LimitesHE0.h"

#include <algorithm>
#include <array>

#include "compliance/Requisitos.h"

namespace novex {
namespace {

struct ParLimites {
  float nren, tot;  // kWh/m2 y año
};
struct FilaLimites {
  std::string_view letra;
  float calefaccion, F;  // base, kWh/m2, y lo que se divide por la superficie, kWh
  ParLimites nuevo, existente;
  ParLimites terciario;  // parte fija, a la que se suman 8 y 9 veces la carga interna
};
constexpr std::array<FilaLimites, 6> kFilas = {{
    {"alfa", 15, 0, {25, 46}, {50, 63.25F}, {70, 165}},
    {"A", 15, 0, {25, 50}, {50, 75}, {55, 155}},
    {"B", 15, 0, {28, 56}, {55, 80}, {50, 150}},
    {"C", 20, 1000, {32, 64}, {65, 90}, {35, 140}},
    {"D", 27, 2000, {38, 76}, {70, 105}, {20, 130}},
    {"E", 40, 3000, {43, 86}, {80, 115}, {10, 120}},
}};
constexpr float kPorCargaNren = 8, kPorCargaTot = 9;
constexpr float kLimiteFrio = 15, kLimiteFrioVerano4 = 20;

// Corrección extrapeninsular.
constexpr float kTerciarioExtra = 1.4F;
constexpr ParLimites kResidencialExtra = {1.25F, 1.15F};

constexpr std::array<std::string_view, 18> kZonasTabla = {"alfa3c", "A3",  "A4", "A2c", "B3", "B4",
                                                          "B2c",    "B3c", "C1", "C2",  "C3", "C4",
                                                          "C2c",    "C3c", "D1", "D2",  "D3", "E1"};
constexpr std::array<std::string_view, 5> kZonasCorregidas = {"A2c", "B2c", "B3c", "C2c", "C3c"};

template <class Lista>
bool Esta(const Lista& lista, std::string_view texto) {
  return std::find(lista.begin(), lista.end(), texto) != lista.end();
}

const FilaLimites* FilaDe(std::string_view zona) {
  for (const FilaLimites& fila : kFilas)
    if (zona.starts_with(fila.letra)) return &fila;
  return nullptr;
}

// La fila alfa lleva ya corregidos los valores residenciales.
ParLimites Correccion(const Localizacion& sitio, const FilaLimites& fila, bool enTabla,
                      bool residencial) {
  const std::string& zona = sitio.ZonaClimatica;
  const bool frio = fila.letra == "D" || fila.letra == "E";
  const bool extrapeninsular = !enTabla || Esta(kZonasCorregidas, zona) ||
                               sitio.Provincia == "Ceuta" || sitio.Provincia == "Melilla";
  if (fila.letra == "alfa")
    return residencial ? ParLimites{1, 1} : ParLimites{kTerciarioExtra, kTerciarioExtra};
  if (!extrapeninsular) return {1, 1};
  if (!residencial) return {kTerciarioExtra, kTerciarioExtra};
  return enTabla && frio ? ParLimites{1, 1} : kResidencialExtra;
}

}  // namespace

LimitesCaso LimitesHE0(const Edificio& edificio, float cargaInterna) {
  const DatosGenerales& d = edificio.GetDatosGenerales();
  const Localizacion& sitio = edificio.GetLocalizacion();
  const std::string& zona = sitio.ZonaClimatica;
  LimitesCaso limites;
  const FilaLimites* fila = FilaDe(zona);
  if (fila == nullptr) return limites;
  limites.puestos = true;
  const bool enTabla = Esta(kZonasTabla, zona);
  limites.deSuLetra = !enTabla;
  const float superficie = edificio.GetRecinto(0).Suelo_habitable_m2;
  limites.demandaCalefaccion =
      fila->calefaccion + (superficie > 0.0F ? fila->F / superficie : 0.0F);
  const bool verano4 =
      fila->letra != "alfa" && zona.size() > fila->letra.size() && zona[fila->letra.size()] == '4';
  limites.demandaRefrigeracion = verano4 ? kLimiteFrioVerano4 : kLimiteFrio;
  const bool comoNuevo = d.Modo_trabajo == "Nuevo" || EsReforma(d, "Ampliación");
  ParLimites base = comoNuevo ? fila->nuevo : fila->existente;
  if (!d.EsResidencial())
    base = {fila->terciario.nren + kPorCargaNren * cargaInterna,
            fila->terciario.tot + kPorCargaTot * cargaInterna};
  const ParLimites factor = Correccion(sitio, *fila, enTabla, d.EsResidencial());
  limites.CepNren = base.nren * factor.nren;
  limites.CepTot = base.tot * factor.tot;
  return limites;
}

}  // namespace novex
