#include "outputs/LectoresVariables.h"

#include <algorithm>
#include <cmath>

#include "base/Psicrometria.h"
#include "demand/Clima.h"
#include "demand/Solar.h"
#include "rating/EquipoDefecto.h"

namespace novex::lectores {
namespace {

constexpr float kMil = 0.001F;

// `valor(h)` de las 8760 horas.
template <class Valor>
std::vector<float> PorHoras(Valor valor) {
  std::vector<float> valores(kHorasAno);
  for (int h = 1; h <= kHorasAno; ++h) valores[static_cast<std::size_t>(h - 1)] = valor(h);
  return valores;
}

float PresionZona(const ContextoVariables& c) {
  return PresionHoraria(static_cast<float>(c.edificio.GetLocalizacion().asnm));
}

// Suma la irradiación de un plano, en kWh por m2 y por `area`.
void SumarPlano(const SeriesClima& clima, const Plano& plano, float area,
                std::vector<float>& suma) {
  for (int h = 1; h <= kHorasAno; ++h) {
    const float directa = clima.IDIRECTA[h];
    const float difusa = clima.IDIFUSA[h];
    if (directa == 0.0F && difusa == 0.0F) continue;
    const SolHora sol(clima.AZIMUTS[h], clima.CENITS[h]);
    suma[static_cast<std::size_t>(h - 1)] +=
        plano.IrradianciaTotal(sol, directa, difusa) * area * kMil;
  }
}

// A una vivienda de un bloque le toca su parte de una instalación común.
float ParteVivienda(const DatosGenerales& g) {
  return g.PerfilUso == 2 && g.NVBloqueF > 0.0F ? 1.0F / g.NVBloqueF : 1.0F;
}

// Bulbo húmedo por la secante, con el salto del aire seco al húmedo de la hora anterior como
// primera prueba: la bisección general tardaría en las 8760 horas más de lo que un gráfico puede
// esperar.
float BulboHumedoCercano(float t, float w, float presion, float& salto) {
  constexpr float kPrecision = 0.001F;
  constexpr int kVueltas = 8;
  using namespace psicrometria;
  const auto resto = [=](float x) {
    return EstimacionBulboHumedo(t, w, HumedadSaturacion(x, presion)) - x;
  };
  float x0 = t - salto;
  float f0 = resto(x0);
  float x1 = x0 + 0.25F;
  for (int i = 0; i < kVueltas; ++i) {
    const float f1 = resto(x1);
    if (f1 == f0) break;
    const float x2 = x1 - f1 * (x1 - x0) / (f1 - f0);
    x0 = x1;
    f0 = f1;
    x1 = x2;
    if (std::fabs(x1 - x0) < kPrecision) {
      if (x1 > t) break;  // aire sobresaturado: lo resuelve la función general
      salto = t - x1;
      return x1;
    }
  }
  return BulboHumedo(t, w, presion);
}

}  // namespace

std::vector<float> Escalada(const SerieHoraria& serie, float factor) {
  std::vector<float> valores(serie.begin() + 1, serie.end());
  if (factor != 1.0F)
    for (float& v : valores) v *= factor;
  return valores;
}

std::vector<float> DemandaTotal(const ContextoVariables& c) {
  return PorHoras([&](int h) { return c.caso.zona.DCAL[h] + c.caso.zona.DREF[h]; });
}

std::vector<float> BulboHumedoLocal(const ContextoVariables& c) {
  const float presion = PresionZona(c);
  float salto = 5.0F;
  return PorHoras([&](int h) {
    return BulboHumedoCercano(c.caso.zona.TSL[h], c.caso.zona.WL[h], presion, salto);
  });
}

std::vector<float> HumedadRelativaLocal(const ContextoVariables& c) {
  const float presion = PresionZona(c);
  return PorHoras([&](int h) {
    return psicrometria::HumedadRelativa(c.caso.zona.TSL[h], c.caso.zona.WL[h], presion);
  });
}

std::vector<float> AguaRed(const ContextoVariables& c) {
  const auto& meses = c.edificio.GetDatosClimaticosSitio().aguaRed;
  return PorHoras([&](int h) { return meses[static_cast<std::size_t>(HoraDelMes(h))]; });
}

std::vector<float> CaudalVentilacion(const ContextoVariables& c) {
  const float volumen = c.edificio.GetRecinto(0).Volumen_total_m3;
  const float renovaciones = c.edificio.GetVentilacion().nrenovventilacion;
  return PorHoras([&](int h) {
    const float horario = c.caso.carga.NRR[h];
    // Con las ventanas abiertas el horario no es parte de la renovación de proyecto: la sustituye.
    const bool abiertas = c.ajustes.residencial && horario == kVentanasAbiertas;
    return volumen * horario * 0.01F * (abiertas ? 1.0F : renovaciones);
  });
}

std::vector<float> CaudalAgua60(const ContextoVariables& c) {
  return Escalada(c.caso.carga.CCAC, 0.01F * c.Generales().ConsumoAgua_litros_dia);
}

std::vector<float> RadiacionVertical(const ContextoVariables& c, float azimut) {
  constexpr float kVertical = 90.0F;
  std::vector<float> suma(kHorasAno);
  SumarPlano(c.caso.clima, Plano(kVertical, azimut), 1.0F, suma);
  return suma;
}

std::vector<float> RadiacionCaptadores(const ContextoVariables& c) {
  const DatosGenerales& g = c.Generales();
  std::vector<float> suma(kHorasAno);
  const float area = static_cast<float>(g.N_colec_term) * g.Sup_colec_term * ParteVivienda(g);
  SumarPlano(c.caso.clima, Plano(g.Incli_colec_term, g.Azimut_colec_term), area, suma);
  return suma;
}

std::vector<float> RadiacionPaneles(const ContextoVariables& c) {
  const DatosGenerales& g = c.Generales();
  std::vector<float> suma(kHorasAno);
  for (std::size_t i = 0; i < g.Super_FV.size(); ++i)
    if (g.Super_FV[i] > 0.0F)
      SumarPlano(c.caso.clima, Plano(g.Incli_FV[i], g.Az_FV[i]), g.Super_FV[i] * ParteVivienda(g),
                 suma);
  return suma;
}

std::vector<float> ConsumoDefecto(const ContextoVariables& c, Servicio servicio) {
  const float rendimiento = c.caso.resultados.defecto.rendimiento[servicio];
  // Sin equipos por defecto la serie de agua caliente se guarda, pero nadie la consume.
  const bool consume = ModoDefectoDe(c.Generales().Equipos_Defecto) != ModoDefecto::No;
  return Escalada(c.caso.zona.defecto[servicio],
                  consume && rendimiento > 0.0F ? kMil / rendimiento : 0.0F);
}

}  // namespace novex::lectores
