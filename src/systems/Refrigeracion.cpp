#include "systems/Refrigeracion.h"

#include <algorithm>

#include "base/Psicrometria.h"
#include "systems/Curvas.h"

namespace novex {
namespace {

constexpr float kSensibleFijo = 0.7F;
constexpr float kPresionNominal = 101325.0F;
constexpr psicrometria::AireEntrada kNominal = {27.0F, 19.0F};

// Capacidad total de una batería de referencia en las condiciones de la hora.
constexpr std::array<float, 6> kBateria = {0.880784506F,  0.014247648F,  0.000554364F,
                                           -0.007558056F, 0.0000329832F, -0.000191711F};

float Cociente(float a, float b) {
  return b == 0.0F ? 0.0F : a / b;
}

void Anotar(RespuestaHora& r, float sensible, float total, float consumo) {
  r.dado[kRefrigeracion] += sensible;
  r.frioTotal += total;
  r.consumo1[kRefrigeracion] += consumo;
  r.noDado[kRefrigeracion] -= sensible;
}

// Razón entre la potencia sensible de la hora y la nominal.
float RazonSensible(const GeneradorPreparado& g, const HoraSistemas& hora) {
  const Instalaciones& i = *g.datos;
  const bool variable = g.clase == ClaseGenerador::CaudalVariable;
  if (g.curvasGenericas && !variable)
    return curvas::SieteTerminos(i.curvas.eR, hora.humedoInterior, hora.consigna, hora.TSE);
  const float total = i.QFrioTot1;
  const float sensible = variable ? kSensibleFijo * total : i.QFrioSen1;
  const float totalHora = total * curvas::Bicuadratica(kBateria, hora.humedoInterior, hora.TSE);
  if (total <= 0.0F || sensible <= 0.0F) return 0.0F;
  return psicrometria::MetodoBateria(
      total, sensible, kNominal, {hora.consigna, hora.humedoInterior}, totalHora, kPresionNominal);
}

void HoraAireAire(const GeneradorPreparado& g, const HoraSistemas& hora, float q,
                  RespuestaHora& r) {
  const CurvasEquipo& c = g.datos->curvas;
  const bool conLinea = g.clase != ClaseGenerador::Ventana;
  const float nominal =
      g.clase == ClaseGenerador::CaudalVariable ? kSensibleFijo * g.frioTotal : g.frioSensible;
  float C = nominal * RazonSensible(g, hora);
  if (conLinea) C -= g.perdidaLinea * nominal;
  if (C <= 0.0F) return;
  const float p = std::min(q / C, 1.0F);
  const float consumo = g.consumoFrio * curvas::Bicuadratica(c.bR, hora.humedoInterior, hora.TSE) *
                        curvas::CargaParcial(c.cR, p);
  float total = curvas::Bicuadratica(c.aR, hora.humedoInterior, hora.TSE) * g.frioTotal * p;
  if (conLinea) total *= 1.0F - g.perdidaLinea;
  Anotar(r, std::min(q, C), total, consumo);
}

// Parte sensible del frío que da una batería de agua con el aire de la zona.
float SensibleDeAgua(const GeneradorPreparado& g, const HoraSistemas& hora) {
  if (hora.h == 1) return kSensibleFijo;
  const float hr = psicrometria::HumedadRelativa(hora.Tanterior, hora.Wanterior, hora.presion);
  return psicrometria::RazonSensibleBateria(hora.Tanterior, hr, hora.presion,
                                            g.datos->TimpFrio + g.datos->GEN1.DT * 0.5F);
}

// Capacidad sensible de una enfriadora en la hora, kW.
float CapacidadEnfriadora(const GeneradorPreparado& g, const HoraSistemas& hora, float s) {
  float C = curvas::Bicuadratica(g.datos->curvas.aR, g.datos->TimpFrio, hora.TSE) * g.frioTotal * s;
  if (g.partida) C -= g.perdidaLinea * g.frioTotal;
  return C;
}

void HoraEnfriadora(const GeneradorPreparado& g, const HoraSistemas& hora, float q, float s,
                    float C, RespuestaHora& r) {
  if (C <= 0.0F) return;
  const Instalaciones& i = *g.datos;
  const float p = std::min(q / C, 1.0F);
  const float eer = Cociente(i.QFrioTot1, i.WeFrio1) *
                    Cociente(curvas::Bicuadratica(i.curvas.aR, i.TimpFrio, hora.TSE),
                             curvas::Bicuadratica(i.curvas.bR, i.TimpFrio, hora.TSE)) *
                    Cociente(p, curvas::CargaParcial(i.curvas.cR, p));
  const float total = p * C / s;
  Anotar(r, std::min(q, C), total, Cociente(total, eer));
}

void HoraEstacional(const GeneradorPreparado& g, float s, float q, RespuestaHora& r) {
  const float e = g.datos->RendFrioEst * s;
  if (e <= 0.0F) return;
  Anotar(r, q, q / s, q / e);
}

// Bombas y ventiladores de la refrigeración por agua.
void Auxiliares(const GeneradorPreparado& g, float x, RespuestaHora& r) {
  r.AnotarBomba(kGEN1, kRefrigeracion, g.GEN1.Potencia(1.0F));
  if (g.conColector) r.AnotarBomba(kSBZ, kRefrigeracion, g.SBZ.Potencia(x));
  r.ventiladores[kRefrigeracion] += g.ventilador;
}

}  // namespace

void HoraFrio(const GeneradorPreparado& g, const HoraSistemas& hora, float carga,
              RespuestaHora& r) {
  if (carga <= 0.0F) return;
  switch (g.clase) {
    case ClaseGenerador::BombaCalor:
    case ClaseGenerador::Enfriadora: {
      const float s = SensibleDeAgua(g, hora);
      const float C = CapacidadEnfriadora(g, hora, s);
      HoraEnfriadora(g, hora, carga, s, C, r);
      Auxiliares(g, C > 0.0F ? carga / C : 1.0F, r);
      break;
    }
    case ClaseGenerador::EstacionalAgua:
      HoraEstacional(g, SensibleDeAgua(g, hora), carga, r);
      Auxiliares(g, 1.0F, r);
      break;
    case ClaseGenerador::EstacionalRefrigerante:
    case ClaseGenerador::EstacionalConocido:
      HoraEstacional(g, kSensibleFijo, carga, r);
      break;
    default:
      if (!EsAireAire(g.clase)) break;
      HoraAireAire(g, hora, carga, r);
      r.ventiladores[kRefrigeracion] += g.ventiladorInterior;
      break;
  }
}

}  // namespace novex
