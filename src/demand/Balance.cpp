#include "demand/Balance.h"

#include <algorithm>

namespace novex {
namespace {

constexpr float kReferencia = 22.5F;  // °C, base de las temperaturas de respuesta
constexpr float kTemperaturaInicial = 20.0F;

Valores& NuevoElemento(calculo& caso, const char* clave, const char* familia) {
  Valores& v = caso.valores[clave];
  v.recinto = "0";
  v.familia = familia;
  return v;
}

}  // namespace

// Los términos del balance de una hora.
struct Balance::Hora {
  float Te, Tanterior;
  float UAhuecos;    // W/K
  float pasado;      // W: opacos, su base y la historia de la zona
  float soles;       // W: lo guardado en los huecos
  float internas;    // W
  float ventilador;  // W
  bool verano;
  AireHora aire;
  float AireTotal() const { return (100.0F - aire.eficiencia) * aire.Gv * 0.01F + aire.Gi; }
};

Balance::Balance(const Edificio& edificio, const AjustesUso& ajustes,
                 const RespuestaZona& respuesta, float Htb, ElementosOpacos& opacos,
                 ElementosHuecos& huecos, calculo& caso)
    : ajustes_(ajustes),
      opacos_(opacos),
      huecos_(huecos),
      caso_(caso),
      K_(respuesta.K),
      Htb_(Htb),
      superficie_(edificio.GetRecinto(0).Suelo_habitable_m2),
      historia_(kPrevias + kHorasAno + 1, kTemperaturaInicial),
      cargaInterna_(NuevoElemento(caso, "0-CargaInterna", "CargaInterna")),
      puentes_(NuevoElemento(caso, "0-PuentesT", "PuentesT")),
      ventilacion_(NuevoElemento(caso, "0-Ventilacion", "Ventilacion")) {
  for (std::size_t k = 0; k < kTerminosZona; ++k) respuesta_[k] = respuesta.Total(k);
}

void Balance::Ganancias(int h, int mes) {
  opacosHora_[h] = opacos_.Ganancias(h, mes, Anterior(h));
  huecos_.Ganancias(h, mes);
}

Balance::Hora Balance::Preparar(int h, int mes, const AireHora& aire) const {
  Hora hora{};
  hora.verano = ajustes_.verano[static_cast<std::size_t>(mes)];
  hora.Te = caso_.clima.TSE[h];
  hora.Tanterior = Anterior(h);
  hora.UAhuecos = huecos_.UA(hora.verano, HoraDelDia(h));
  hora.aire = aire;
  float historia = 0;
  const float* T = historia_.data() + static_cast<std::size_t>(h) + kPrevias;
  for (std::size_t k = 1; k < kTerminosZona; ++k) historia += respuesta_[k] * *(T - k);
  hora.pasado = K_ * kReferencia + opacosHora_[h] + historia;
  hora.soles = huecos_.SumaGuardada(h);
  const SeriesCarga& carga = caso_.carga;
  hora.internas = superficie_ * (carga.QOCUPSh[h] + carga.QILUh[h] + carga.QEQh[h]);
  hora.ventilador = caso_.zona.CV[h];
  return hora;
}

float Balance::TemperaturaLibre(const Hora& hora, float calorEquipo) const {
  const float aire = hora.AireTotal();
  const float N = hora.pasado + hora.soles + (hora.UAhuecos + Htb_ + aire) * hora.Te +
                  hora.internas + calorEquipo + 0.5F * hora.ventilador +
                  hora.aire.Ca * hora.Tanterior;
  const float D = respuesta_[0] - hora.UAhuecos - Htb_ - aire - hora.aire.Ca;
  return N / -D;
}

void Balance::Imponer(int h, float T) {
  historia_[static_cast<std::size_t>(h) + kPrevias] = T;
  caso_.zona.TSL[h] = T;
}

// Temperatura del aire de ventilación tras el recuperador.
void Balance::AireImpulsion(int h, const AireHora& aire) {
  const bool ventanas =
      ajustes_.residencial && caso_.carga.NRR[h] == kVentanasAbiertas && ajustes_.ventanasAbiertas;
  const float Te = caso_.clima.TSE[h];
  const float T = caso_.zona.TSL[h];
  caso_.zona.TSR[h] =
      ventanas || caso_.zona.QV[h] == 0.0F ? T : Te - (Te - T) * aire.eficiencia * 0.01F;
}

CargasPorSuperficie Balance::Demanda(int h, int mes, const AireHora& aire) {
  const Hora hora = Preparar(h, mes, aire);
  const float libre = TemperaturaLibre(hora, 0.0F);
  const float tc = caso_.carga.TCR[h];
  const float tr = caso_.carga.TRR[h];
  const bool sinFrio =
      ajustes_.perfil <= 3 && !ajustes_.simulacionLibre && ajustes_.sinRefrigeracion;
  const bool calefaccion = tc > 0.0F && libre < tc && ajustes_.Calienta(mes);
  const bool refrigeracion =
      !calefaccion && tr > 0.0F && libre > tr && ajustes_.Refrigera(mes) && !sinFrio;
  const float T = calefaccion ? tc : refrigeracion ? tr : libre;
  Imponer(h, T);

  const float salto = hora.Te - T;
  const float v = salto * (100.0F - aire.eficiencia) * aire.Gv * 0.01F;
  SeriesZona& zona = caso_.zona;
  zona.cargaCalefaccion[h] = zona.cargaRefrigeracion[h] = zona.DVENT[h] = 0;
  if (calefaccion || refrigeracion) {
    const float acumulado = h == 1 ? 0.0F : (hora.Tanterior - T) * aire.Ca;
    const float L = hora.pasado + respuesta_[0] * T + hora.soles +
                    salto * (hora.UAhuecos + Htb_ + aire.Gi) + hora.internas + v + acumulado;
    if (calefaccion) {
      zona.cargaCalefaccion[h] = L;
      zona.DVENT[h] = v > 0.0F ? 0.0F : std::min(-v, -L);
    } else {
      zona.cargaRefrigeracion[h] = L;
      zona.DVENT[h] = v < 0.0F ? 0.0F : -std::min(v, L);
    }
  }
  zona.QIR[h] = salto * (-aire.Gv * aire.eficiencia * 0.01F);
  AireImpulsion(h, aire);

  cargaInterna_.valor[h] = hora.internas;
  puentes_.valor[h] = Htb_ * salto;
  ventilacion_.valor[h] = salto * hora.AireTotal();
  huecos_.AnadirConduccion(h, hora.verano, salto);
  return {zona.cargaCalefaccion[h] / superficie_, zona.cargaRefrigeracion[h] / superficie_};
}

void Balance::Flotar(int h, int mes, const AireHora& aire, float falta) {
  if (falta == 0.0F) return;
  const SeriesZona& zona = caso_.zona;
  const float carga = falta < 0.0F ? zona.cargaCalefaccion[h] : zona.cargaRefrigeracion[h];
  const float entregado = -(carga * 1000.0F - falta);
  Imponer(h, TemperaturaLibre(Preparar(h, mes, aire), entregado));
  AireImpulsion(h, aire);
}

}  // namespace novex
