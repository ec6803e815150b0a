#include "systems/SistemaACS.h"

#include "systems/Calefaccion.h"

namespace novex {
namespace {

constexpr float kInteriorRetorno = 20.0F;  // °C

// Retorno de un sistema sin depósito: su pérdida la hace el generador.
float RetornoSinDeposito(const GeneradorPreparado& g, const calculo& caso, int h, ResultadoACS& acs,
                         RespuestaHora& r) {
  const Instalaciones& i = *g.datos;
  const bool hayConsumo = caso.carga.CCAC[h] > 0.0F;
  const bool gira = i.NHretorno == 0 || (i.NHretorno == 1 && hayConsumo);
  if (i.Retorno != "Con retorno" || !gira) return 0.0F;
  const float perdida = i.Long_tuberias * i.Pot_perdida_m_tub * 0.001F *
                        (i.TimpACS - kInteriorRetorno) * g.porEquipos;
  acs.perdidaRetorno += perdida;
  r.AnotarBomba(kRET, kACS, g.RET.Potencia(1.0F));
  return perdida;
}

// El depósito ya ha calculado el consumo de su generador.
void DelDeposito(const GeneradorPreparado& g, const ResultadoACS& acs, bool caldera2,
                 RespuestaHora& r) {
  const bool bomba = !caldera2 && (g.clase == ClaseGenerador::BombaCalor ||
                                   g.clase == ClaseGenerador::BombaCalorCaldera);
  r.dado[kACS] += acs.calor;
  if (caldera2) {
    r.consumo2[kACS] += acs.consumo;
    r.dado2[kACS] += acs.calor;
  } else {
    r.consumo1[kACS] += acs.consumo;
  }
  if (bomba) {
    r.ambiente[kACS] += acs.calor - acs.consumo;
    r.dado[kACS] += acs.resistencia;
    r.consumo1[kACS] += acs.resistencia;
    r.resistencia += acs.resistencia;
  } else if (caldera2 ? g.biomasa2 : g.biomasa1) {
    r.calorBiomasa += acs.calor;
  }
  r.noDado[kACS] = acs.noDado;
}

// El calor que el depósito o el grifo piden lo hace el generador en la hora; lo que no alcanza se
// suma a lo que le falta al depósito.
void PorElGenerador(const GeneradorPreparado& g, const HoraSistemas& hora, float carga,
                    float calefaccion, float faltaDeposito, RespuestaHora& r) {
  r.noDado[kACS] = carga;
  HoraCalor(g, hora, carga, calefaccion, r);
  r.noDado[kACS] += faltaDeposito;
}

void Dedicada(const GeneradorPreparado& g, float carga, RespuestaHora& r) {
  r.noDado[kACS] = carga;
  const float scop = g.datos->SCOP;
  if (scop <= 0.0F) return;
  r.dado[kACS] += carga;
  r.consumo1[kACS] += carga / scop;
  r.ambiente[kACS] += (1.0F - 1.0F / scop) * carga;
  r.noDado[kACS] = 0;
}

// ¿Calcula el depósito el consumo del generador minuto a minuto?
bool ConsumoEnDeposito(const GeneradorPreparado& g, LadoAgua lado) {
  return g.tipo == TipoSistema::ACS &&
         (lado == LadoAgua::IntercambDeposito || lado == LadoAgua::InteracumuGenerador);
}

void SoloACS(const GeneradorPreparado& g, HoraACS& deposito, const HoraSistemas& hora,
             const calculo& caso, ResultadoACS& acs, RespuestaHora& r) {
  const LadoAgua lado = deposito.Arreglo().lado;
  switch (g.clase) {
    case ClaseGenerador::Calentador: {
      float carga = acs.calor;
      if (!deposito.Arreglo().deposito) carga += RetornoSinDeposito(g, caso, hora.h, acs, r);
      PorElGenerador(g, hora, carga, 0.0F, acs.noDado, r);
      return;
    }
    case ClaseGenerador::BombaDedicada: {
      const float retorno = RetornoSinDeposito(g, caso, hora.h, acs, r);
      Dedicada(g, acs.calor + retorno, r);
      return;
    }
    case ClaseGenerador::Termo:
    case ClaseGenerador::Interacumulador:
      r.dado[kACS] += acs.calor;
      r.consumo1[kACS] += acs.calor;
      r.noDado[kACS] = acs.noDado;
      return;
    case ClaseGenerador::Caldera:
    case ClaseGenerador::BombaCalor:
    case ClaseGenerador::BombaCalorCaldera:
      if (ConsumoEnDeposito(g, lado))
        DelDeposito(g, acs, deposito.FuncionaCaldera(hora.h), r);
      else if (lado == LadoAgua::Deposito || lado == LadoAgua::InteracumuSolar ||
               lado == LadoAgua::Directo || lado == LadoAgua::Intercambiador)
        PorElGenerador(g, hora, acs.calor, 0.0F, acs.noDado, r);
      return;
    default:
      return;
  }
}

}  // namespace

ResultadoACS HoraAguaCaliente(const GeneradorPreparado& g, HoraACS& deposito,
                              const HoraSistemas& hora, const calculo& caso, float calefaccion,
                              RespuestaHora& r) {
  ResultadoACS acs = deposito.Hora(hora.h);
  constexpr std::array kCircuitosDeposito = {kGEN1, kGEN2, kDEP, kINT, kRET};
  for (std::size_t i = 0; i < kCircuitosDeposito.size(); ++i)
    r.AnotarBomba(kCircuitosDeposito[i], kACS, acs.bombaCircuito[i]);
  r.bombas[kACS] += acs.bombaCaptadores + acs.bombaDepositoSolar + acs.bombaRecirculacion;
  r.bombaYaContada = acs.bombaCircuito[0];
  if (g.tipo == TipoSistema::ACS) {
    SoloACS(g, deposito, hora, caso, acs, r);
    return acs;
  }
  float carga = acs.calor;
  if (g.clase == ClaseGenerador::CalderaMixta) carga += RetornoSinDeposito(g, caso, hora.h, acs, r);
  PorElGenerador(g, hora, carga, calefaccion, acs.noDado, r);
  return acs;
}

}  // namespace novex
