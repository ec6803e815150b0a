#include "systems/GeneradorPreparado.h"

#include <algorithm>

namespace novex {
namespace {

float Cociente(float a, float b) {
  return b == 0.0F ? 0.0F : a / b;
}

// Viviendas que comparten una instalación central, si el caso es una sola de ellas.
float Divisor(const Edificio& edificio, const Instalaciones& i) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  const bool comparte = g.PerfilUso == 2 && i.TipoInstalacionesG == "Centralizada/Bloque";
  return comparte && g.NVBloqueF > 0.0F ? g.NVBloqueF : 1.0F;
}

std::optional<VectorEnergetico> VectorGenerador1(ClaseGenerador clase, const Instalaciones& i) {
  switch (clase) {
    case ClaseGenerador::Calentador:
    case ClaseGenerador::Caldera:
    case ClaseGenerador::CalderaMixta:
      return VectorDeNombre(i.TipoGenerador1 == "Biomasa" ? i.CombCalorBio1 : i.CombCalor1);
    case ClaseGenerador::EstacionalAgua:
    case ClaseGenerador::EstacionalRefrigerante:
    case ClaseGenerador::Estacional:
    case ClaseGenerador::EstacionalConocido:
      return VectorDeNombre(i.CombEst);
    default:
      return VectorEnergetico::Electricidad;
  }
}

}  // namespace

BombaPreparada PrepararBomba(const BombaCircuito& b, float porEquipos) {
  constexpr float kPesoAgua = 9800.0F;                    // N/m3
  constexpr float kLitrosHora = 2.7777777777777776e-07F;  // m3/s
  BombaPreparada p;
  p.potencia = Cociente(kPesoAgua * b.P * b.Caudal * kLitrosHora, b.Rend) * 0.001F * porEquipos;
  p.control = ControlBombaDe(b.control);
  p.caudal = b.Caudal / 3600.0F;
  return p;
}

float BombaPreparada::Potencia(float x) const {
  x = std::min(x, 1.0F);
  const float curva = 0.088065F + x * (1.137742F - 0.22806F * x);
  float k = 0;
  switch (control) {
    case ControlBomba::Constante:
      k = 1.0F;
      break;
    case ControlBomba::PresionConstante:
      k = x / curva;
      break;
    case ControlBomba::PresionMitad:
      k = (0.5F * x + 0.5F * x * x) / curva;
      break;
    case ControlBomba::Otro:
      break;
  }
  return potencia * k * 1000.0F;
}

GeneradorPreparado::GeneradorPreparado(const Edificio& edificio, const SistemaResidencial& sistema,
                                       const Instalaciones& i, int numeroSistema)
    : datos(&i),
      numero(numeroSistema),
      tipo(TipoSistemaDe(sistema.Tipo_sistema)),
      clase(ClaseGeneradorDe(i.Seleccion)),
      individual(i.TipoInstalacionesG == "Individual/Vivienda"),
      partida(i.TipoBC1 == "Partida"),
      conColector(LadoAguaDe(i.Distribucion) == LadoAgua::ConColector),
      biomasa1(i.TipoGenerador1 == "Biomasa"),
      biomasa2(i.TipoGenerador2 == "Biomasa"),
      curvasGenericas(i.Fabricante == kFabricanteDefecto || i.Fabricante.empty()),
      anadirVentilador(i.ConsumoEmisor == "Añadir consumo ventilador interior"),
      vector1(VectorGenerador1(clase, i)),
      vector2(VectorDeNombre(biomasa2 ? i.CombCalorBio2 : i.CombCalor2)),
      porEquipos(static_cast<float>(i.NEquipos) / Divisor(edificio, i)),
      caldera1(porEquipos * i.QcalorCaldera1),
      caldera2(porEquipos * i.QcalorCaldera2),
      bombaCalor(porEquipos * i.QcalorBC1),
      consumoBomba(porEquipos * i.WeCalor1),
      radiador(porEquipos * i.RadiadorElectrico),
      frioTotal(porEquipos * i.QFrioTot1),
      frioSensible(porEquipos * i.QFrioSen1),
      consumoFrio(porEquipos * i.WeFrio1),
      apoyo(porEquipos * i.QApoyoTermo),
      perdidaLinea(i.Distanciaext_int * i.Perdida_m_tub_ext_int * 0.01F),
      ventilador(0),
      ventiladorInterior(0),
      SBZ(PrepararBomba(i.SBZ, porEquipos)),
      GEN1(PrepararBomba(i.GEN1, porEquipos)),
      GEN2(PrepararBomba(i.GEN2, porEquipos)),
      DEP(PrepararBomba(i.DEP, porEquipos)),
      INT(PrepararBomba(i.INT, porEquipos)),
      RET(PrepararBomba(i.RET, porEquipos)) {
  const float fan = static_cast<float>(i.NEmisores) *
                    Cociente(i.CaudalVent / 3600.0F * i.SaltoPVent, i.rendVent) * porEquipos;
  if (EmisorConVentilador(i.Emisor)) ventilador = fan;
  const bool conInterior =
      clase == ClaseGenerador::MultiSplit || clase == ClaseGenerador::CaudalVariable;
  if (conInterior && anadirVentilador) ventiladorInterior = fan;
}

}  // namespace novex
