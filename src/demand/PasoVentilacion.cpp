#include "demand/PasoVentilacion.h"

#include <algorithm>

#include "base/Psicrometria.h"
#include "demand/Clima.h"

namespace novex {
namespace {

constexpr float kRenovacionMinima = 0.01F;     // solo para las fugas
constexpr float kTemperaturaVentanas = 14.0F;  // por debajo no se abren de noche, °C
constexpr float kCp = 1.018F / 3.6F;           // kJ/kgK de aire, a W por m3/h y kg/m3
constexpr float kCargaMinimaUTA = 0.3F;
constexpr float kImpulsionLocal = 25.0F;  // °C

float Cociente(float a, float b) {
  return b == 0.0F ? 0.0F : a / b;
}

}  // namespace

FugasZona PrepararFugas(const Edificio& edificio, const Forzados& forzados) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  FugasZona zona;
  zona.volumen = edificio.GetRecinto(0).Volumen_total_m3;
  if (g.Tipon50 != "Teorico") {
    // El ensayo de estanqueidad vale por los opacos y las ventanas.
    zona.coeficienteOpacos = 1.5698587F * g.Valorn50;
    return zona;
  }
  zona.coeficienteOpacos = g.PerfilUso == 0 ? 5.25F : 6.58F;
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) {
    const Huecos& h = edificio.GetHuecos(i);
    const float unidad = h.Ancho_m * h.Alto_m * (1.0F - forzados.ReduccionHuecos);
    const float C100 = forzados.PermeabilidadForzada != 0.0F ? forzados.PermeabilidadForzada
                                                             : h.Permeabilidad_Ventanas;
    for (const ColumnaHuecos& columna : h.columnas)
      zona.ventanas +=
          static_cast<float>(columna.recintos.size()) * unidad * columna.FactorAreaColumna * C100;
    if (h.Existe_Caja_persiana == 0)
      zona.cajasPersiana += h.Vinf_Caja_de_persiana_m3_h * (h.Ancho_m + 0.3F) * 2.0F *
                            static_cast<float>(h.NumeroTotal());
  }
  return zona;
}

PasoVentilacion::PasoVentilacion(const Edificio& edificio, const AjustesUso& ajustes, calculo& caso)
    : caso_(caso),
      ajustes_(ajustes),
      presion_(PresionHoraria(static_cast<float>(edificio.GetLocalizacion().asnm))),
      volumen_(edificio.GetRecinto(0).Volumen_total_m3),
      nrenov_(edificio.GetVentilacion().nrenovventilacion),
      alturaLibre_(caso.resultados.alturaLibre),
      sensibleocupantes_(edificio.GetDatosGenerales().Sensibleocupantes),
      caudalUTA_(edificio.GetDatosGenerales().CaudalUTA),
      TminImp_(edificio.GetDatosGenerales().TminImp),
      fugas_(PrepararFugas(edificio, caso.resultados.forzados)),
      recuperador_(edificio.GetDatosGenerales(), ajustes,
                   caso.resultados.forzados.EficienciaRecuperadorForzada, volumen_ * nrenov_),
      ventilador_(edificio.GetDatosGenerales(), edificio.GetVentilacion().NumeroViviendas(),
                  ajustes, caso.resultados.forzados.EficienciaRecuperadorForzada,
                  volumen_ * nrenov_) {
  // Aire interior a media humedad: 25 °C en verano y 20 °C en invierno.
  const auto densidad = [this](float t) {
    return (presion_ - 0.5F * psicrometria::PresionSaturacion(t)) / (287.0F * (t + 273.15F));
  };
  densidadVerano_ = densidad(25.0F);
  densidadInvierno_ = densidad(20.0F);
}

PasoVentilacion::Caudal PasoVentilacion::CaudalVivienda(int h) {
  const bool abiertas = caso_.carga.NRR[h] == kVentanasAbiertas && ajustes_.ventanasAbiertas &&
                        caso_.clima.TSE[h] >= kTemperaturaVentanas;
  const float r = abiertas ? caso_.carga.NRR[h] * 0.01F : nrenov_;
  if (!abiertas) caso_.mayorRenovacion = std::max(caso_.mayorRenovacion, r);
  caso_.zona.QV[h] = caso_.zona.CUTA[h] = volumen_ * r;
  return {r, volumen_ * r};
}

