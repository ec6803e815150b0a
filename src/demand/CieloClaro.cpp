#include "demand/CieloClaro.h"

#include <algorithm>
#include <cmath>

namespace novex {
namespace {

constexpr float kConstanteSolar = 1367.0F;  // W/m2
constexpr float kOzono = 0.3F;              // cm
constexpr float kAgua = 1.3F;               // cm
constexpr float kAerosol = 0.04F;
constexpr float kAlbedoSuelo = 0.2F;

// Transmitancias de la atmósfera con una masa de aire m (Bird y Hulstrom, 1981).
struct Transmitancias {
  float rayleigh, ozono, gases, agua, aerosol;
};

Transmitancias Atravesar(float m) {
  const float xo = kOzono * m;
  const float xw = kAgua * m;
  Transmitancias T{};
  T.rayleigh = std::exp(-0.0903F * std::pow(m, 0.84F) * (1 + m - std::pow(m, 1.01F)));
  T.ozono = 1 - 0.1611F * xo * std::pow(1 + 139.48F * xo, -0.3035F) -
            0.002715F * xo / (1 + 0.044F * xo + 0.0003F * xo * xo);
  T.gases = std::exp(-0.0127F * std::pow(m, 0.26F));
  T.agua = 1 - 2.4959F * xw / (std::pow(1 + 79.034F * xw, 0.6828F) + 6.385F * xw);
  T.aerosol = std::exp(-std::pow(kAerosol, 0.873F) * (1 + kAerosol - std::pow(kAerosol, 0.7088F)) *
                       std::pow(m, 0.9108F));
  return T;
}

}  // namespace

float IrradianciaCieloClaro(float cenit, float cosenoIncidencia) {
  if (cenit >= 90.0F) return 0.0F;
  const float cosz = std::cos(cenit * 3.14159265F / 180.0F);
  const float m = 1.0F / (cosz + 0.15F * std::pow(93.885F - cenit, -1.25F));
  const Transmitancias T = Atravesar(m);
  const float directa =
      kConstanteSolar * 0.9662F * T.rayleigh * T.ozono * T.gases * T.agua * T.aerosol;
  const float Taa = 1 - 0.1F * (1 - m + std::pow(m, 1.06F)) * (1 - T.aerosol);
  const float Tas = T.aerosol / Taa;
  const float difusa = kConstanteSolar * cosz * 0.79F * T.ozono * T.agua * T.gases * Taa *
                       (0.5F * (1 - T.rayleigh) + 0.84F * (1 - Tas)) / (1 - m + std::pow(m, 1.02F));
  const float albedoCielo = 0.0685F + 0.16F * (1 - Tas);
  const float total = (directa * cosz + difusa) / (1 - kAlbedoSuelo * albedoCielo);
  return directa * std::max(cosenoIncidencia, 0.0F) + (total - directa * cosz) / 2 +
         kAlbedoSuelo * total / 2;
}

}  // namespace novex
