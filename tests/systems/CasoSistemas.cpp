#include "systems/CasoSistemas.h"

#include <algorithm>
#include <cmath>

namespace novex::pruebas {
namespace {

constexpr double kPi = 3.14159265358979;

float Positivo(double x) {
  return static_cast<float>(std::max(0.0, x));
}

BombaCircuito Bomba(float caudal) {
  BombaCircuito b;
  b.Caudal = caudal;
  b.DT = 5;
  b.P = 5;
  b.Rend = 0.5F;
  return b;
}

}  // namespace

CasoSistemas::CasoSistemas() {
  edificio.GetRecinto(0).Suelo_habitable_m2 = 100;
  Localizacion l;
  l.mesmin = 6;
  l.mesmax = 9;
  edificio.SetLocalizacion(l);
  DatosClimaticosSitio sitio;
  sitio.aguaRed.fill(10);
  edificio.SetDatosClimaticosSitio(sitio);
  caso->TmediaMes.fill(15);
  Generales([](DatosGenerales& g) {
    g.PerfilUso = 0;
    g.ConsumoAgua_litros_dia = 200;
  });
  for (int h = 1; h <= kHorasAno; ++h) {
    const int d = HoraDelDia(h);
    const double ano = std::cos(2.0 * kPi * (DiaDelAno(h) - 20) / 365.0);
    const double dia = std::cos(2.0 * kPi * (d - 15) / 24.0);
    const double T = 15.0 - 11.0 * ano + 6.0 * dia;
    caso->clima.TSE[h] = static_cast<float>(T);
    caso->clima.THE[h] = static_cast<float>(T - 3.0);
    const double sol = d >= 9 && d <= 16 ? std::cos(kPi * (d - 12.5) / 9.0) : 0.0;
    caso->clima.CENITS[h] = static_cast<float>(90.0 - 50.0 * sol);
    caso->clima.AZIMUTS[h] = static_cast<float>(15.0 * (d - 12.5));
    caso->clima.IDIRECTA[h] = static_cast<float>(700.0 * sol);
    caso->clima.IDIFUSA[h] = static_cast<float>(100.0 * sol);
    caso->carga.CCAC[h] = d == 8 || d == 21 ? 25.0F : d >= 10 && d <= 19 ? 5.0F : 0.0F;
    caso->carga.TCR[h] = 20;
    caso->carga.TRR[h] = 25;
    Cargas(h, Positivo(1.2 * (18.0 - T)), Positivo(1.5 * (T - 22.0)));
    caso->zona.DACS[h] = 0.01F * caso->carga.CCAC[h] * 200.0F * 50.0F * 4.184F / 3600.0F;
  }
}

void CasoSistemas::Cargas(int h, float calefaccion, float refrigeracion, float ventilacion) {
  caso->zona.cargaCalefaccion[h] = -calefaccion;
  caso->zona.cargaRefrigeracion[h] = refrigeracion;
  caso->zona.DVENT[h] = ventilacion;
}

Instalaciones& CasoSistemas::Anadir(const std::string& tipo, Instalaciones bloque) {
  SistemaResidencial s;
  s.Tipo_sistema = tipo;
  if (DaACS(TipoSistemaDe(tipo))) s.Sup_ACS = 100;
  s.instalaciones.push_back(std::move(bloque));
  edificio.AnadirSistema(std::move(s));
  return edificio.GetSistema(edificio.NumeroSistemas() - 1).instalaciones.front();
}

GeneradorPreparado CasoSistemas::Preparar(const std::string& tipo, const Instalaciones& bloque) {
  SistemaResidencial s;
  s.Tipo_sistema = tipo;
  return {edificio, s, bloque, 1};
}

HoraSistemas CasoSistemas::Hora(int h) const {
  HoraSistemas hora;
  hora.h = h;
  hora.mes = HoraDelMes(h);
  hora.THE = caso->clima.THE[h];
  hora.TSE = caso->clima.TSE[h];
  if (caso->zona.cargaCalefaccion[h] < 0.0F)
    hora.consigna = caso->carga.TCR[h];
  else if (caso->zona.cargaRefrigeracion[h] > 0.0F)
    hora.consigna = caso->carga.TRR[h];
  hora.humedoInterior = 18;
  hora.Tanterior = 25;
  hora.Wanterior = 0.011F;
  return hora;
}

std::size_t CasoSistemas::Avisos(const std::string& parte) const {
  return static_cast<std::size_t>(
      std::count_if(mensajes.recibidos.begin(), mensajes.recibidos.end(),
                    [&](const Mensaje& m) { return m.texto.find(parte) != std::string::npos; }));
}

Instalaciones BloqueCompleto(const std::string& seleccion, const std::string& instalacion) {
  Instalaciones i;
  i.Seleccion = seleccion;
  i.TipoInstalacionesG = instalacion;
  i.TipoBC1 = "Monoblock";
  i.Distribucion = "Con colector";
  i.Distribucion2 = "Directo";
  i.Retorno = "Sin retorno";
  i.NEquipos = 1;
  i.EControlTe = 7;
  i.Emisor = "Fancoil";
  i.NEmisores = 2;
  i.CaudalVent = 360;
  i.SaltoPVent = 50;
  i.rendVent = 0.5F;
  i.Volumen = 200;
  i.UA_deposito = 2;
  i.LD_deposito = 2;
  i.TaltaD = 60;
  i.TbajaD = 55;
  i.AintermbD = 2;
  i.AintermbD2 = 2;
  i.EfiIntercamb = 75;
  i.SBZ = i.GEN1 = i.GEN2 = i.DEP = i.INT = Bomba(1500);
  i.RET = Bomba(200);
  i.TimpCalor = 45;
  i.TimpACS = 60;
  i.TimpFrio = 7;
  i.QcalorCaldera1 = i.QcalorCaldera2 = i.QcalorBC1 = 20;
  i.RendCalor1 = i.RendCalor2 = 0.9F;
  i.WeCalor1 = 5;
  i.RadiadorElectrico = 20;
  i.RendCalorEst = i.RendACSEst = i.RendFrioEst = 2.5F;
  i.SCOP = 3;
  i.QFrioTot1 = 20;
  i.QFrioSen1 = 14;
  i.WeFrio1 = 5;
  i.QApoyoEquipo = 3;
  i.CombCalor1 = i.CombCalor2 = "GasNatural";
  i.CombCalorBio1 = i.CombCalorBio2 = "Biomasa_Pellet";
  i.CombEst = "Electricidad";
  i.Fabricante = kFabricanteDefecto;
  CurvasEquipo& c = i.curvas;
  for (auto* curva : {&c.aaQ, &c.abQ, &c.baQ, &c.bbQ, &c.aR, &c.bR}) (*curva)[0] = 1;
  c.eR[0] = c.cC[0] = c.gC[0] = 1;
  c.cQ[1] = c.cR[1] = 1;
  return i;
}

void Alimentar(Instalaciones& b, const std::string& alimentacion) {
  b.Alimentacion = b.Alimentacion2 = b.Alimentacion3 = b.Alimentacion4 = alimentacion;
}

void PonerSolar(DatosGenerales& g) {
  g.N_colec_term = 2;
  g.Sup_colec_term = 2;
  g.Incli_colec_term = 40;
  g.AA_colec_term = 0.75F;
  g.BB_colec_term = 4;
  g.CC_colec_term = 0.01F;
  g.Caudal_Col_ST = 200;
  g.Caudal_Dep_ST = 200;
  g.Caudal_Rec_ST = 300;
  g.Efi_Inter_ST = 70;
  g.Long_Tub_ST = 20;
  g.PerdCalor_Tub_ST = 0.2F;
  g.Control_Tmin_ST = 2;
  g.Area_Serp_ST = 2;
  g.Volumen_Dep_ST = 300;
  g.UA_Dep_ST = 2;
  g.LD_Dep_ST = 2;
}

}  // namespace novex::pruebas
