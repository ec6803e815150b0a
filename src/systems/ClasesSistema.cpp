#include "systems/ClasesSistema.h"

#include <utility>

namespace novex {
namespace {

template <typename Enum, std::size_t N>
Enum Buscar(std::string_view texto, const std::pair<std::string_view, Enum> (&tabla)[N],
            Enum siNo) {
  for (const auto& [nombre, valor] : tabla)
    if (nombre == texto) return valor;
  return siNo;
}

constexpr std::pair<std::string_view, TipoSistema> kTipos[] = {
    {"ACS", TipoSistema::ACS},
    {"ACS+Calefaccion", TipoSistema::ACSCalefaccion},
    {"Calefaccion", TipoSistema::Calefaccion},
    {"Refrigeracion", TipoSistema::Refrigeracion},
    {"Calefaccion+Refrigeracion", TipoSistema::CaleRefri},
    {"ACS+Calefaccion+Refrigeracion", TipoSistema::Todo}};

constexpr std::pair<std::string_view, ClaseGenerador> kClases[] = {
    {"1 Calentador", ClaseGenerador::Calentador},
    {"1 Caldera", ClaseGenerador::Caldera},
    {"1 Caldera Mixta", ClaseGenerador::CalderaMixta},
    {"1 BC aire-agua", ClaseGenerador::BombaCalor},
    {"1 BC aire-agua + 1 Caldera", ClaseGenerador::BombaCalorCaldera},
    {"1 BC aire-agua dedicada", ClaseGenerador::BombaDedicada},
    {"1 Termo electrico", ClaseGenerador::Termo},
    {"1 Interacumulador electrico", ClaseGenerador::Interacumulador},
    {"Radiadores eléctricos", ClaseGenerador::Radiadores},
    {"Rend. estacional (agua)", ClaseGenerador::EstacionalAgua},
    {"Rend. estacional (refrigerante)", ClaseGenerador::EstacionalRefrigerante},
    {"Rend. estacional", ClaseGenerador::Estacional},
    {"Rend. estacional conocido", ClaseGenerador::EstacionalConocido},
    {"Equipo de Ventana", ClaseGenerador::Ventana},
    {"Equipo Split", ClaseGenerador::Split},
    {"Equipo Conductos", ClaseGenerador::Conductos},
    {"Equipo MultiSplit", ClaseGenerador::MultiSplit},
    {"Caudal refrigerante variable", ClaseGenerador::CaudalVariable},
    {"Rooftop", ClaseGenerador::Rooftop},
    {"Enfriadora agua cond.aire", ClaseGenerador::Enfriadora}};

constexpr std::pair<std::string_view, LadoAgua> kLados[] = {
    {"Depósito", LadoAgua::Deposito},
    {"Interacumulador", LadoAgua::Interacumulador},
    {"Intercamb+Depósito", LadoAgua::IntercambDeposito},
    {"Interacumu+lado_generador", LadoAgua::InteracumuGenerador},
    {"Interacumu+lado_solar", LadoAgua::InteracumuSolar},
    {"Intercambiador", LadoAgua::Intercambiador},
    {"Directo", LadoAgua::Directo},
    {"Con colector", LadoAgua::ConColector}};

constexpr std::pair<std::string_view, AlimentacionACS> kAlimentaciones[] = {
    {"Alimentación agua red", AlimentacionACS::Red},
    {"Directo solar intercambiador", AlimentacionACS::DirectoIntercambiador},
    {"Directo solar interacumulador", AlimentacionACS::DirectoInteracumulador},
    {"Recirculado solar intercambiador", AlimentacionACS::RecirculadoIntercambiador},
    {"Recirculado solar interacumulador", AlimentacionACS::RecirculadoInteracumulador},
    {"Recirculado solar intercambiadorS", AlimentacionACS::RecirculadoIntercambiadorS},
    {"Recirculado solar interacumuladorS", AlimentacionACS::RecirculadoInteracumuladorS},
    {"Recirculado solar", AlimentacionACS::RecirculadoSolar}};

constexpr std::pair<std::string_view, ControlBomba> kControles[] = {
    {"Cte", ControlBomba::Constante},
    {"Vble P=Cte", ControlBomba::PresionConstante},
    {"Vble Po=P/2", ControlBomba::PresionMitad},
    {"Vble DT=Cte", ControlBomba::PresionMitad}};

}  // namespace

TipoSistema TipoSistemaDe(std::string_view texto) {
  return Buscar(texto, kTipos, TipoSistema::Ninguno);
}
ClaseGenerador ClaseGeneradorDe(std::string_view seleccion) {
  return Buscar(seleccion, kClases, ClaseGenerador::Ninguna);
}
LadoAgua LadoAguaDe(std::string_view distribucion) {
  return Buscar(distribucion, kLados, LadoAgua::Otro);
}
AlimentacionACS AlimentacionDe(std::string_view texto) {
  return Buscar(texto, kAlimentaciones, AlimentacionACS::Otra);
}
ControlBomba ControlBombaDe(std::string_view texto) {
  return Buscar(texto, kControles, ControlBomba::Otro);
}

bool EmisorConVentilador(std::string_view emisor) {
  return emisor == "Fancoil" || emisor == "Conductos" || emisor == "Fancoil + Sist.Vent." ||
         emisor == "Conductos + Sist.Vent.";
}

bool EmisorDeVentilacion(std::string_view emisor) {
  return emisor == "Sist.Vent.";
}

}  // namespace novex
