#include "demand/FactoresHuecos.h"

#include <algorithm>
#include <array>
#include <cmath>

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

// Protecciones móviles 1 a 12: vidrio sencillo, doble y bajo emisivo por su índice, y después por U
// mayor que 5, desde 3, desde 1,6 y menor. La 13 es como la 1.
constexpr std::array<std::array<float, 7>, 12> kProteccionMovil = {{
    {{0.06F, 0.05F, 0.03F, 0.06F, 0.05F, 0.03F, 0.03F}},
    {{0.11F, 0.08F, 0.05F, 0.11F, 0.08F, 0.05F, 0.05F}},
    {{0.15F, 0.11F, 0.08F, 0.15F, 0.11F, 0.08F, 0.06F}},
    {{0.22F, 0.2F, 0.17F, 0.22F, 0.2F, 0.17F, 0.13F}},
    {{0.27F, 0.23F, 0.2F, 0.27F, 0.23F, 0.2F, 0.15F}},
    {{0.31F, 0.26F, 0.22F, 0.31F, 0.26F, 0.22F, 0.16F}},
    {{0.34F, 0.34F, 0.34F, 0.34F, 0.34F, 0.34F, 0.3F}},
    {{0.43F, 0.43F, 0.42F, 0.43F, 0.43F, 0.42F, 0.34F}},
    {{0.54F, 0.53F, 0.51F, 0.54F, 0.53F, 0.51F, 0.38F}},
    {{0.53F, 0.51F, 0.49F, 0.53F, 0.51F, 0.49F, 0.37F}},
    {{0.59F, 0.56F, 0.53F, 0.59F, 0.56F, 0.53F, 0.38F}},
    {{0.65F, 0.61F, 0.58F, 0.65F, 0.61F, 0.58F, 0.4F}},
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

// Transmitancia lineal del borde del vidrio, W/mK, por tipo de vidrio y marco.
float PsiVidrio(int cristal, int marco) {
  const bool noMetalico = marco >= 3 && marco <= 7;
  const bool roturaPuente = marco == 1 || marco == 2;
  if (cristal == 1) {
    if (noMetalico) return 0.05F;
    if (roturaPuente) return 0.06F;
    return marco == 0 ? 0.01F : 0.0F;
  }
  if (cristal >= 2 && cristal <= 4) {
    if (noMetalico) return 0.06F;
    if (roturaPuente) return 0.08F;
    return marco == 0 ? 0.04F : 0.0F;
  }
  return cristal == 5 ? 0.06F : 0.0F;
}

}  // namespace

float UVentana(const Huecos& g, float Ucristal, float Umarco) {
  const float Ug = Ucristal != 0.0F ? Ucristal : g.U_cristal_W_m2K;
  const float Uf = Umarco != 0.0F ? Umarco : g.U_marco_W_m2K;
  const float W = g.Ancho_m;
  const float H = g.Alto_m;
  const float F = g.Fraccion_marco_tanto_por_cien;
  if (W * H == 0.0F) return F * 0.01F * Uf + (1.0F - F * 0.01F) * Ug;
  const float Af = F * 0.01F * W * H;
  const float Ag = (100.0F - F) * 0.01F * W * H;
  const float escala = std::sqrt(std::max(Ag / (W * H), 0.0F));
  const float L = 2.0F * (escala * W + escala * H);
  const float Ac = g.Existe_Caja_persiana == 0 ? g.Altura_Caja_de_persiana_m * W : 0.0F;
  return (Uf * Af + Ug * Ag + L * PsiVidrio(g.Indice_tipo_cristal, g.Indice_marco) +
          Ac * g.U_Caja_de_persiana_W_m2K) /
         (Af + Ag + Ac);
}

float FactorSolarHueco(float g, float Umarco, float fraccionMarco) {
  return (1.0F - fraccionMarco * 0.01F) * g + fraccionMarco * 0.028F * Umarco * 0.01F;
}

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

float FactorProteccionMovil(int indice, int cristal, float Ucristal) {
  if (indice == 13) indice = 1;
  if (indice < 1 || indice > static_cast<int>(kProteccionMovil.size())) return 1.0F;
  std::size_t columna = 6;
  if (cristal >= 0 && cristal <= 4)
    columna = static_cast<std::size_t>(std::min(cristal, 2));
  else if (Ucristal > 5.0F)
    columna = 3;
  else if (Ucristal >= 3.0F)
    columna = 4;
  else if (Ucristal >= 1.6F)
    columna = 5;
  return kProteccionMovil[static_cast<std::size_t>(indice - 1)][columna];
}

float FactorLucernario(float ancho, float alto, float fondo) {
  if (fondo == 0.0F) return 1.0F;
  return kPozo[BandaPozo(ancho / fondo)][BandaPozo(alto / fondo)];
}

}  // namespace novex
