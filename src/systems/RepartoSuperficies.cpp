#include "systems/RepartoSuperficies.h"

#include <algorithm>

#include "systems/ClasesSistema.h"

namespace novex {
namespace {

using C = ClaseGenerador;

float Cociente(float a, float b) {
  return b == 0.0F ? 0.0F : a / b;
}

float PotenciaCalor(const Instalaciones& i, C clase) {
  const auto n = static_cast<float>(i.NEquipos);
  if (EsAireAire(clase) || clase == C::BombaCalor) return n * i.QcalorBC1;
  if (clase == C::Caldera || clase == C::CalderaMixta) return n * i.QcalorCaldera1;
  if (clase == C::BombaCalorCaldera) return n * 0.5F * (i.QcalorCaldera1 + i.QcalorBC1);
  return clase == C::Radiadores ? n * i.RadiadorElectrico : 0.0F;
}

// Potencias con que un sistema entra en el reparto, kW.
CargasHora PotenciasDe(const SistemaResidencial& sistema) {
  const Instalaciones& i = sistema.instalaciones.front();
  const TipoSistema tipo = TipoSistemaDe(sistema.Tipo_sistema);
  CargasHora kW{};
  if (DaCalefaccion(tipo)) kW[kCalefaccion] = PotenciaCalor(i, ClaseGeneradorDe(i.Seleccion));
  if (DaRefrigeracion(tipo)) kW[kRefrigeracion] = static_cast<float>(i.NEquipos) * i.QFrioTot1;
  return kW;
}

bool Estacional(const SistemaResidencial& sistema) {
  return EsEstacional(ClaseGeneradorDe(sistema.instalaciones.front().Seleccion));
}

}  // namespace

bool EsSistemaDeAire(const SistemaResidencial& sistema) {
  if (sistema.instalaciones.empty()) return false;
  const Instalaciones& primera = sistema.instalaciones.front();
  return EmisorDeVentilacion(primera.Emisor) || ClaseGeneradorDe(primera.Seleccion) == C::Rooftop;
}

std::vector<CargasHora> SuperficiesServidas(const Edificio& edificio) {
  const float util = edificio.GetRecinto(0).Suelo_habitable_m2;
  std::array<CargasHora, 2> total{};  // de zona y de aire
  for (std::size_t n = 0; n < edificio.NumeroSistemas(); ++n) {
    const SistemaResidencial& s = edificio.GetSistema(n);
    if (s.instalaciones.empty() || Estacional(s)) continue;
    const CargasHora kW = PotenciasDe(s);
    for (const Servicio k : {kCalefaccion, kRefrigeracion}) total[EsSistemaDeAire(s)][k] += kW[k];
  }
  std::vector<CargasHora> servidas(edificio.NumeroSistemas());
  for (std::size_t n = 0; n < servidas.size(); ++n) {
    const SistemaResidencial& s = edificio.GetSistema(n);
    if (s.instalaciones.empty()) continue;
    servidas[n][kACS] = s.Sup_ACS;
    if (Estacional(s)) {
      const TipoSistema tipo = TipoSistemaDe(s.Tipo_sistema);
      servidas[n][kCalefaccion] = DaCalefaccion(tipo) ? util : 0.0F;
      servidas[n][kRefrigeracion] = DaRefrigeracion(tipo) ? util : 0.0F;
      continue;
    }
    const CargasHora kW = PotenciasDe(s);
    for (const Servicio k : {kCalefaccion, kRefrigeracion})
      servidas[n][k] = util * Cociente(kW[k], total[EsSistemaDeAire(s)][k]);
  }
  return servidas;
}

RepartoServicios RepartirServicios(const Edificio& edificio, SistemaAire aire) {
  RepartoServicios reparto;
  const float util = edificio.GetRecinto(0).Suelo_habitable_m2;
  auto servidas = SuperficiesServidas(edificio);
  // Una superficie de agua caliente en un sistema que no la da no le sirve a nadie.
  for (std::size_t n = 0; n < servidas.size(); ++n)
    if (!DaACS(TipoSistemaDe(edificio.GetSistema(n).Tipo_sistema))) servidas[n][kACS] = 0;
  reparto.partes.resize(servidas.size());
  reparto.sinSistema.fill(1.0F);
  if (!(util > 0.0F)) return reparto;
  // Los de zona y los de aire toman cargas distintas, salvo con el aire todo en una unidad.
  std::array<CargasHora, 2> queda{};
  for (CargasHora& grupo : queda) grupo.fill(1.0F);
  for (std::size_t n = 0; n < servidas.size(); ++n) {
    const bool deAire = aire != SistemaAire::UTA && EsSistemaDeAire(edificio.GetSistema(n));
    for (std::size_t k = 0; k < kServiciosDemanda; ++k) {
      const float parte = std::clamp(servidas[n][k] / util, 0.0F, queda[deAire][k]);
      reparto.partes[n][k] = parte;
      queda[deAire][k] -= parte;
      reparto.sinSistema[k] = std::max(0.0F, reparto.sinSistema[k] - servidas[n][k] / util);
    }
  }
  return reparto;
}

}  // namespace novex
