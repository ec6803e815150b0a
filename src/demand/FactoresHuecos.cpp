#include "demand/FactoresHuecos.h"

#include <algorithm>
#include <array>

#include "model/Huecos.h"

namespace novex {
namespace {

// Protecciones fijas: S, SE, SO, E, O por índice.
constexpr std::array<std::array<float, 5>, 23> kSombraFija = {{
    {{1, 1, 1, 1, 1}},
    {{0.49F, 0.54F, 0.54F, 0.57F, 0.57F}},
    {{0.42F, 0.44F, 0.44F, 0.45F, 0.45F}},
    {{0.26F, 0.26F, 0.26F, 0.27F, 0.27F}},
    {{0.37F, 0.46F, 0.38F, 0.39F, 0.44F}},
    {{0.44F, 0.53F, 0.44F, 0.47F, 0.52F}},
    {{0.49F, 0.56F, 0.5F, 0.54F, 0.58F}},
    {{0.53F, 0.56F, 0.56F, 0.63F, 0.63F}},
    {{0.47F, 0.47F, 0.53F, 0.55F, 0.5F}},
    {{0.41F, 0.4F, 0.48F, 0.45F, 0.41F}},
    {{0.32F, 0.3F, 0.38F, 0.32F, 0.29F}},
    {{0.02F, 0.02F, 0.02F, 0.04F, 0.04F}},
    {{0.05F, 0.05F, 0.05F, 0.08F, 0.08F}},
    {{0.22F, 0.22F, 0.22F, 0.28F, 0.28F}},
    {{0.22F, 0.22F, 0.22F, 0.24F, 0.24F}},
    {{0.25F, 0.25F, 0.25F, 0.28F, 0.28F}},
    {{0.42F, 0.42F, 0.42F, 0.48F, 0.48F}},
    {{0.43F, 0.61F, 0.61F, 0.67F, 0.67F}},
    {{0.2F, 0.3F, 0.3F, 0.4F, 0.4F}},
    {{0.14F, 0.22F, 0.22F, 0.28F, 0.28F}},
    {{0.63F, 0.81F, 0.81F, 0.87F, 0.87F}},
    {{0.4F, 0.5F, 0.5F, 0.6F, 0.6F}},
    {{0.34F, 0.42F, 0.42F, 0.48F, 0.48F}},
}};

// Pozos de lucernario: filas por ancho y columnas por alto, en veces el fondo.
constexpr std::array<float, 5> kBandasPozo = {0.1F, 0.5F, 1, 2, 5};
constexpr std::array<std::array<float, 6>, 6> kPozo = {{
    {{0.42F, 0.43F, 0.43F, 0.43F, 0.44F, 0.44F}},
    {{0.43F, 0.46F, 0.48F, 0.5F, 0.51F, 0.52F}},
    {{0.43F, 0.48F, 0.52F, 0.55F, 0.58F, 0.59F}},
    {{0.43F, 0.5F, 0.55F, 0.6F, 0.66F, 0.68F}},
    {{0.44F, 0.51F, 0.58F, 0.66F, 0.75F, 0.79F}},
    {{0.44F, 0.52F, 0.59F, 0.68F, 0.79F, 0.85F}},
}};

constexpr int kPrimeraHoraDia = 9;
constexpr int kUltimaHoraDia = 19;
constexpr bool EsHoraDeDia(int d) {
  return d >= kPrimeraHoraDia && d <= kUltimaHoraDia;
}

// Persiana de noche en invierno por su control.
constexpr std::array<float, 5> kInvierno = {0.5F, 0.7F, 0.9F, 1, 0.3F};

template <std::size_t N>
float Elegir(const std::array<float, N>& tabla, int indice) {
  if (indice < 0 || static_cast<std::size_t>(indice) >= N) return 0.0F;
  return tabla[static_cast<std::size_t>(indice)];
}

std::size_t BandaPozo(float x) {
  return static_cast<std::size_t>(std::lower_bound(kBandasPozo.begin(), kBandasPozo.end(), x) -
                                  kBandasPozo.begin());
}

}  // namespace

float FraccionPersianaU(int d, bool verano, int controlVerano, int controlInvierno) {
  constexpr std::array<float, 9> kVerano = {0.1F, 0.2F, 0.3F, 0.2F, 0.3F, 0.4F, 0.3F, 0.4F, 0.5F};
  if (verano) return EsHoraDeDia(d) ? Elegir(kVerano, controlVerano) : 0.0F;
  return EsHoraDeDia(d) ? Elegir(kInvierno, controlInvierno) : 1.0F;
}

float FraccionPersianaSol(int d, bool verano, int controlVerano, int controlInvierno,
                          float irradiancia) {
  struct Control {
    float umbral, fraccion;
    bool siempre;
  };
  constexpr std::array<Control, 9> kControles = {{{300, 0.5F, false},
                                                  {500, 0.5F, false},
                                                  {300, 0.7F, false},
                                                  {500, 0.7F, false},
                                                  {300, 0.9F, false},
                                                  {500, 0.9F, false},
                                                  {0, 0.5F, true},
                                                  {0, 0.7F, true},
                                                  {0, 0.9F, true}}};
  if (!verano) return irradiancia > 0.0F ? 0.0F : Elegir(kInvierno, controlInvierno);
  if (controlVerano < 0 || static_cast<std::size_t>(controlVerano) >= kControles.size()) return 0;
  const Control& c = kControles[static_cast<std::size_t>(controlVerano)];
  const bool actua = c.siempre || EsHoraDeDia(d);
  return actua && irradiancia > c.umbral ? c.fraccion : 0.0F;
}

float FactorSombraFija(int indice, std::size_t orientacion) {
  if (indice < 0 || static_cast<std::size_t>(indice) >= kSombraFija.size()) return 1.0F;
  const auto& fila = kSombraFija[static_cast<std::size_t>(indice)];
  switch (orientacion) {
    case sur:
      return fila[0];
    case sur_este:
      return fila[1];
    case sur_oeste:
      return fila[2];
    case este:
      return fila[3];
    case oeste:
      return fila[4];
    default:
      return 1.0F;
  }
}

float FactorLucernario(float ancho, float alto, float fondo) {
  if (fondo == 0.0F) return 1.0F;
  return kPozo[BandaPozo(ancho / fondo)][BandaPozo(alto / fondo)];
}

}  // namespace novex
