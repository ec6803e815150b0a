#include "systems/AtributosSistema.h"

#include <algorithm>

namespace novex {
namespace {

constexpr std::array<const char*, kCircuitos> kNombreCircuito = {"WSBZ", "WGEN1", "WGEN2",
                                                                 "WDEP", "WINT",  "WRET"};

const char* Sufijo(ClaseGenerador clase) {
  switch (clase) {
    case ClaseGenerador::Calentador:
      return "_CL";
    case ClaseGenerador::BombaDedicada:
      return "_BCD";
    case ClaseGenerador::BombaCalor:
    case ClaseGenerador::BombaCalorCaldera:
      return "_BC";
    case ClaseGenerador::Enfriadora:
      return "_EA";
    case ClaseGenerador::Caldera:
      return "_CA";
    case ClaseGenerador::Termo:
      return "_TE";
    case ClaseGenerador::Interacumulador:
      return "_IE";
    case ClaseGenerador::CalderaMixta:
      return "_CM";
    case ClaseGenerador::EstacionalAgua:
      return "_REW";
    case ClaseGenerador::Radiadores:
      return "_RE";
    case ClaseGenerador::EstacionalRefrigerante:
    case ClaseGenerador::Estacional:
    case ClaseGenerador::EstacionalConocido:
      return "_RER";
    case ClaseGenerador::Ventana:
      return "_EV";
    case ClaseGenerador::Split:
      return "_ES";
    case ClaseGenerador::Conductos:
      return "_EC";
    case ClaseGenerador::CaudalVariable:
      return "_VRV";
    case ClaseGenerador::Rooftop:
      return "_RFT";
    case ClaseGenerador::MultiSplit:
      return "_EM";
    case ClaseGenerador::Ninguna:
      break;
  }
  return "_";
}

// Palabra del servicio de calor de un sistema.
const char* PalabraCalor(TipoSistema tipo) {
  if (tipo == TipoSistema::ACS) return "ACS";
  return tipo == TipoSistema::ACSCalefaccion || tipo == TipoSistema::Todo ? "ACC" : "CAL";
}

}  // namespace

void AtributosSistema::Terna::Poner(int h, float q, float c, float total) const {
  if (Q == nullptr) return;
  (*Q)[h] = q;
  (*C)[h] = c;
  if (QT != nullptr) (*QT)[h] = total;
  const float util = QT != nullptr ? total : q;
  (*Rend)[h] = c != 0.0F ? util / c : 0.0F;
}

SerieHoraria* AtributosSistema::Nuevo(const std::string& nombre, int decimales) {
  // Dos sistemas que anotan la misma magnitud del caso comparten la serie.
  for (AtributoSistema& a : caso_.atributos)
    if (a.nombre == nombre) return &a.serie;
  AtributoSistema& nuevo = caso_.atributos.emplace_back();
  nuevo.nombre = nombre;
  nuevo.decimales = decimales;
  return &nuevo.serie;
}

AtributosSistema::Terna AtributosSistema::NuevaTerna(const std::string& servicio,
                                                     const std::string& sufijo, bool frio) {
  const std::string cola = servicio + sufijo + numero_;
  Terna t;
  t.Q = Nuevo("Q" + cola);
  if (frio) t.QT = Nuevo("QT" + cola);
  t.C = Nuevo("C" + cola);
  t.Rend = Nuevo("Rend" + cola);
  return t;
}

AtributosSistema::AtributosSistema(const GeneradorPreparado& g, const ArregloACS* arreglo,
                                   calculo& caso)
    : caso_(caso),
      numero_(std::to_string(g.numero)),
      conjunto_(g.clase == ClaseGenerador::BombaCalorCaldera) {
  const bool calor = DaACS(g.tipo) || DaCalefaccion(g.tipo);
  const bool frio = DaRefrigeracion(g.tipo);
  const char* palabra = PalabraCalor(g.tipo);
  if (calor) calor1_ = NuevaTerna(palabra, Sufijo(g.clase), false);
  if (calor && conjunto_) calor2_ = NuevaTerna(palabra, "_CA", false);
  const bool bomba = conjunto_ || g.clase == ClaseGenerador::BombaCalor;
  if (DaACS(g.tipo) && bomba) resistencia_ = NuevaTerna(palabra, "_RA", false);
  if (frio) frio_ = NuevaTerna("REF", Sufijo(g.clase), true);
  const bool losDos = calor && frio;
  for (std::size_t c = 0; c < kCircuitos; ++c) {
    const std::string nombre = kNombreCircuito[c];
    if (calor) bombaCalor_[c] = Nuevo(nombre + (losDos ? "C" : "") + numero_);
    if (frio && (c == kSBZ || c == kGEN1))
      bombaFrio_[c] = Nuevo(nombre + (losDos ? "R" : "") + numero_);
  }
  if (calor) ventiladorCalor_ = Nuevo(std::string("WVEMI") + (losDos ? "C" : "") + numero_);
  if (frio) ventiladorFrio_ = Nuevo(std::string("WVEMI") + (losDos ? "R" : "") + numero_);
  if (arreglo == nullptr) return;
  caudales_ = {Nuevo("CW60", 0), Nuevo("CWT", 0), Nuevo("TWC", 0)};
  perdidas_ = {Nuevo("PRET" + numero_, 4), Nuevo("PDACS" + numero_, 4)};
  for (std::size_t k = 0; k < kNodos; ++k)
    nodos_[k] = Nuevo("TD" + std::to_string(k + 1) + "_" + numero_);
  if (arreglo->captadores)
    solares_ = {Nuevo("PTCS"), Nuevo("PDS"),   Nuevo("EASC"),
                Nuevo("WCS"),  Nuevo("WDEPS"), Nuevo("WRECS")};
}

void AtributosSistema::Anotar(int h, const RespuestaHora& r) {
  const float dado2 = r.dado2[kACS] + r.dado2[kCalefaccion];
  const float dado1 = r.dado[kACS] + r.dado[kCalefaccion] - dado2;
  calor1_.Poner(h, dado1, r.consumo1[kACS] + r.consumo1[kCalefaccion], 0.0F);
  calor2_.Poner(h, dado2, r.consumo2[kACS] + r.consumo2[kCalefaccion], 0.0F);
  resistencia_.Poner(h, r.resistencia, r.resistencia, 0.0F);
  frio_.Poner(h, r.dado[kRefrigeracion], r.consumo1[kRefrigeracion], r.frioTotal);
  for (std::size_t c = 0; c < kCircuitos; ++c) {
    if (bombaCalor_[c] != nullptr) (*bombaCalor_[c])[h] = r.bombaCalor[c];
    if (bombaFrio_[c] != nullptr) (*bombaFrio_[c])[h] = r.bombaFrio[c];
  }
  if (ventiladorCalor_ != nullptr)
    (*ventiladorCalor_)[h] = r.ventiladores[kACS] + r.ventiladores[kCalefaccion];
  if (ventiladorFrio_ != nullptr) (*ventiladorFrio_)[h] = r.ventiladores[kRefrigeracion];
}

void AtributosSistema::AnotarACS(int h, const ResultadoACS& acs, const Nodos& T) {
  (*caudales_[0])[h] = acs.caudal60;
  (*caudales_[1])[h] = acs.caudal;
  (*caudales_[2])[h] = acs.temperatura;
  (*perdidas_[0])[h] = acs.perdidaRetorno * 1000.0F;
  (*perdidas_[1])[h] = acs.perdidaDeposito * 1000.0F;
  for (std::size_t k = 0; k < kNodos; ++k) (*nodos_[k])[h] = static_cast<float>(T[k]);
  if (solares_[0] == nullptr || !acs.contabilizaSolar) return;
  const std::array<float, 6> valores = {
      acs.perdidaTuberia,  acs.perdidaSolar,       acs.captada,
      acs.bombaCaptadores, acs.bombaDepositoSolar, acs.bombaRecirculacion};
  for (std::size_t k = 0; k < valores.size(); ++k) (*solares_[k])[h] = valores[k];
}

}  // namespace novex
