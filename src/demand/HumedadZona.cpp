#include "demand/HumedadZona.h"

#include <algorithm>
#include <cmath>

#include "base/Psicrometria.h"
#include "demand/Clima.h"

namespace novex {
namespace {

constexpr float kSegundosHora = 3600.0F;
constexpr float kRenovacionMinima = 0.01F;    // 1/h
constexpr float kRenovacionVentanas = 4.0F;   // 1/h
constexpr float kTemperaturaBateria = 10.0F;  // °C

}  // namespace

HumedadZona::HumedadZona(const Edificio& edificio, const AjustesUso& ajustes, calculo& caso)
    : ajustes_(ajustes),
      caso_(caso),
      presion_(PresionHoraria(static_cast<float>(edificio.GetLocalizacion().asnm))),
      volumen_(edificio.GetRecinto(0).Volumen_total_m3),
      superficie_(edificio.GetRecinto(0).Suelo_habitable_m2),
      HRmin_(edificio.GetDatosGenerales().HRmin),
      saturacionBateria_(psicrometria::HumedadSaturacion(kTemperaturaBateria, presion_)) {}

void HumedadZona::Hora(int h, float frioLatente, float eficiencia) {
  using namespace psicrometria;
  SeriesZona& zona = caso_.zona;
  const float T = zona.TSL[h];
  const float Wo = caso_.clima.WE[h];
  const float gananciaW = superficie_ * caso_.carga.latente[h];
  const bool ventanas =
      ajustes_.ventanasAbiertas && ajustes_.residencial && caso_.carga.NRR[h] == kVentanasAbiertas;
  float n = ventanas ? kRenovacionVentanas : zona.QV[h] / volumen_;
  if (n == 0.0F) n = kRenovacionMinima;
  const float r = kCpVapor * T + kCalorLatente;
  const float W0 = h == 1 ? gananciaW * (1.0F / 1.2F) / (volumen_ * r * n) + Wo : zona.WL[h - 1];
  const float We = ventanas ? Wo : Wo - eficiencia * 0.01F * (Wo - W0);
  const float v = VolumenEspecifico(T, W0, presion_);
  const float ganancia = gananciaW * 0.001F;
  const float latente = frioLatente * 0.001F;
  const float a = -n / kSegundosHora;
  const float b = ((ganancia - latente) / r) / (volumen_ / v) + We * n / kSegundosHora;
  const float caida = std::exp(kSegundosHora * a);
  float W = caida * (b / a + W0) - b / a;
  W = std::min(W, HumedadSaturacion(T, presion_));
  if (W < saturacionBateria_ && frioLatente > 0.0F) W = saturacionBateria_;
  zona.humectacion[h] = 0;
  if (ajustes_.hayHumectador) {
    const float Wm = HumedadDeRelativa(T, HRmin_, presion_);
    if (W < Wm) {
      W = Wm;
      const float c = (W0 * caida - Wm) * a / (1.0F - caida);
      zona.humectacion[h] =
          ((volumen_ * (c - We * n / kSegundosHora) / v) * r - ganancia + latente) * 1000.0F;
    }
  }
  zona.WL[h] = W;
}

}  // namespace novex
