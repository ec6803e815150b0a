#include "entry/BloqueSistema.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "entry/DimensionadoSistema.h"
#include "entry/ListasSistemas.h"

namespace novex {
namespace {

using T = TipoSistema;
using C = ClaseGenerador;

constexpr int kEdificiosEnBloque = 1;  // `PerfilUso`

// Bombas.
constexpr float kAlturaBomba = 2;  // m
constexpr float kRendimientoBomba = 0.55F;
constexpr float kSaltoBomba = 5;  // °C

// Potencias, kW.
constexpr double kCalderaMinima = 16;
constexpr double kConsumoPorPotencia = 0.4;
constexpr double kConsumoConCaldera = 1.0 / 3.0;
constexpr double kSensiblePorTotal = 0.7;
constexpr double kPartedeBomba = 0.4;  // de la potencia, en bomba de calor más caldera

// Equipos que se cuentan por unidades iguales de 2 kW.
struct UnidadFija {
  C clase;
  float distancia;  // m
};
constexpr UnidadFija kUnidadesFijas[] = {{C::Ventana, 1}, {C::Split, 4}};
constexpr double kUnidadesPorKW = 0.5;
constexpr double kEquiposMaximos = 1e9;  // los que admite el campo
constexpr float kCalorUnidad = 2, kConsumoCalorUnidad = 1;
constexpr float kSensibleUnidad = 1.5F, kTotalUnidad = 2, kConsumoFrioUnidad = 0.9F;

// Equipos con distancia propia a su unidad interior.
struct UnidadVivienda {
  C clase;
  float distancia;  // m
  double fraccion;  // de las potencias y los consumos
};
constexpr UnidadVivienda kUnidadesVivienda[] = {{C::Conductos, 10, 1},
                                                {C::MultiSplit, 25, 1},
                                                {C::CaudalVariable, 25, 1},
                                                {C::Rooftop, 0, 0.3},
                                                {C::BombaCalor, 1, 1}};
constexpr float kDistanciaPartida = 10;  // m, de una bomba de calor partida

// Temperaturas de impulsión de calor, °C.
constexpr float kImpulsionCaldera = 60, kImpulsionCalderaExistente = 70;
constexpr float kImpulsionBomba = 55, kImpulsionAire = 50, kImpulsionSuelo = 40;
// Saltos, °C.
constexpr float kSalto = 5, kSaltoExistente = 20, kSaltoNuevo = 15, kSaltoCalderaACS = 20;

// Depósito.
constexpr float kAltaDeposito = 60, kAltaDepositoBomba = 53, kBajaDeposito = 45;  // °C
constexpr double kResistencia = 2, kResistenciaMaxima = 3, kLitrosPorKW = 100;

// Lo que deciden los textos del bloque y del caso.
struct Contexto {
  const Edificio& edificio;
  T tipo;
  C clase;
  double P;        // potencia de dimensionado, kW
  bool existente;  // `Modo_trabajo`
};

double D(float x) {
  return static_cast<double>(x);
}
float F(double x) {
  return static_cast<float>(x);
}
bool EsCaldera(C clase) {
  return clase == C::Calentador || clase == C::Caldera || clase == C::CalderaMixta;
}
void PorDefecto(std::string& campo, std::string_view valor) {
  if (campo.empty()) campo = valor;
}

void PonerBombas(Instalaciones& b) {
  for (BombaCircuito* bomba : {&b.SBZ, &b.GEN1, &b.GEN2, &b.DEP, &b.INT, &b.RET}) {
    bomba->P = kAlturaBomba;
    bomba->Rend = kRendimientoBomba;
    bomba->DT = kSaltoBomba;
    bomba->control = kControlesBomba[0];
  }
}

void PonerElecciones(const Contexto& c, std::string_view tipoSistema, Instalaciones& b) {
  // Un equipo por refrigerante no tiene fancoil: toma el primero de su lista.
  const ListaTextos emisores = EmisoresOfrecidos(tipoSistema, b.Seleccion);
  PorDefecto(b.Emisor, emisores.empty() ? "Fancoil" : emisores.front());
  PorDefecto(b.TipoBC1, kTiposBC[0]);
  b.TipoBC12 = kTiposBC[0];
  b.TipoGenerador1 = b.TipoGenerador2 = "Condensacion";
  std::string_view lado = "Con colector";
  if (DaACS(c.tipo)) lado = c.tipo == T::ACS ? "Intercamb+Depósito" : "Depósito";
  PorDefecto(b.Distribucion, lado);
  PorDefecto(b.Distribucion2, "Directo");
  b.ConsumoEmisor = kConsumosEmisor[0];
  b.Retorno = kRetornos[0];
  b.Alimentacion = b.Alimentacion2 = b.Alimentacion3 = b.Alimentacion4 = kAguaRed;
  b.CombEst = "Electricidad";
  b.CombCalor1 = LlevaCaldera(c.clase) ? "GasNatural" : "Electricidad";
  b.CombCalor2 = "GasNatural";
  b.CombCalorBio1 = "Biomasa_Pellet";
  b.CombCalorBio2 = "Biomasa_Otros";
}

// Viviendas de un bloque con su equipo cada una: se dimensiona para una, y sin tantos equipos de
// agua caliente como viviendas el proyecto no se puede calcular. Sin viviendas definidas queda uno.
double EquiposPorBloque(const Contexto& c, const Instalaciones& b) {
  if (c.edificio.GetDatosGenerales().PerfilUso != kEdificiosEnBloque) return 1;
  return std::max(1.0, std::floor(UnidadesDe(c.edificio, b.TipoInstalacionesG).individuales));
}

void PonerComunes(const Contexto& c, Instalaciones& b) {
  b.EControlTe = 7;
  b.NEmisores = 1;
  b.NEquipos = EsEstacional(c.clase) ? 1 : static_cast<int>(EquiposPorBloque(c, b));
  b.Distanciaext_int = 1;
  b.Perdida_m_tub_ext_int = 0.3F;
  b.Pot_perdida_m_tub = 0.2F;
  b.EfiIntercamb = 80;
  b.TimpFrio = 7;
  b.TimpACS = 50;
  b.rendVent = 0.6F;
  b.SaltoPVent = EmisorBase(b.Emisor) == "Conductos" ? 250.0F : 125.0F;
  b.RendCalorEst = 3.6F;
  b.RendFrioEst = c.tipo == T::Refrigeracion ? 3.0F : 3.6F;
  b.RendACSEst = 2.5F;
  b.SCOP = 2.65F;
  b.RadiadorElectrico = 2;
}

void PonerPotencias(const Contexto& c, Instalaciones& b) {
  const bool conCaldera = LlevaCaldera(c.clase) || DaACS(c.tipo);
  b.QcalorBC1 = F(c.P);
  b.WeCalor1 = F(c.P * (conCaldera ? kConsumoConCaldera : kConsumoPorPotencia));
  b.QFrioTot1 = F(c.P);
  b.QFrioSen1 = F(kSensiblePorTotal * c.P);
  b.WeFrio1 = F(kConsumoPorPotencia * c.P);
  b.CaudalVent = F(CaudalDeAire(c.P));
}

void PonerUnidadesFijas(const Contexto& c, Instalaciones& b) {
  for (const UnidadFija& unidad : kUnidadesFijas) {
    if (unidad.clase != c.clase) continue;
    // Una potencia que debía ser entera no pierde una unidad por el error de la división.
    constexpr double kHolgura = 1e-6;
    b.NEquipos = static_cast<int>(std::min(
        kEquiposMaximos, std::floor(kUnidadesPorKW * c.P + 1 + kHolgura) * EquiposPorBloque(c, b)));
    b.Distanciaext_int = unidad.distancia;
    b.QcalorBC1 = kCalorUnidad;
    b.WeCalor1 = kConsumoCalorUnidad;
    b.QFrioSen1 = kSensibleUnidad;
    b.QFrioTot1 = kTotalUnidad;
    b.WeFrio1 = kConsumoFrioUnidad;
  }
}

void PonerUnidadesVivienda(const Contexto& c, Instalaciones& b) {
  for (const UnidadVivienda& unidad : kUnidadesVivienda) {
    if (unidad.clase != c.clase) continue;
    const bool partida = c.clase == C::BombaCalor && b.TipoBC1 != kTiposBC[0];
    b.Distanciaext_int = partida ? kDistanciaPartida : unidad.distancia;
    for (float* kW : {&b.QcalorBC1, &b.WeCalor1, &b.QFrioTot1, &b.QFrioSen1, &b.WeFrio1})
      *kW = F(D(*kW) * unidad.fraccion);
  }
}

void PonerCalderas(const Contexto& c, Instalaciones& b) {
  b.QcalorCaldera1 = b.QcalorCaldera2 = F(std::max(kCalderaMinima, c.P));
  b.RendCalor1 = b.RendCalor2 = 0.95F;
  if (c.tipo != T::Calefaccion || c.clase != C::BombaCalorCaldera) return;
  b.QcalorBC1 = F(kPartedeBomba * c.P);
  b.WeCalor1 = F(kPartedeBomba * c.P * kConsumoConCaldera);
}

// Impulsión de calor por el emisor y, si este no la fija, por el generador.
float ImpulsionCalor(const Contexto& c, std::string_view emisor) {
  if (emisor == "Suelo radiante") return kImpulsionSuelo;
  const bool bomba = c.clase == C::BombaCalor || c.clase == C::BombaDedicada ||
                     (c.clase == C::BombaCalorCaldera && DaACS(c.tipo));
  if (DaACS(c.tipo)) return bomba ? kImpulsionBomba : kImpulsionCaldera;
  if (emisor == "Fancoil" || emisor == "Conductos") return kImpulsionAire;
  if (bomba) return kImpulsionBomba;
  return EsCaldera(c.clase) && c.existente ? kImpulsionCalderaExistente : kImpulsionCaldera;
}

void PonerTemperaturas(const Contexto& c, Instalaciones& b) {
  const std::string_view emisor = EmisorBase(b.Emisor);
  b.TimpCalor = ImpulsionCalor(c, emisor);
  // Una bomba de calor, también con una caldera detrás, trabaja con poco salto.
  b.saltoGenerador = kSalto;
  if (EsCaldera(c.clase)) {
    const float calefaccion = c.existente ? kSaltoExistente : kSaltoNuevo;
    b.saltoGenerador = DaACS(c.tipo) ? kSaltoCalderaACS : calefaccion;
  }
  b.saltoZona = kSalto;
  if (emisor == "Radiadores") b.saltoZona = c.existente ? kSaltoExistente : kSaltoNuevo;
}

void PonerDeposito(const Contexto& c, Instalaciones& b) {
  if (!DaACS(c.tipo)) return;
  const double volumen = VolumenDeposito(c.edificio, b.TipoInstalacionesG);
  b.Volumen = F(volumen);
  b.AintermbD = b.AintermbD2 = F(AreaSerpentin(volumen));
  b.UA_deposito = F(UADeposito(volumen));
  b.LD_deposito = 2;
  b.Long_tuberias = F(LongitudTuberias(c.edificio, b.TipoInstalacionesG));
  b.TaltaD = c.clase == C::BombaCalor ? kAltaDepositoBomba : kAltaDeposito;
  b.TbajaD = kBajaDeposito;
}

void PonerResistencias(Instalaciones& b) {
  b.QApoyoTermo = F(kResistencia);
  // Un kW entero por cada 100 l de depósito.
  const double porVolumen = std::floor(D(b.Volumen) / kLitrosPorKW);
  b.QApoyoEquipo = F(std::clamp(porVolumen, kResistencia, kResistenciaMaxima));
}

void PonerAlturaZona(const Contexto& c, Instalaciones& b) {
  // Desde la bomba de calor con caldera en la lista de calefacción, el circuito es de media zona.
  const bool media = c.tipo == T::Calefaccion && c.clase != C::Caldera && c.clase != C::BombaCalor;
  b.SBZ.P = F(0.12 * std::sqrt((media ? 0.5 : 1.0) * SuperficieDimensionado(c.edificio)) + 2);
}

}  // namespace

bool LlevaCaldera(ClaseGenerador clase) {
  return EsCaldera(clase) || clase == C::BombaCalorCaldera;
}

void PonerCaudales(TipoSistema tipo, double potencia1, double potencia2, Instalaciones& bloque) {
  bloque.SBZ.DT = bloque.saltoZona;
  bloque.GEN1.DT = bloque.GEN2.DT = bloque.saltoGenerador;
  bloque.SBZ.Caudal = F(CaudalDeAgua(std::max(potencia1, potencia2), D(bloque.saltoZona)));
  bloque.GEN1.Caudal = F(CaudalDeAgua(potencia1, D(bloque.saltoGenerador)));
  bloque.GEN2.Caudal = F(CaudalDeAgua(potencia2, D(bloque.saltoGenerador)));
  if (!DaACS(tipo)) return;
  bloque.DEP.Caudal = 0.5F * bloque.GEN1.Caudal;
  bloque.INT.Caudal = tipo == T::ACS ? bloque.GEN1.Caudal : bloque.DEP.Caudal;
  bloque.RET.Caudal =
      F(CaudalDeRetorno(D(bloque.Long_tuberias), D(bloque.Pot_perdida_m_tub), D(bloque.TimpACS)));
}

void DimensionarBloque(const Edificio& edificio, std::string_view tipoSistema,
                       Instalaciones& bloque) {
  const T tipo = TipoSistemaDe(tipoSistema);
  const Contexto c{edificio, tipo, ClaseGeneradorDe(bloque.Seleccion),
                   PotenciaDimensionado(tipo, CargasPuntaDe(edificio, bloque.TipoInstalacionesG)),
                   edificio.GetDatosGenerales().Modo_trabajo == "Existente"};
  PonerBombas(bloque);
  PonerElecciones(c, tipoSistema, bloque);
  PonerComunes(c, bloque);
  PonerPotencias(c, bloque);
  PonerUnidadesFijas(c, bloque);
  PonerUnidadesVivienda(c, bloque);
  PonerCalderas(c, bloque);
  PonerTemperaturas(c, bloque);
  PonerDeposito(c, bloque);
  PonerResistencias(bloque);
  PonerAlturaZona(c, bloque);
  PonerCaudales(tipo, c.P, c.P, bloque);
}

}  // namespace novex
