#include "systems/Fotovoltaica.h"

#include <algorithm>

#include "base/Calendario.h"
#include "demand/Solar.h"

namespace novex {

float PotenciaFotovoltaica(const DatosGenerales& g, const SeriesClima& clima, float extraPico,
                           int h) {
  float total = 0;
  for (std::size_t i = 0; i < g.PotPico_FV.size(); ++i) {
    const float pico = g.PotPico_FV[i] + (i == 0 ? extraPico : 0.0F);
    if (pico == 0.0F) continue;
    const float G = IrradianciaTotal(g.Incli_FV[i], g.Az_FV[i], clima.AZIMUTS[h], clima.CENITS[h],
                                     clima.IDIRECTA[h], clima.IDIFUSA[h]);
    const float perdidaCelula = 0.4F * (0.03F * G + 25.0F - clima.TSE[h]);  // %
    const float rendimiento = (100.0F - g.PSuciedad_FV - perdidaCelula - g.PConversor_FV) * 0.01F;
    total += pico * G * rendimiento * 0.001F;
  }
  // A una vivienda de un bloque le toca su parte de la instalación común.
  if (g.PerfilUso == 2) total = g.NVBloqueF == 0.0F ? 0.0F : total / g.NVBloqueF;
  return total;
}

TablaMensual ProduccionFotovoltaica(const DatosGenerales& g, const SeriesClima& clima) {
  TablaMensual produccion{};
  if (!HayFotovoltaica(g, 0)) return produccion;
  int h = 1;
  for (int m = 1; m <= kMeses; ++m)
    for (; h <= kUltimaHoraMes[static_cast<std::size_t>(m)]; ++h)
      SumarMes(produccion, m, PotenciaFotovoltaica(g, clima, 0, h));
  SumarAno(produccion);
  return produccion;
}

bool HayFotovoltaica(const DatosGenerales& g, float extraPico) {
  return extraPico != 0.0F ||
         std::any_of(g.PotPico_FV.begin(), g.PotPico_FV.end(), [](float p) { return p != 0.0F; });
}

}  // namespace novex
