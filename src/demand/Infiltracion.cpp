#include "demand/Infiltracion.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace novex {
namespace {

constexpr float kPaso = 0.01F;            // Pa
constexpr float kVientoCuadrado = 16.0F;  // viento de 4 m/s
constexpr float kBarlovento = 0.15F * kVientoCuadrado;
constexpr float kSotavento = -0.3F * kVientoCuadrado;
constexpr int kPasosMaximos = 1 << 26;

// Caudales con una presión interior: la suma con signo y la de valores absolutos, m3/h.
struct Caudales {
  float suma = 0, absoluta = 0;
};

Caudales Caudal(const FugasZona& z, float Vm, float presion) {
  const float raiz5 = std::sqrt(5.0F);
  const float raiz10 = std::sqrt(10.0F);
  Caudales total;
  for (const float fachada : {kBarlovento, kSotavento}) {
    const float delta = fachada - presion;
    const float signo = delta < 0.0F ? -1.0F : 1.0F;
    const float x = std::fabs(delta) * 0.01F;
    const float laminar = std::pow(x, 0.67F);
    const float turbulento = std::sqrt(x);
    const std::array<float, 4> caudales = {
        0.5F * z.coeficienteOpacos * z.volumen * laminar, 0.5F * z.ventanas * laminar,
        0.5F * Vm * raiz5 * turbulento, 0.5F * z.cajasPersiana * raiz10 * turbulento};
    for (const float q : caudales) {
      total.suma += signo * q;
      total.absoluta += std::fabs(q);
    }
  }
  return total;
}

float PresionDelPaso(int paso) {
  return kBarlovento - kPaso * static_cast<float>(paso);
}

}  // namespace

float FugasEnvolvente(const FugasZona& zona, float renovaciones) {
  const float Vm = renovaciones * zona.volumen;
  const auto equilibra = [&](int paso) {
    return !(Caudal(zona, Vm, PresionDelPaso(paso)).suma - Vm < 0.0F);
  };
  // El primer paso que equilibra, bajando desde la presión de barlovento. La suma crece al bajar, y
  // basta con acotarlo y partir.
  int alto = 1;
  while (!equilibra(alto) && alto < kPasosMaximos) alto *= 2;
  int bajo = alto / 2;
  while (alto - bajo > 1) {
    const int centro = bajo + (alto - bajo) / 2;
    if (equilibra(centro))
      alto = centro;
    else
      bajo = centro;
  }
  return 0.5F * (Caudal(zona, Vm, PresionDelPaso(alto)).absoluta + Vm);
}

float BuscadorFugas::Infiltracion(float renovaciones) {
  if (renovaciones != ultimaRenovacion_) {
    const auto [it, nueva] = resueltas_.try_emplace(renovaciones, 0.0F);
    if (nueva) it->second = FugasEnvolvente(zona_, renovaciones);
    ultimaRenovacion_ = renovaciones;
    ultimaFuga_ = it->second;
  }
  const float Vr = zona_.volumen * renovaciones;
  return std::max(0.0F, (Vr + ultimaFuga_) * 0.5F - Vr);
}

}  // namespace novex
