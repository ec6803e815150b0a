#include "systems/Despacho.h"

#include <algorithm>

#include "systems/AtributosSistema.h"
#include "systems/Calefaccion.h"
#include "systems/Refrigeracion.h"
#include "systems/RepartoSuperficies.h"

namespace novex {
namespace {

constexpr float kDespreciable = 0.001F;  // kW

float Cociente(float a, float b) {
  return b == 0.0F ? 0.0F : a / b;
}

}  // namespace

struct Despacho::Bloque {
  GeneradorPreparado generador;
  std::unique_ptr<HoraACS> acs;
  std::size_t indice;
  std::unique_ptr<AtributosSistema> atributos;
};

struct Despacho::Sistema {
  SistemaResidencial* datos;
  TipoSistema tipo;
  bool deAire;
  std::vector<std::unique_ptr<Bloque>> bloques;
};

// Frío de la hora.
struct Despacho::Totales {
  float frioTotal = 0, frioSensible = 0;
};

Despacho::Despacho(Edificio& edificio, const AjustesUso& ajustes, calculo& caso, Mensajes& mensajes)
    : edificio_(edificio),
      ajustes_(ajustes),
      caso_(caso),
      superficie_(edificio.GetRecinto(0).Suelo_habitable_m2) {
  caso_.sumasBloques.clear();
  for (std::size_t n = 0; n < edificio.NumeroSistemas(); ++n) {
    SistemaResidencial& datos = edificio.GetSistema(n);
    if (datos.instalaciones.empty()) continue;
    auto sistema = std::make_unique<Sistema>();
    sistema->datos = &datos;
    sistema->tipo = TipoSistemaDe(datos.Tipo_sistema);
    sistema->deAire = EsSistemaDeAire(datos);
    for (const Instalaciones& i : datos.instalaciones) {
      haySistemasDeAire_ = haySistemasDeAire_ || EmisorDeVentilacion(i.Emisor) ||
                           ClaseGeneradorDe(i.Seleccion) == ClaseGenerador::Rooftop;
      auto bloque = std::make_unique<Bloque>(
          Bloque{GeneradorPreparado(edificio, datos, i, static_cast<int>(n) + 1), nullptr,
                 caso_.sumasBloques.size(), nullptr});
      if (DaACS(sistema->tipo))
        bloque->acs =
            std::make_unique<HoraACS>(edificio, bloque->generador, estadoSolar_, caso, mensajes);
      bloque->atributos = std::make_unique<AtributosSistema>(
          bloque->generador, bloque->acs ? &bloque->acs->Arreglo() : nullptr, caso);
      caso_.sumasBloques.emplace_back();
      sistema->bloques.push_back(std::move(bloque));
    }
    sistemas_.push_back(std::move(sistema));
  }
  conEtapaDeAire_ = haySistemasDeAire_ && ajustes.aire != SistemaAire::UTA;
  RepartirSuperficies();
}

Despacho::~Despacho() = default;

void Despacho::GrabarACS(AnosACS& anos) {
  anos.assign(caso_.sumasBloques.size(), {});
  for (const auto& s : sistemas_)
    for (const auto& b : s->bloques)
      if (b->acs) {
        anos[b->indice].reserve(kHorasAno);
        b->acs->Grabar(anos[b->indice]);
      }
}

void Despacho::RepetirACS(const AnosACS& anos) {
  for (const auto& s : sistemas_)
    for (const auto& b : s->bloques)
      if (b->acs) b->acs->Repetir(anos.at(b->indice));
}

void Despacho::RepartirSuperficies() {
  const auto servidas = SuperficiesServidas(edificio_);
  for (std::size_t n = 0; n < servidas.size(); ++n) {
    SistemaResidencial& d = edificio_.GetSistema(n);
    if (d.instalaciones.empty()) continue;
    d.Sup_Calefaccion = servidas[n][kCalefaccion];
    d.Sup_Refrigeracion = servidas[n][kRefrigeracion];
    for (std::size_t k = 0; k < kServiciosDemanda; ++k) servida_[k] += servidas[n][k];
  }
  for (float& area : servida_) area = std::min(area, superficie_);
}

void Despacho::Contabilizar(Bloque& b, const HoraSistemas& hora, const RespuestaHora& r) {
  TablasMensuales& meses = caso_.meses;
  const GeneradorPreparado& g = b.generador;
  SumasBloque& suma = caso_.sumasBloques[b.indice];
  const auto anotar = [&](const std::optional<VectorEnergetico>& v, std::size_t s, float consumo) {
    if (v && Indice(*v) < kVectoresConsumo)
      SumarMes(meses.consumo[Indice(*v)][s], hora.mes, consumo);
  };
  for (std::size_t s = 0; s < kServiciosDemanda; ++s) {
    anotar(g.vector1, s, r.consumo1[s]);
    anotar(g.vector2, s, r.consumo2[s]);
    SumarMes(meses.ambiente[s], hora.mes, r.ambiente[s]);
    SumarMes(meses.bombas[s], hora.mes, r.bombas[s] * 0.001F);
    SumarMes(meses.ventiladores[s], hora.mes, r.ventiladores[s] * 0.001F);
    suma.dado[0][s] += r.dado[s] - r.dado2[s];
    suma.dado[1][s] += r.dado2[s];
    suma.consumo[0][s] += r.consumo1[s];
    suma.consumo[1][s] += r.consumo2[s];
    suma.ambiente[s] += r.ambiente[s];
    suma.auxiliares[s] += (r.bombas[s] + r.ventiladores[s]) * 0.001F;
  }
  SumarMes(meses.calorBiomasa, hora.mes, r.calorBiomasa);
  b.atributos->Anotar(hora.h, r);
  AnotarSeries(hora.h, r);
}

void Despacho::AnotarSeries(int h, const RespuestaHora& r) {
  SeriesSistemas& s = caso_.sistemas;
  for (const Servicio k : {kACS, kCalefaccion}) {
    s.calorEntregado[h] += r.dado[k];
    s.calorConsumido[h] += r.consumo1[k] + r.consumo2[k];
    s.calorEntregado2[h] += r.dado2[k];
    s.calorConsumido2[h] += r.consumo2[k];
  }
  s.frioTotal[h] += r.frioTotal;
  s.frioSensible[h] += r.dado[kRefrigeracion];
  s.frioConsumido[h] += r.consumo1[kRefrigeracion];
  for (std::size_t k = 0; k < kServiciosDemanda; ++k) {
    s.bombas[k][h] += r.bombas[k];
    s.ventiladores[k][h] += r.ventiladores[k];
  }
}

void Despacho::ContabilizarACS(const HoraSistemas& hora, const ResultadoACS& acs) {
  TablasMensuales& meses = caso_.meses;
  SumarMes(meses.perdidaDeposito, hora.mes, acs.perdidaDeposito);
  SumarMes(meses.perdidaRetorno, hora.mes, acs.perdidaRetorno);
  if (!acs.contabilizaSolar) return;
  for (std::size_t k = 0; k < kNodos; ++k)
    caso_.sistemas.depositoSolar[k][hora.h] = static_cast<float>(estadoSolar_.actual[k]);
  SumarMes(meses.solarCaptada, hora.mes, acs.captada);
  SumarMes(meses.perdidaDepositoSolar, hora.mes, acs.perdidaSolar);
  SumarMes(meses.perdidaTuberiaCaptador, hora.mes, acs.perdidaTuberia);
  SumarMes(meses.irradiacionCaptadores, hora.mes, acs.irradiacion);
}

RespuestaHora Despacho::CorrerSistema(Sistema& s, const HoraSistemas& hora,
                                      const CargasHora& cargas, Totales& totales) {
  RespuestaHora ultima;
  ultima.noDado = cargas;
  for (const auto& bloque : s.bloques) {
    RespuestaHora r;
    r.noDado = cargas;
    if (bloque->acs) {
      const ResultadoACS acs =
          HoraAguaCaliente(bloque->generador, *bloque->acs, hora, caso_, cargas[kCalefaccion], r);
      ContabilizarACS(hora, acs);
      bloque->atributos->AnotarACS(hora.h, acs, bloque->acs->Temperaturas());
    } else if (DaCalefaccion(s.tipo) && cargas[kCalefaccion] > 0.0F) {
      HoraCalor(bloque->generador, hora, 0.0F, cargas[kCalefaccion], r);
    }
    if (DaRefrigeracion(s.tipo)) HoraFrio(bloque->generador, hora, cargas[kRefrigeracion], r);
    totales.frioTotal += r.frioTotal;
    totales.frioSensible += r.dado[kRefrigeracion];
    Contabilizar(*bloque, hora, r);
    ultima = r;
  }
  return ultima;
}

CargasHora Despacho::EtapaDeAire(const HoraSistemas& hora, float ventilacion, Totales& totales) {
  CargasHora sinDar{};
  for (const auto& s : sistemas_) {
    if (!s->deAire) continue;
    CargasHora cargas{};
    if (ventilacion > 0.0F)
      cargas[kCalefaccion] =
          Cociente(ventilacion * s->datos->Sup_Calefaccion, servida_[kCalefaccion]);
    if (ventilacion < 0.0F)
      cargas[kRefrigeracion] =
          Cociente(-ventilacion * s->datos->Sup_Refrigeracion, servida_[kRefrigeracion]);
    const RespuestaHora r = CorrerSistema(*s, hora, cargas, totales);
    sinDar[kCalefaccion] += r.noDado[kCalefaccion];
    sinDar[kRefrigeracion] += r.noDado[kRefrigeracion];
  }
  return sinDar;
}

ResultadoDespacho Despacho::Hora(const HoraSistemas& hora) {
  const SeriesZona& zona = caso_.zona;
  const float A = superficie_;
  const float calefaccion = zona.cargaCalefaccion[hora.h];
  const float refrigeracion = zona.cargaRefrigeracion[hora.h];
  const float ventilacion = zona.DVENT[hora.h];
  const float demandaACS = zona.DACS[hora.h];
  const CargasHora& S = servida_;
  Totales totales;

  CargasHora deAire{};
  if (conEtapaDeAire_) deAire = EtapaDeAire(hora, ventilacion, totales);
  CargasHora porDar{};
  porDar[kACS] = demandaACS * S[kACS] / A;
  const bool aireCalor = conEtapaDeAire_ && ventilacion > 0.0F;
  const bool aireFrio = conEtapaDeAire_ && !aireCalor;
  porDar[kCalefaccion] =
      aireCalor ? deAire[kCalefaccion] - (calefaccion + ventilacion) * S[kCalefaccion] / A
                : -calefaccion * S[kCalefaccion] / A;
  porDar[kRefrigeracion] =
      aireFrio ? deAire[kRefrigeracion] + (refrigeracion + ventilacion) * S[kRefrigeracion] / A
               : refrigeracion * S[kRefrigeracion] / A;

  // A cada sistema le toca su parte y lo que los anteriores no han alcanzado.
  CargasHora resto = porDar;
  CargasHora pendiente = deAire;
  const bool uta = ajustes_.aire == SistemaAire::UTA;
  const float ventilacionZona = !uta && haySistemasDeAire_ ? ventilacion : 0.0F;
  for (const auto& s : sistemas_) {
    if (s->deAire && !uta) continue;
    CargasHora parte{};
    parte[kACS] = Cociente(s->datos->Sup_ACS * porDar[kACS], S[kACS]);
    if (calefaccion != 0.0F && s->datos->Sup_Calefaccion != 0.0F)
      parte[kCalefaccion] =
          -(calefaccion + ventilacionZona) * s->datos->Sup_Calefaccion / S[kCalefaccion] +
          pendiente[kCalefaccion];
    if (refrigeracion != 0.0F && s->datos->Sup_Refrigeracion != 0.0F)
      parte[kRefrigeracion] =
          (refrigeracion + ventilacionZona) * s->datos->Sup_Refrigeracion / S[kRefrigeracion] +
          pendiente[kRefrigeracion];
    CargasHora cargas{};
    for (std::size_t k = 0; k < kServiciosDemanda; ++k)
      cargas[k] = std::clamp(parte[k], 0.0F, std::max(0.0F, resto[k]));
    const RespuestaHora r = CorrerSistema(*s, hora, cargas, totales);
    for (std::size_t k = 0; k < kServiciosDemanda; ++k) {
      resto[k] += r.noDado[k] - cargas[k];
      if (cargas[k] > 0.0F) pendiente[k] = std::max(0.0F, parte[k] - cargas[k]) + r.noDado[k];
    }
  }

  ResultadoDespacho salida;
  const float cargaFueraCal =
      haySistemasDeAire_ && calefaccion != 0.0F ? -(calefaccion + ventilacion) : -calefaccion;
  const float cargaFueraRef =
      haySistemasDeAire_ && refrigeracion != 0.0F ? refrigeracion + ventilacion : refrigeracion;
  const CargasHora fuera = {(A - S[kACS]) * demandaACS / A,
                            (A - S[kCalefaccion]) * cargaFueraCal / A,
                            (A - S[kRefrigeracion]) * cargaFueraRef / A};
  for (std::size_t k = 0; k < kServiciosDemanda; ++k) {
    salida.sinCubrir[k] = resto[k] < kDespreciable ? 0.0F : resto[k];
    salida.defecto[k] = salida.sinCubrir[k] + fuera[k];
    SumarMes(caso_.meses.servida[k], hora.mes, porDar[k] - salida.sinCubrir[k]);
    caso_.resultados.noServido[k] += fuera[k];
    caso_.resultados.noCubierto[k] += salida.sinCubrir[k];
  }
  salida.frioLatente = (totales.frioTotal - totales.frioSensible) * 1000.0F;
  return salida;
}

}  // namespace novex
