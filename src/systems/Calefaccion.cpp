#include "systems/Calefaccion.h"

#include <algorithm>

#include "systems/Curvas.h"

namespace novex {
namespace {

// Reparto de una capacidad entre agua caliente, que va primero, y calefacción.
struct Reparto {
  float acs, calefaccion;
};

Reparto Repartir(float capacidad, float acs, float calefaccion) {
  if (acs + calefaccion <= capacidad) return {acs, calefaccion};
  if (acs > capacidad) return {capacidad, 0.0F};
  return {acs, capacidad - acs};
}

bool ConACS(const GeneradorPreparado& g) {
  return g.tipo == TipoSistema::ACSCalefaccion || g.tipo == TipoSistema::ACS ||
         g.tipo == TipoSistema::Todo;
}

// Temperatura a la que la bomba de calor hace el agua.
float TemperaturaAgua(const GeneradorPreparado& g, float acs, float calefaccion) {
  const Instalaciones& i = *g.datos;
  if (g.tipo == TipoSistema::ACS) {
    const LadoAgua lado = LadoAguaDe(i.Distribucion);
    const bool directo = lado == LadoAgua::Directo || lado == LadoAgua::Intercambiador;
    return directo ? i.TimpACS : i.TaltaD + 5.0F;
  }
  if (!ConACS(g) || acs == 0.0F) return i.TimpCalor;
  if (calefaccion == 0.0F) return i.TaltaD + 5.0F;
  return std::max(i.TimpCalor, i.TaltaD + 5.0F);
}

// Suma a la respuesta lo que una bomba de calor da y consume.
void AnotarBomba(RespuestaHora& r, Servicio s, float dado, float consumo) {
  r.dado[s] += dado;
  r.consumo1[s] += consumo;
  r.ambiente[s] += dado - consumo;
  r.noDado[s] -= dado;
}

void SoloCalefaccion(const GeneradorPreparado& g, float C, float conCal, float q,
                     RespuestaHora& r) {
  const float dado = std::min(q, C);
  const float p = q / C;
  const float consumo =
      conCal * (dado / C) * g.consumoBomba * curvas::CargaParcial(g.datos->curvas.cQ, p);
  AnotarBomba(r, kCalefaccion, dado, consumo);
}

// Con más demanda de agua caliente que capacidad, la resistencia de apoyo pone lo que puede.
void ConApoyo(const GeneradorPreparado& g, float C, float conPlena, float acs, RespuestaHora& r) {
  const float falta = acs - C;
  const float apoyo = std::min(falta, g.apoyo);
  AnotarBomba(r, kACS, C, conPlena);
  r.dado[kACS] += apoyo;
  r.consumo1[kACS] += apoyo;
  r.noDado[kACS] -= apoyo;
  r.resistencia += apoyo;
}

void AguaYCalefaccion(const GeneradorPreparado& g, float C, float conCal, float acs,
                      float calefaccion, RespuestaHora& r) {
  const float total = acs + calefaccion;
  if (total <= 0.0F) return;
  const float p = total / C;
  const auto& cQ = g.datos->curvas.cQ;
  if (p <= 1.0F) {
    AnotarBomba(r, kACS, acs, conCal * (acs / total) * g.consumoBomba * p);
    AnotarBomba(r, kCalefaccion, calefaccion,
                conCal * (calefaccion / total) * g.consumoBomba * curvas::CargaParcial(cQ, p));
    return;
  }
  const float plena = conCal * g.consumoBomba * curvas::CargaParcial(cQ, 1.0F);
  if (acs > C) {
    ConApoyo(g, C, plena, acs, r);
    return;
  }
  const Reparto d = Repartir(C, acs, calefaccion);
  AnotarBomba(r, kACS, d.acs, plena * d.acs / C);
  AnotarBomba(r, kCalefaccion, d.calefaccion, plena * d.calefaccion / C);
}

void HoraRadiadores(const GeneradorPreparado& g, float q, RespuestaHora& r) {
  const float dado = std::min(q, g.radiador);
  r.dado[kCalefaccion] += dado;
  r.consumo1[kCalefaccion] += dado;
  r.noDado[kCalefaccion] -= dado;
}

void HoraEstacional(const GeneradorPreparado& g, float rendimiento, Servicio s, float carga,
                    RespuestaHora& r) {
  if (rendimiento <= 0.0F) return;
  const float consumo = carga / rendimiento;
  r.dado[s] += carga;
  r.consumo1[s] += consumo;
  r.noDado[s] -= carga;
  if (rendimiento > 1.0F) r.ambiente[s] += carga - consumo;
  static_cast<void>(g);
}

// Equipo de aire a aire en calefacción.
void HoraAireAire(const GeneradorPreparado& g, const HoraSistemas& hora, float q,
                  RespuestaHora& r) {
  const CurvasEquipo& c = g.datos->curvas;
  float C = g.bombaCalor * curvas::CapacidadCalor(c, hora.consigna, hora.THE);
  if (g.clase != ClaseGenerador::Ventana) C -= g.perdidaLinea * C;
  if (C <= 0.0F) return;
  const float p = q / C;
  AnotarBomba(r, kCalefaccion, std::min(q, C),
              g.consumoBomba * curvas::ConsumoCalor(c, hora.consigna, hora.THE) *
                  curvas::CargaParcial(c.cQ, p));
}

// La bomba de calor sobre la temperatura de cambio, con la caldera detrás de lo que no alcance; y
// por debajo, la caldera sola.
void HoraBombaYCaldera(const GeneradorPreparado& g, const HoraSistemas& hora, float acs,
                       float calefaccion, RespuestaHora& r) {
  const bool conBomba = g.datos->EControlTe < hora.TSE;
  float agua = 0;
  if (conBomba) agua = HoraBombaCalor(g, hora, acs, calefaccion, r);
  const float faltaACS = conBomba ? r.noDado[kACS] : acs;
  const float faltaCal = conBomba ? r.noDado[kCalefaccion] : calefaccion;
  if (faltaACS + faltaCal > 0.0F) HoraCaldera(g, 2, agua, faltaACS, faltaCal, r);
}

bool EsDeAgua(ClaseGenerador c) {
  return c == ClaseGenerador::Caldera || c == ClaseGenerador::CalderaMixta ||
         c == ClaseGenerador::BombaCalor || c == ClaseGenerador::BombaCalorCaldera ||
         c == ClaseGenerador::EstacionalAgua;
}

// Bombas y ventiladores de la calefacción por agua. El agua caliente de un depósito cuenta las
// suyas.
void Auxiliares(const GeneradorPreparado& g, const HoraSistemas& hora, float calefaccion,
                RespuestaHora& r) {
  if (!EsDeAgua(g.clase) || calefaccion <= 0.0F) return;
  const bool conjunto = g.clase == ClaseGenerador::BombaCalorCaldera;
  const bool soloCaldera = conjunto && !(g.datos->EControlTe < hora.TSE);
  if (!soloCaldera) {
    // La bomba del generador que ya ha contado el depósito en la hora no se cuenta otra vez.
    r.AnotarBomba(kGEN1, kCalefaccion, std::max(0.0F, g.GEN1.Potencia(1.0F) - r.bombaYaContada));
  }
  r.ventiladores[kCalefaccion] += g.ventilador;
  const float dado = r.dado[kCalefaccion];
  if (ConACS(g)) {
    if (dado > 0.0F) r.AnotarBomba(kSBZ, kCalefaccion, g.SBZ.Potencia(dado / calefaccion));
    return;
  }
  if (!g.conColector) return;
  float capacidad = 0;
  switch (g.clase) {
    case ClaseGenerador::Caldera:
    case ClaseGenerador::CalderaMixta:
      capacidad = g.caldera1;
      break;
    case ClaseGenerador::BombaCalor:
      capacidad = 0;
      break;
    case ClaseGenerador::BombaCalorCaldera:
      capacidad = soloCaldera ? g.caldera2 : 0;
      break;
    default:
      break;
  }
  float x = 1.0F;
  if (capacidad > 0.0F) {
    x = calefaccion / capacidad;
  } else if (g.clase == ClaseGenerador::BombaCalor ||
             (g.clase == ClaseGenerador::BombaCalorCaldera && !soloCaldera)) {
    float C = g.bombaCalor * curvas::CapacidadCalor(g.datos->curvas, g.datos->TimpCalor, hora.THE);
    if (g.partida) C -= g.perdidaLinea * g.bombaCalor;
    x = C > 0.0F ? calefaccion / C : 1.0F;
  }
  r.AnotarBomba(kSBZ, kCalefaccion, g.SBZ.Potencia(x));
}

}  // namespace

void HoraCaldera(const GeneradorPreparado& g, int generador, float agua, float acs,
                 float calefaccion, RespuestaHora& r) {
  const bool segundo = generador == 2;
  const float C = segundo ? g.caldera2 : g.caldera1;
  if (acs + calefaccion <= 0.0F || C <= 0.0F) return;
  const float p = (acs + calefaccion) / C;
  const float e = (segundo ? g.datos->RendCalor2 : g.datos->RendCalor1) *
                  curvas::RendimientoCaldera(g.datos->curvas, p, agua);
  if (e <= 0.0F) return;
  const Reparto d = Repartir(C, acs, calefaccion);
  CargasHora& consumo = segundo ? r.consumo2 : r.consumo1;
  consumo[kACS] += d.acs / e;
  consumo[kCalefaccion] += d.calefaccion / e;
  r.dado[kACS] += d.acs;
  r.dado[kCalefaccion] += d.calefaccion;
  if (segundo) {
    r.dado2[kACS] += d.acs;
    r.dado2[kCalefaccion] += d.calefaccion;
    // La bomba de la segunda caldera va a medias cuando hace los dos servicios.
    const float W = g.GEN2.Potencia(1.0F);
    float parteACS = g.tipo == TipoSistema::ACS ? 1.0F : 0.0F;
    if (g.tipo == TipoSistema::ACSCalefaccion || g.tipo == TipoSistema::Todo) parteACS = 0.5F;
    r.AnotarBomba(kGEN2, kACS, W * parteACS);
    r.AnotarBomba(kGEN2, kCalefaccion, W * (1.0F - parteACS));
  }
  r.noDado[kACS] -= d.acs;
  r.noDado[kCalefaccion] -= d.calefaccion;
  if (segundo ? g.biomasa2 : g.biomasa1) r.calorBiomasa += d.acs;
}

float HoraBombaCalor(const GeneradorPreparado& g, const HoraSistemas& hora, float acs,
                     float calefaccion, RespuestaHora& r) {
  const float t = TemperaturaAgua(g, acs, calefaccion);
  const CurvasEquipo& c = g.datos->curvas;
  float C = g.bombaCalor * curvas::CapacidadCalor(c, t, hora.THE);
  if (g.partida) C -= g.perdidaLinea * (ConACS(g) ? C : g.bombaCalor);
  if (C <= 0.0F) return t;
  const float conCal = curvas::ConsumoCalor(c, t, hora.THE);
  if (ConACS(g))
    AguaYCalefaccion(g, C, conCal, acs, calefaccion, r);
  else if (calefaccion > 0.0F)
    SoloCalefaccion(g, C, conCal, calefaccion, r);
  return t;
}

void HoraCalor(const GeneradorPreparado& g, const HoraSistemas& hora, float acs, float calefaccion,
               RespuestaHora& r) {
  switch (g.clase) {
    case ClaseGenerador::Calentador:
    case ClaseGenerador::Caldera:
    case ClaseGenerador::CalderaMixta:
      HoraCaldera(g, 1, 0.0F, acs, calefaccion, r);
      break;
    case ClaseGenerador::BombaCalor:
      HoraBombaCalor(g, hora, acs, calefaccion, r);
      break;
    case ClaseGenerador::BombaCalorCaldera:
      HoraBombaYCaldera(g, hora, acs, calefaccion, r);
      break;
    case ClaseGenerador::Radiadores:
      HoraRadiadores(g, calefaccion, r);
      break;
    case ClaseGenerador::EstacionalAgua:
    case ClaseGenerador::EstacionalRefrigerante:
    case ClaseGenerador::Estacional:
      HoraEstacional(g, g.datos->RendCalorEst, kACS, acs, r);
      HoraEstacional(g, g.datos->RendCalorEst, kCalefaccion, calefaccion, r);
      break;
    case ClaseGenerador::EstacionalConocido:
      HoraEstacional(g, g.datos->RendACSEst, kACS, acs, r);
      HoraEstacional(g, g.datos->RendCalorEst, kCalefaccion, calefaccion, r);
      break;
    default:
      if (EsAireAire(g.clase)) HoraAireAire(g, hora, calefaccion, r);
      break;
  }
  Auxiliares(g, hora, calefaccion, r);
}

}  // namespace novex
