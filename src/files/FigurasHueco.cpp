#include "files/FigurasHueco.h"

#include <array>
#include <cmath>

namespace novex {
namespace {

enum Vidrio : int { kMonolitico = 0, kDoble = 1, kOtroVidrio = 5 };
constexpr int kPersianaPastel = 2;
constexpr int kContraventanas = 13;

// Fracción del factor solar que deja el elemento móvil (CTE DA DB-HE/1), por elemento y por vidrio:
// monolítico, doble, bajo emisivo y el más aislante.
constexpr std::array<std::array<float, 4>, 14> kElementoMovil = {{{1.00F, 1.00F, 1.00F, 1.00F},
                                                                  {0.06F, 0.05F, 0.03F, 0.03F},
                                                                  {0.11F, 0.08F, 0.05F, 0.05F},
                                                                  {0.15F, 0.11F, 0.08F, 0.06F},
                                                                  {0.22F, 0.20F, 0.17F, 0.13F},
                                                                  {0.27F, 0.23F, 0.20F, 0.15F},
                                                                  {0.31F, 0.26F, 0.22F, 0.16F},
                                                                  {0.34F, 0.34F, 0.34F, 0.30F},
                                                                  {0.43F, 0.43F, 0.42F, 0.34F},
                                                                  {0.54F, 0.53F, 0.51F, 0.38F},
                                                                  {0.53F, 0.51F, 0.49F, 0.37F},
                                                                  {0.59F, 0.56F, 0.53F, 0.38F},
                                                                  {0.65F, 0.61F, 0.58F, 0.40F},
                                                                  {0.06F, 0.05F, 0.03F, 0.03F}}};

std::size_t ColumnaVidrio(const Huecos& h) {
  if (h.Indice_tipo_cristal == kMonolitico) return 0;
  if (h.Indice_tipo_cristal == kDoble) return 1;
  if (h.Indice_tipo_cristal != kOtroVidrio) return 2;
  if (h.U_cristal_W_m2K > 5.0F) return 0;
  if (h.U_cristal_W_m2K >= 3.0F) return 1;
  // Las persianas exteriores claras y las contraventanas no tienen la cuarta banda.
  const int movil = h.Indice_tipo_sombra_movil;
  const bool tresBandas = movil == 1 || movil == kPersianaPastel || movil == kContraventanas;
  return h.U_cristal_W_m2K >= 1.6F || tresBandas ? 2 : 3;
}

float FactorElementoMovil(const Huecos& h) {
  const auto movil = static_cast<std::size_t>(h.Indice_tipo_sombra_movil);
  if (h.Indice_tipo_sombra_movil < 0 || movil >= kElementoMovil.size()) return 1.0F;
  return kElementoMovil[movil][ColumnaVidrio(h)];
}

// Transmitancia lineal del borde del vidrio, W/mK (UNE-EN ISO 10077-1). Columnas: marco metálico,
// metálico con rotura, madera o PVC, otros.
float BordeVidrio(int vidrio, int marco) {
  constexpr std::array<std::array<float, 4>, 6> kBorde = {{{0.00F, 0.00F, 0.00F, 0.00F},
                                                           {0.01F, 0.06F, 0.05F, 0.05F},
                                                           {0.04F, 0.08F, 0.06F, 0.06F},
                                                           {0.04F, 0.08F, 0.06F, 0.06F},
                                                           {0.04F, 0.08F, 0.06F, 0.06F},
                                                           {0.06F, 0.06F, 0.06F, 0.06F}}};
  constexpr std::array<std::size_t, 8> kColumna = {0, 1, 1, 2, 2, 2, 2, 3};
  const auto i = static_cast<std::size_t>(vidrio);
  const auto j = static_cast<std::size_t>(marco);
  if (vidrio < 0 || marco < 0 || i >= kBorde.size() || j >= kColumna.size()) return 0.0F;
  return kBorde[i][kColumna[j]];
}

float Transmitancia(const Huecos& h) {
  const float marco = h.Fraccion_marco_tanto_por_cien * 0.01F;
  const float uMarco = h.U_marco_W_m2K;
  const float uVidrio = h.U_cristal_W_m2K;
  const float area = h.Ancho_m * h.Alto_m;
  if (area == 0.0F) return marco * uMarco + (1.0F - marco) * uVidrio;
  const float areaMarco = marco * area;
  const float areaVidrio = (1.0F - marco) * area;
  // El vidrio se toma con las proporciones del hueco.
  const float reduccion = std::sqrt(std::fmax(areaVidrio / area, 0.0F));
  const float perimetro = 2.0F * (reduccion * h.Alto_m + reduccion * h.Ancho_m);
  const bool conCaja = h.Existe_Caja_persiana == 0;
  const float areaCaja = conCaja ? h.Ancho_m * h.Altura_Caja_de_persiana_m : 0.0F;
  const float total = areaMarco + areaVidrio + areaCaja;
  if (total == 0.0F) return 0.0F;
  const float borde = BordeVidrio(h.Indice_tipo_cristal, h.Indice_marco);
  return (uMarco * areaMarco + uVidrio * areaVidrio + perimetro * borde +
          areaCaja * h.U_Caja_de_persiana_W_m2K) /
         total;
}

}  // namespace

FigurasHueco CalcularFigurasHueco(const Huecos& h) {
  const float porcentajeMarco = h.Fraccion_marco_tanto_por_cien;
  FigurasHueco f;
  f.C100 = h.Permeabilidad_Ventanas;
  f.Ff = porcentajeMarco * 0.01F;
  // El marco absorbe con 0.7 y cede al interior 0.04 por cada W/m2K.
  f.FactorSolar = h.FS_cristal_tanto_por_uno * 0.01F * (100.0F - porcentajeMarco) +
                  0.04F * h.U_marco_W_m2K * 0.01F * porcentajeMarco * 0.7F;
  f.FactorSolarSombraActivada = f.FactorSolar * FactorElementoMovil(h);
  f.UHueco = Transmitancia(h);
  f.FSHueco = porcentajeMarco == 100.0F ? 0.0F : f.FactorSolar;
  return f;
}

}  // namespace novex
