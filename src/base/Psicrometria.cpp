#include "base/Psicrometria.h"

#include <algorithm>
#include <cmath>

namespace novex::psicrometria {
namespace {

constexpr float kPrecision = 0.001F;  // °C

// Estrecha [bajo, alto] mientras mida más de la precisión y da el centro. `subir` dice si la
// solución está por encima del punto de prueba.
template <typename Subir>
float Bisecar(float bajo, float alto, Subir subir) {
  while (alto - bajo > kPrecision) {
    const float centro = 0.5F * (bajo + alto);
    if (centro <= bajo || centro >= alto) break;
    if (subir(centro))
      bajo = centro;
    else
      alto = centro;
  }
  return 0.5F * (bajo + alto);
}

constexpr float Cociente(float a, float b) {
  return b == 0.0F ? 0.0F : a / b;
}

}  // namespace

float PresionSaturacion(float t) {
  const double T = static_cast<double>(t) + 273.15;
  if (T <= 0.0) return 0.0F;
  if (t < -0.0606F)
    return static_cast<float>(
        std::exp(-5.6745359e3 / T + 6.3925247 +
                 T * (-9.677843e-3 + T * (6.2215701e-7 + T * (2.0747825e-9 + T * -9.484024e-13))) +
                 4.1635019 * std::log(T)));
  return static_cast<float>(std::exp(-5.8002206e3 / T + 1.3914993 +
                                     T * (-4.8640239e-2 + T * (4.1764768e-5 + T * -1.4452093e-8)) +
                                     6.5459673 * std::log(T)));
}

float HumedadDePresion(float pv, float presion) {
  return Cociente(kRazonMasas * pv, presion - pv);
}

float HumedadDeRelativa(float t, float hr, float presion) {
  return HumedadDePresion(hr * 0.01F * PresionSaturacion(t), presion);
}

float HumedadSaturacion(float t, float presion) {
  return HumedadDePresion(PresionSaturacion(t), presion);
}

float PresionVapor(float w, float presion) {
  return Cociente(w * presion, kRazonMasas + w);
}

float EstimacionBulboHumedo(float t, float w, float ws) {
  return ((kCpVapor * w + kCpAire) * t + (w - ws) * kCalorLatente) /
         ((kCpAgua * w + kCpAire) - (kCpAgua - kCpVapor) * ws);
}

float PuntoRocio(float w, float presion) {
  const float pv = PresionVapor(w, presion);
  if (w == 0.0F || !(pv > 1.0F)) return -60.0F;
  const double logaritmo = std::log10(static_cast<double>(pv));
  const auto t0 =
      static_cast<float>((35.85 * logaritmo - 2148.496) / (logaritmo - 10.2858) - 273.15);
  return Bisecar(t0 - 3.0F, t0 + 3.0F, [pv](float t) { return PresionSaturacion(t) < pv; });
}

float BulboHumedo(float t, float w, float presion) {
  const float rocio = PuntoRocio(w, presion);
  if (t < rocio) return 0.5F * (t + rocio);
  return Bisecar(rocio, t, [=](float prueba) {
    return EstimacionBulboHumedo(t, w, HumedadSaturacion(prueba, presion)) > prueba;
  });
}

float HumedadDeBulboHumedo(float t, float tw, float presion) {
  const float ws = HumedadSaturacion(tw, presion);
  return ((tw - t) * kCpAire + (kCalorLatente - (kCpAgua - kCpVapor) * tw) * ws) /
         ((kCpVapor * t + kCalorLatente) - kCpAgua * tw);
}

float Entalpia(float t, float w) {
  return (kCpVapor * t + kCalorLatente) * w + kCpAire * t;
}

float HumedadDeEntalpia(float t, float h) {
  return (h - kCpAire * t) / (kCpVapor * t + kCalorLatente);
}

float HumedadRelativa(float t, float w, float presion) {
  if (t == 0.0F && w == 0.0F) return 0.0F;
  const float saturacion = PresionSaturacion(t);
  if (saturacion == 0.0F) return 50.0F;
  return std::min(100.0F, 100.0F * PresionVapor(w, presion) / saturacion);
}

float VolumenEspecifico(float t, float w, float presion) {
  return Cociente(kGases / kMasaAire * (t + kCeroEscala), presion - PresionVapor(w, presion));
}

float TemperaturaDeEntalpia(float hr, float h, float presion) {
  return Bisecar(-40.0F, h, [=](float t) {
    return HumedadRelativa(t, HumedadDeEntalpia(t, h), presion) >= hr;
  });
}

float RazonSensibleBateria(float t, float hr, float presion, float tc) {
  const float wa = HumedadDeRelativa(t, hr, presion);
  const float ha = Entalpia(t, wa);
  const float wc = HumedadSaturacion(tc, presion);
  const float hc = Entalpia(tc, wc);
  if (wa <= wc || ha <= hc) return 1.0F;
  return std::max(0.7F, (Entalpia(t, wc) - hc) / (ha - hc));
}

float RocioAparato(float razon, float t, float w, float presion) {
  constexpr float kPaso = 0.01F;
  constexpr float kMinimo = 6.0F;
  const float h = Entalpia(t, w);
  const float rocio = PuntoRocio(w, presion);
  for (int paso = 1;; ++paso) {
    const float tc = rocio - kPaso * static_cast<float>(paso);
    if (tc <= kMinimo) return std::min(rocio, kMinimo);
    const float wc = HumedadSaturacion(tc, presion);
    const float hc = Entalpia(tc, wc);
    if (Cociente(Entalpia(t, wc) - hc, h - hc) <= razon) return tc;
  }
}

float MetodoBateria(float total, float sensible, AireEntrada nominal, AireEntrada hora,
                    float totalHora, float presion) {
  const float w1 = HumedadDeBulboHumedo(nominal.t, nominal.tw, presion);
  const float v1 = VolumenEspecifico(nominal.t, w1, presion);
  const float h1 = Entalpia(nominal.t, w1);
  const float rocio = RocioAparato(Cociente(sensible, total), nominal.t, w1, presion);
  const float hd = Entalpia(rocio, HumedadSaturacion(rocio, presion));
  const float w2 = HumedadDeBulboHumedo(hora.t, hora.tw, presion);
  const float v2 = VolumenEspecifico(hora.t, w2, presion);
  const float h2 = Entalpia(hora.t, w2);
  // Estado de la batería de la hora: saturado, con la caída de entalpía en proporción a la
  // potencia.
  const float h3 = h2 - Cociente(totalHora, total) * Cociente(v2, v1) * (h1 - hd);
  const float w3 = HumedadDeEntalpia(TemperaturaDeEntalpia(100.0F, h3, presion), h3);
  const float parteSensible = std::min(1.0F, Cociente(Entalpia(hora.t, w3) - h3, h2 - h3));
  return Cociente(parteSensible * totalHora, sensible);
}

}  // namespace novex::psicrometria
