#include "demand/Solar.h"

#include <algorithm>
#include <cmath>

namespace novex {
namespace {

// Coseno de 40 grados: hasta ahí el vidrio deja pasar la directa sin pérdida por el ángulo.
constexpr float kCoseno40 = 0.76604444F;

}  // namespace

SolHora::SolHora(float azimutSolar, float cenit) {
  const float altura = (90.0F - cenit) * kGradosARadianes;
  senoAltura = std::sin(altura);
  cosenoAltura = std::cos(altura);
  senoAzimut = std::sin(azimutSolar * kGradosARadianes);
  cosenoAzimut = std::cos(azimutSolar * kGradosARadianes);
  cosenoCenit = std::cos(cenit * kGradosARadianes);
}

Plano::Plano(float inclinacion, float azimut)
    : senoInclinacion(std::sin(inclinacion * kGradosARadianes)),
      cosenoInclinacion(std::cos(inclinacion * kGradosARadianes)),
      senoAzimut(std::sin(azimut * kGradosARadianes)),
      cosenoAzimut(std::cos(azimut * kGradosARadianes)) {}

float Plano::IrradianciaTotal(const SolHora& sol, float directaNormal, float difusa) const {
  const float c = std::max(CosenoIncidencia(sol), 0.0F);
  return directaNormal * c + difusa * (1.0F + cosenoInclinacion) / 2.0F +
         kAlbedo * (directaNormal * sol.cosenoCenit + difusa) * (1.0F - cosenoInclinacion) / 2.0F;
}

float Plano::IrradianciaVidrio(const SolHora& sol, float directaNormal, float difusa) const {
  constexpr float kDifusaVidrio = 0.89F;
  const float c = std::max(CosenoIncidencia(sol), 0.0F);
  const float directa =
      c >= kCoseno40 ? directaNormal * c : directaNormal * c * 2.5F * c * (1.0F - 0.625F * c);
  return directa + (difusa * (1.0F + cosenoInclinacion) / 2.0F +
                    kAlbedo * (directaNormal * sol.cosenoCenit + difusa) *
                        (1.0F - cosenoInclinacion) / 2.0F) *
                       kDifusaVidrio;
}

float CosenoIncidencia(float inclinacion, float azimutPlano, float azimutSolar, float alturaSolar) {
  return Plano(inclinacion, azimutPlano)
      .CosenoIncidencia(SolHora(azimutSolar, 90.0F - alturaSolar));
}

float IrradianciaTotal(float inclinacion, float azimutPlano, float azimutSolar, float cenit,
                       float directaNormal, float difusa) {
  return Plano(inclinacion, azimutPlano)
      .IrradianciaTotal(SolHora(azimutSolar, cenit), directaNormal, difusa);
}

float IrradianciaVidrio(float inclinacion, float azimutPlano, float azimutSolar, float cenit,
                        float directaNormal, float difusa) {
  return Plano(inclinacion, azimutPlano)
      .IrradianciaVidrio(SolHora(azimutSolar, cenit), directaNormal, difusa);
}

}  // namespace novex
