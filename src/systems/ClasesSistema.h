#pragma once

#include <string_view>

namespace novex {

/// Servicios que da un sistema.
enum class TipoSistema {
  Ninguno,
  ACS,
  ACSCalefaccion,
  Calefaccion,
  Refrigeracion,
  CaleRefri,
  Todo
};

/// Clases de generador.
enum class ClaseGenerador {
  Ninguna,
  Calentador,
  Caldera,
  CalderaMixta,
  BombaCalor,
  BombaCalorCaldera,
  BombaDedicada,
  Termo,
  Interacumulador,
  Radiadores,
  EstacionalAgua,
  EstacionalRefrigerante,
  Estacional,
  EstacionalConocido,
  Ventana,
  Split,
  Conductos,
  MultiSplit,
  CaudalVariable,
  Rooftop,
  Enfriadora
};

/// Lado del agua del generador.
enum class LadoAgua {
  Otro,
  Deposito,
  Interacumulador,
  IntercambDeposito,
  InteracumuGenerador,
  InteracumuSolar,
  Intercambiador,
  Directo,
  ConColector
};

/// De dónde viene el agua de un depósito o de un calentador.
enum class AlimentacionACS {
  Otra,
  Red,
  DirectoIntercambiador,
  DirectoInteracumulador,
  RecirculadoIntercambiador,
  RecirculadoInteracumulador,
  RecirculadoIntercambiadorS,
  RecirculadoInteracumuladorS,
  RecirculadoSolar
};

enum class ControlBomba { Otro, Constante, PresionConstante, PresionMitad };

TipoSistema TipoSistemaDe(std::string_view texto);
ClaseGenerador ClaseGeneradorDe(std::string_view seleccion);
LadoAgua LadoAguaDe(std::string_view distribucion);
AlimentacionACS AlimentacionDe(std::string_view texto);
ControlBomba ControlBombaDe(std::string_view texto);

/// ¿Lleva el emisor ventilador propio?
bool EmisorConVentilador(std::string_view emisor);
/// ¿Da el emisor su calor por el aire de ventilación?
bool EmisorDeVentilacion(std::string_view emisor);

constexpr bool DaACS(TipoSistema t) {
  return t == TipoSistema::ACS || t == TipoSistema::ACSCalefaccion || t == TipoSistema::Todo;
}
constexpr bool DaCalefaccion(TipoSistema t) {
  return t == TipoSistema::ACSCalefaccion || t == TipoSistema::Calefaccion ||
         t == TipoSistema::CaleRefri || t == TipoSistema::Todo;
}
constexpr bool DaRefrigeracion(TipoSistema t) {
  return t == TipoSistema::Refrigeracion || t == TipoSistema::CaleRefri || t == TipoSistema::Todo;
}
/// Equipos de aire a aire.
constexpr bool EsAireAire(ClaseGenerador c) {
  return c == ClaseGenerador::Ventana || c == ClaseGenerador::Split ||
         c == ClaseGenerador::Conductos || c == ClaseGenerador::MultiSplit ||
         c == ClaseGenerador::CaudalVariable || c == ClaseGenerador::Rooftop;
}
constexpr bool EsEstacional(ClaseGenerador c) {
  return c == ClaseGenerador::EstacionalAgua || c == ClaseGenerador::EstacionalRefrigerante ||
         c == ClaseGenerador::Estacional || c == ClaseGenerador::EstacionalConocido;
}
constexpr bool EsElectricoACS(ClaseGenerador c) {
  return c == ClaseGenerador::Termo || c == ClaseGenerador::Interacumulador;
}

}  // namespace novex
