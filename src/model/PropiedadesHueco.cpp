#include "model/PropiedadesHueco.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace novex {
namespace {

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
  const float area = Af + Ag + Ac;
  if (area == 0.0F) return 0.0F;
  return (Uf * Af + Ug * Ag + L * PsiVidrio(g.Indice_tipo_cristal, g.Indice_marco) +
          Ac * g.U_Caja_de_persiana_W_m2K) /
         area;
}

float FactorSolarHueco(float g, float Umarco, float fraccionMarco) {
  return (1.0F - fraccionMarco * 0.01F) * g + fraccionMarco * 0.028F * Umarco * 0.01F;
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

FigurasHueco CalcularFigurasHueco(const Huecos& g) {
  const float F = g.Fraccion_marco_tanto_por_cien;
  FigurasHueco f;
  f.C100 = g.Permeabilidad_Ventanas;
  f.Ff = F * 0.01F;
  f.FactorSolar = FactorSolarHueco(g.FS_cristal_tanto_por_uno, g.U_marco_W_m2K, F);
  f.FactorSolarSombraActivada =
      f.FactorSolar *
      FactorProteccionMovil(g.Indice_tipo_sombra_movil, g.Indice_tipo_cristal, g.U_cristal_W_m2K);
  f.UHueco = UVentana(g, 0.0F, 0.0F);
  f.FSHueco = F == 100.0F ? 0.0F : f.FactorSolar;
  return f;
}

}  // namespace novex
