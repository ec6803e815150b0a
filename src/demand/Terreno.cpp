#include "demand/Terreno.h"

#include <algorithm>
#include <cmath>

namespace novex {
namespace {

// ISO 13370: terreno de arcilla o limo.
constexpr float kConductividad = 2.0F;    // W/mK
constexpr float kCapacidad = 2000000.0F;  // J/m3K
constexpr float kPeriodo = 3.15e7F;       // s
constexpr float kPi = 3.1416F;
constexpr float kInversaPi = 0.31830914F;
constexpr float kAmplitudInterior = 3.0F;  // K
constexpr float kInterior = 22.0F;         // °C
constexpr float kRsiSuelo = 0.17F;
constexpr float kRse = 0.04F;
constexpr float kEspesorMuroPerimetral = 0.3F;  // m
constexpr float kProfundidadSuperficial = 0.5F;

// Profundidad de penetración periódica, m.
float Delta() {
  return std::sqrt(kPeriodo * kConductividad / (kPi * kCapacidad));
}

float PeriodicaInterior(float area, float espesor) {
  const float x = Delta() / espesor + 1.0F;
  return area * (kConductividad / espesor) * std::sqrt(2.0F / (x * x + 1.0F));
}

// Banda aislada del borde de una solera.
struct Banda {
  float anchura;         // m
  float espesorAnadido;  // espesor equivalente de terreno, m
};

Banda BandaDe(const SueloTerreno& suelo) {
  const float anchura =
      suelo.D_Longitud_aislamiento_m <= 0.0F ? 0.1F : suelo.D_Longitud_aislamiento_m;
  const float resistencia =
      std::max(suelo.Ra_Resitencia_aislante_m2K_W - 0.1F / kConductividad, 0.0F);
  return {anchura, resistencia * kConductividad};
}

float Estacionaria(float area, float perimetro, float espesor, bool periferico, Banda banda) {
  const float B = 2.0F * area / perimetro;
  float Hg = espesor < B ? area * 2.0F * kConductividad / (kPi * B + espesor) *
                               std::log(kPi * B / espesor + 1.0F)
                         : area * kConductividad / (0.457F * B + espesor);
  if (periferico) {
    const float psi = -kConductividad * kInversaPi *
                      (std::log(2.0F * banda.anchura / espesor + 1.0F) -
                       std::log(2.0F * banda.anchura / (espesor + banda.espesorAnadido) + 1.0F));
    Hg += perimetro * psi;
  }
  return Hg;
}

float PeriodicaExterior(float perimetro, float espesor, float profundidad, bool periferico,
                        Banda banda) {
  const float delta = Delta();
  const float sinBanda = std::log(delta / espesor + 1.0F);
  if (profundidad > kProfundidadSuperficial)
    return 0.37F * perimetro * kConductividad * sinBanda * std::exp(-profundidad / delta);
  if (!periferico) return 0.37F * perimetro * kConductividad * sinBanda;
  const float e = std::exp(-2.0F * banda.anchura / delta);
  const float conBanda = std::log(delta / (espesor + banda.espesorAnadido) + 1.0F);
  return 0.37F * perimetro * kConductividad * ((1.0F - e) * conBanda + e * sinBanda);
}

}  // namespace

CoeficientesTerreno CoeficientesSolera(float U, float area, float perimetro,
                                       const SueloTerreno& suelo) {
  if (U == 0.0F || area <= 0.0F) return {};
  if (perimetro <= 0.0F) perimetro = 4.0F * std::sqrt(area);
  const float z = suelo.Profundidad_suelo_enterrado_m;
  const bool periferico = suelo.Tipo_aislamiento_suelo == "Periferico";
  const Banda banda = BandaDe(suelo);
  const float Rf = std::max(1.0F / U - kRsiSuelo, 0.0F);
  const float dt = (kRsiSuelo + Rf + kRse) * kConductividad + kEspesorMuroPerimetral;
  CoeficientesTerreno c;
  c.Hg = Estacionaria(area, perimetro, z > kProfundidadSuperficial ? dt + z / 2.0F : dt, periferico,
                      banda);
  // A poca profundidad la parte periódica solo está definida para los aislamientos conocidos.
  const bool conocido = periferico || suelo.Tipo_aislamiento_suelo == "Continuo" ||
                        suelo.Tipo_aislamiento_suelo == "SinAislamiento";
  if (!conocido && z <= kProfundidadSuperficial) return c;
  c.Hpi = PeriodicaInterior(area, dt);
  c.Hpe = PeriodicaExterior(perimetro, dt, z, periferico, banda);
  return c;
}

CoeficientesTerreno CoeficientesMuroTerreno(float U, float area, float profundidad) {
  if (U == 0.0F || area <= 0.0F) return {};
  const float z = profundidad <= 0.0F ? 1.0F : profundidad;
  const float Rw = std::max(1.0F / U - 0.1F, 0.0F);
  const float dw = (kRsiSuelo + Rw + kRse) * kConductividad;
  const float delta = Delta();
  CoeficientesTerreno c;
  c.Hg = area * (2.0F * kConductividad / (kPi * z)) * (0.5F * dw / (dw + z) + 1.0F) *
         std::log(z / dw + 1.0F);
  c.Hpi = PeriodicaInterior(area, dw);
  c.Hpe = 2.0F * 0.37F * kConductividad * (area / z) * std::log(delta / dw + 1.0F) *
          (1.0F - std::exp(-z / delta));
  return c;
}

float FlujoTerreno(const CoeficientesTerreno& coef, int mes, float mediaAnual, float amplitud) {
  const float paso = 6.2832F / 12.0F;
  return -((kInterior - mediaAnual) * coef.Hg -
           std::cos(static_cast<float>(mes - 1) * paso) * kAmplitudInterior * coef.Hpi +
           std::cos(static_cast<float>(mes - 2) * paso) * amplitud * coef.Hpe);
}

}  // namespace novex
