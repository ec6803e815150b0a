#include "outputs/EnergiaRenovable.h"

namespace novex {

OrigenesServicio OrigenesDe(const ResultadosCaso& resultados, Servicio servicio) {
  using enum VectorEnergetico;
  const auto& vectores = resultados.servicio[servicio].finalPorVector;
  const auto ano = [&](VectorEnergetico v) { return vectores[Indice(v)][0]; };
  OrigenesServicio o;
  for (const TablaMensual& vector : vectores) o.total += vector[0];
  o.biomasa = ano(Biomasa_Pellet) + ano(Biomasa_Otros);
  o.ambiente = ano(MedioAmbiente);
  o.solar = ano(Energiasolartermica);
  o.fotovoltaica = ano(Energiasolarfotovoltaica);
  return o;
}

float Porciento(float parte, float total) {
  return total > 0.0F ? 100.0F * parte / total : 0.0F;
}

float EmisionesNoElectricas(const ResultadosCaso& resultados) {
  float emisiones = 0;
  for (const IndicadoresServicio& s : resultados.servicio) emisiones += s.porUnidad[kEmisiones][0];
  return emisiones - resultados.emisionesElectricidad;
}

}  // namespace novex
