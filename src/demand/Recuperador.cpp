#include "demand/Recuperador.h"

#include <cmath>

namespace novex {
namespace {

constexpr float kNTUMaximo = 1000.0F;

// ε = 1 - exp(NTU^0,22 (exp(-NTU^0,78) - 1)): flujo cruzado con la misma masa a los dos lados.
float EficienciaCruzada(float NTU, float m) {
  return 1.0F - std::exp(std::pow(NTU, 0.22F) / m * (std::exp(-m * std::pow(NTU, 0.78F)) - 1.0F));
}

// Entre 63 y 67 % el punto fijo no se asienta y la raíz se busca partiendo.
float NTUPorBiseccion(float eficiencia) {
  float bajo = 0, alto = kNTUMaximo;
  while (alto - bajo > 1e-4F) {
    const float centro = 0.5F * (bajo + alto);
    if (centro <= bajo || centro >= alto) break;
    if (EficienciaCruzada(centro, 1.0F) < eficiencia)
      bajo = centro;
    else
      alto = centro;
  }
  return 0.5F * (bajo + alto);
}

float NTUCruzado(float eficiencia) {
  constexpr int kVueltas = 50;
  constexpr float kCambio = 0.05F;
  float NTU = eficiencia / (1.0F - eficiencia);
  for (int i = 0; i < kVueltas; ++i) {
    const float siguiente = std::pow(
        std::log(1.0F - eficiencia) / (std::exp(-std::pow(NTU, 0.78F)) - 1.0F), 1.0F / 0.22F);
    const bool asentado = std::fabs(siguiente - NTU) <= kCambio;
    NTU = siguiente;
    if (asentado) return NTU;
  }
  return NTUPorBiseccion(eficiencia);
}

}  // namespace

float EficienciaParcial(float eficiencia, float razonMasas, float caudal, bool residencial) {
  if (eficiencia == 0.0F || caudal == 0.0F) return 0.0F;
  if (residencial) return eficiencia;
  const float e = eficiencia * 0.01F;
  const bool contracorriente = e < 0.63F;
  float NTU = kNTUMaximo;
  if (contracorriente)
    NTU = e / (1.0F - e);
  else if (e <= 0.99F)
    NTU = NTUCruzado(e);
  NTU /= caudal * 0.01F;
  const float m = razonMasas;
  float corregida = 0;
  if (m == 0.0F) return 0.0F;
  if (!contracorriente) {
    corregida = EficienciaCruzada(NTU, m);
  } else if (m == 1.0F) {
    corregida = NTU / (1.0F + NTU);
  } else {
    const float x = std::exp(-NTU * (1.0F - m));
    corregida = (1.0F - x) / (1.0F - m * x);
  }
  return corregida * m * 100.0F;
}

Recuperador::Recuperador(const DatosGenerales& g, const AjustesUso& ajustes, float forzada,
                         float caudalNominal)
    : ajustes_(ajustes),
      forzada_(forzada),
      caudalNominal_(caudalNominal),
      sensible_(g.Eficiencia_recuperador),
      humedad_(g.Eficiencia_recuperador_Ental),
      razonMasas_(g.ERelaMasa),
      Teminrec_(g.Teminrec),
      Temaxrec_(g.Temaxrec),
      TminImp_(g.TminImp) {}

float Recuperador::Parcial(float eficiencia, float razonMasas, float caudal) {
  for (const Resuelta& r : ultima_)
    if (r.eficiencia == eficiencia && r.razon == razonMasas && r.caudal == caudal) return r.valor;
  ultima_[1] = ultima_[0];
  ultima_[0] = {eficiencia, razonMasas, caudal,
                EficienciaParcial(eficiencia, razonMasas, caudal, ajustes_.residencial)};
  return ultima_[0].valor;
}

EficienciaHora Recuperador::Hora(float NRR, float Te, float QV, bool conEnfriamiento) {
  const bool enBanda = Teminrec_ < Te && Te < Temaxrec_;
  if (ajustes_.residencial) {
    if (NRR == kVentanasAbiertas && ajustes_.ventanasAbiertas) return {};
    if (forzada_ != 0.0F) return {Parcial(forzada_, 1, 100), 0};
    if (ajustes_.vivienda == VentilacionVivienda::Hibrida) return {};
    if (ajustes_.recuperador == TipoRecuperador::SensibleSin)
      return {Parcial(sensible_, 1, 100), 0};
    if (ajustes_.recuperador == TipoRecuperador::SensibleCon && !enBanda)
      return {Parcial(sensible_, 1, 100), 0};
    return {};
  }
  if (forzada_ != 0.0F) return {Parcial(forzada_, 1, 100), 0};
  if (ajustes_.aire == SistemaAire::Toma) return {};

  const float caudal = caudalNominal_ == 0.0F ? 0.0F : QV * 100.0F / caudalNominal_;
  const bool conBypass = ajustes_.recuperador == TipoRecuperador::SensibleCon ||
                         ajustes_.recuperador == TipoRecuperador::EntalpicoCon;
  const bool puenteado =
      conEnfriamiento ? ajustes_.aire == SistemaAire::UTA || Te > TminImp_ : enBanda;
  const bool hay =
      ajustes_.recuperador != TipoRecuperador::No && ajustes_.recuperador != TipoRecuperador::Otro;
  if (!hay || (conBypass && puenteado)) return {};
  EficienciaHora e{Parcial(sensible_, razonMasas_, caudal), 0};
  if (ajustes_.recuperador == TipoRecuperador::EntalpicoSin ||
      ajustes_.recuperador == TipoRecuperador::EntalpicoCon)
    e.humedad = Parcial(humedad_, razonMasas_, caudal);
  return e;
}

}  // namespace novex
