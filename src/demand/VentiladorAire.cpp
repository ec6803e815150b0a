#include "demand/VentiladorAire.h"

#include <algorithm>

namespace novex {
namespace {

constexpr float kSegundosHora = 3600.0F;

float Cociente(float a, float b) {
  return b == 0.0F ? 0.0F : a / b;
}

}  // namespace

float FactorCargaParcial(float x, ControlVentilador control) {
  if (x == 0.0F) return 0.0F;
  const float p = x < 30.0F ? 0.3F : x * 0.01F;
  switch (control) {
    case ControlVentilador::Variador:
      return ((3.5417F * p - 5.125F) * p + 3.0333F) * p - 0.45F;
    case ControlVentilador::Compuertas:
      return ((0.8333F * p - 2.5F) * p + 2.5667F) * p + 0.1F;
    case ControlVentilador::Otro:
      break;
  }
  return 0.0F;
}

float PotenciaRecuperadorForzado(float eficiencia, float caudal, float viviendas) {
  const float especifica = ((eficiencia * 0.01F - 0.73F) * 3000.0F + 1100.0F) -
                           (caudal / kSegundosHora * 300.0F / viviendas) * 0.5F;
  return 2.0F * especifica * (caudal / viviendas) / kSegundosHora;
}

VentiladorAire::VentiladorAire(const DatosGenerales& g, int viviendas, const AjustesUso& ajustes,
                               float forzada, float caudalNominal)
    : ajustes_(ajustes),
      // En un bloque hay una unidad por vivienda; una vivienda suelta tiene una.
      viviendas_(g.PerfilUso == 1 ? static_cast<float>(viviendas) : 1.0F),
      forzada_(forzada),
      caudalNominal_(caudalNominal),
      caudalUTA_(g.CaudalUTA),
      ventilacion_(g.Ventilacion),
      WRecuperador_(g.WRecuperador),
      WRecuperadorr_(g.WRecuperadorr),
      Teminrec_(g.Teminrec),
      Temaxrec_(g.Temaxrec),
      TminImp_(g.TminImp),
      perdida_(g.PerdPresionToma),
      rendimiento_(g.RendVentToma) {}

VentiladorAire::Hora VentiladorAire::EnVivienda(float NRR, float Te, float QV) const {
  if (ajustes_.ventanasAbiertas && NRR == kVentanasAbiertas) return {};
  Hora hora;
  if (ajustes_.vivienda == VentilacionVivienda::Mecanica) {
    switch (ajustes_.recuperador) {
      case TipoRecuperador::No:
      case TipoRecuperador::SensibleSin:
        hora.potencia = WRecuperador_ * viviendas_;
        break;
      case TipoRecuperador::SensibleCon:
        hora.puenteado = Teminrec_ < Te && Te < Temaxrec_;
        hora.potencia = (hora.puenteado ? WRecuperadorr_ : WRecuperador_) * viviendas_;
        break;
      case TipoRecuperador::Otro:
      case TipoRecuperador::EntalpicoSin:
      case TipoRecuperador::EntalpicoCon:
        break;
    }
  }
  if (forzada_ > 0.0F && viviendas_ > 0.0F)
    hora.potencia = PotenciaRecuperadorForzado(forzada_, QV, viviendas_);
  return hora;
}

VentiladorAire::Hora VentiladorAire::EnTerciario(float Te, float QV, float CUTA,
                                                 bool conEnfriamiento) const {
  const float deVentilacion = 100.0F * Cociente(QV, caudalNominal_);
  if (ajustes_.aire == SistemaAire::Toma)
    return {
        Cociente(deVentilacion * 0.01F * (ventilacion_ / kSegundosHora) * perdida_, rendimiento_),
        false};
  const bool uta = ajustes_.aire == SistemaAire::UTA;
  const float x = uta ? 100.0F * Cociente(CUTA, caudalUTA_) : deVentilacion;
  const float f = FactorCargaParcial(x, ajustes_.control);
  Hora hora;
  const bool conBypass = ajustes_.recuperador == TipoRecuperador::SensibleCon ||
                         ajustes_.recuperador == TipoRecuperador::EntalpicoCon;
  if (conBypass)
    hora.puenteado = conEnfriamiento ? uta || Te > TminImp_ : Teminrec_ < Te && Te < Temaxrec_;
  if (ajustes_.recuperador != TipoRecuperador::Otro)
    hora.potencia = (hora.puenteado ? WRecuperadorr_ : WRecuperador_) * f;
  if (forzada_ != 0.0F)
    hora.potencia = uta ? CUTA * 2300.0F / kSegundosHora : QV * 1450.0F / kSegundosHora * f;
  return hora;
}

VentiladorAire::Hora VentiladorAire::Potencia(float NRR, float Te, float QV, float CUTA,
                                              bool conEnfriamiento) const {
  return ajustes_.residencial ? EnVivienda(NRR, Te, QV)
                              : EnTerciario(Te, QV, CUTA, conEnfriamiento);
}

}  // namespace novex