float PasoVentilacion::RenovacionesPrograma(int h) const {
  if (ajustes_.aire != SistemaAire::Toma && ajustes_.PorOcupacion())
    return Cociente(nrenov_ * caso_.carga.QOCUPShT[h], sensibleocupantes_);
  const bool llana = ajustes_.aire == SistemaAire::Toma;
  const bool conCoeficientes = ajustes_.modulacion != ModulacionAire::Otra;
  return llana || conCoeficientes ? nrenov_ * caso_.carga.NRR[h] * 0.01F : 0.0F;
}

bool PasoVentilacion::HayEnfriamiento(int h, bool conEnfriamiento) const {
  if (!conEnfriamiento || !ajustes_.ConEnfriamiento()) return false;
  return ajustes_.PorOcupacion() ? caso_.carga.QOCUPShT[h] != 0.0F : caso_.carga.NRR[h] != 0.0F;
}

PasoVentilacion::Caudal PasoVentilacion::CaudalTerciario(int h, bool conEnfriamiento,
                                                         float cargaPrevia, float densidad) {
  SeriesZona& zona = caso_.zona;
  const float Te = caso_.clima.TSE[h];
  float r = RenovacionesPrograma(h);
  zona.HFC[h] = 0;
  zona.CUTA[h] = 0;
  float V = volumen_ * r;
  if (ajustes_.aire == SistemaAire::Primario) {
    if (HayEnfriamiento(h, conEnfriamiento) && Te >= TminImp_) {
      r = nrenov_;
      V = volumen_ * r;
      zona.HFC[h] = 1;
    }
    zona.CUTA[h] = V;
  } else if (ajustes_.aire == SistemaAire::UTA) {
    if (r > 0.0F) {
      const float Q0 = densidad * caudalUTA_ * 10.0F * kCp;
      const float carga = std::clamp(Cociente(cargaPrevia, Q0), kCargaMinimaUTA, 1.0F);
      zona.CUTA[h] =
          ajustes_.control == ControlVentilador::Compuertas ? caudalUTA_ : caudalUTA_ * carga;
    }
    if (HayEnfriamiento(h, conEnfriamiento)) {
      zona.HFC[h] = 1;
      V = Te >= TminImp_
              ? zona.CUTA[h]
              : zona.CUTA[h] * Cociente(kImpulsionLocal - TminImp_, kImpulsionLocal - Te);
    }
    zona.CUTA[h] = std::max(zona.CUTA[h], V);
  }
  zona.QV[h] = V;
  caso_.mayorRenovacion = std::max(caso_.mayorRenovacion, r);
  return {r, V};
}

AireHora PasoVentilacion::Hora(int h, int mes, bool conEnfriamiento, float cargaPrevia) {
  const float Te = caso_.clima.TSE[h];
  const float w = caso_.clima.WE[h];
  const float Pv = presion_ * w / (w + 0.62198F);
  AireHora aire;
  aire.densidad = (presion_ - Pv) / ((Te + 273.15F) * 287.0F);
  const Caudal caudal = ajustes_.residencial
                            ? CaudalVivienda(h)
                            : CaudalTerciario(h, conEnfriamiento, cargaPrevia, aire.densidad);
  const float infiltracion =
      fugas_.Infiltracion(caudal.renovaciones == 0.0F ? kRenovacionMinima : caudal.renovaciones);

  const EficienciaHora e = RecuperadorHora(h, conEnfriamiento);
  aire.eficiencia = e.sensible;
  aire.eficienciaHumedad = e.humedad;
  const VentiladorAire::Hora fan = ventilador_.Potencia(caso_.carga.NRR[h], Te, caso_.zona.QV[h],
                                                        caso_.zona.CUTA[h], conEnfriamiento);
  caso_.zona.CV[h] = fan.potencia;
  caso_.zona.HBP[h] = fan.puenteado ? 1.0F : 0.0F;

  const float densidadInterior =
      ajustes_.verano[static_cast<std::size_t>(mes)] ? densidadVerano_ : densidadInvierno_;
  aire.Gv = aire.densidad * caudal.ventilacion * kCp;
  aire.Gi = aire.densidad * infiltracion * kCp;
  aire.Ca = volumen_ * densidadInterior * alturaLibre_ * kCp;
  return aire;
}

EficienciaHora PasoVentilacion::RecuperadorHora(int h, bool conEnfriamiento) {
  return recuperador_.Hora(caso_.carga.NRR[h], caso_.clima.TSE[h], caso_.zona.QV[h],
                           conEnfriamiento);
}

}  // namespace novex
