#pragma once

#include <array>
#include <string>
#include <vector>

#include "model/NodoConservado.h"

namespace novex {

/// Bomba de un circuito.
struct BombaCircuito {
  float Caudal = 0;             ///< l/h
  float DT = 0;                 ///< salto de temperatura, °C
  float P = 0;                  ///< altura, m de columna de agua
  float Rend = 0;               ///< rendimiento, fracción
  std::string control = "Cte";  ///< o "Vble P=Cte", "Vble Po=P/2", "Vble DT=Cte"
  bool operator==(const BombaCircuito&) const = default;
};

/// Curvas de un equipo. Los cocientes valen 1 en las condiciones nominales.
struct CurvasEquipo {
  std::array<float, 6> aaQ{}, abQ{};  ///< capacidad de calefacción sobre y bajo `TeCambio`
  std::array<float, 6> baQ{}, bbQ{};  ///< consumo de calefacción sobre y bajo `TeCambio`
  std::array<float, 4> cQ{};          ///< consumo de calefacción con la carga parcial
  std::array<float, 6> aR{};          ///< capacidad total de refrigeración
  std::array<float, 7> eR{};          ///< capacidad sensible de refrigeración
  std::array<float, 6> bR{};          ///< consumo de refrigeración
  std::array<float, 4> cR{};          ///< consumo de refrigeración con la carga parcial
  std::array<float, 4> cC{}, gC{};    ///< rendimiento de caldera con la carga y con la temperatura
  float TeCambio = 0;                 ///< bulbo húmedo exterior de cambio, °C
  bool operator==(const CurvasEquipo&) const = default;
};

/// Un bloque de generador de un sistema.
struct Instalaciones {
  std::string Seleccion;           ///< clase de generador
  std::string TipoInstalacionesG;  ///< "Individual/Vivienda" o "Centralizada/Bloque"
  std::string TipoGenerador1;  ///< "Convencional", "Baja temperatura", "Condensacion", "Biomasa"
  std::string TipoBC1;         ///< "Monoblock" o "Partida"
  std::string TipoGenerador2, TipoBC12;
  std::string Distribucion;   ///< lado del agua: depósito, intercambiador o zona
  std::string Distribucion2;  ///< "Directo" o "Intercambiador" en un calentador
  std::string Retorno;        ///< "Sin retorno" o "Con retorno"
  std::string Alimentacion, Alimentacion2, Alimentacion3, Alimentacion4;
  float EControlTe = 0;  ///< sobre ella va la bomba de calor y bajo ella la caldera, °C
  int NEmisores = 0;     ///< unidades terminales por equipo
  std::string Emisor, ConsumoEmisor;
  int NEquipos = 0;                     ///< generadores iguales en paralelo
  float Long_tuberias = 0;              ///< del retorno de ACS, m
  float Pot_perdida_m_tub = 0;          ///< W/m°C
  int NHretorno = 0;                    ///< 0 las 24 horas, 1 solo con consumo
  float Distanciaext_int = 0;           ///< entre unidad exterior e interior, m
  float Perdida_m_tub_ext_int = 0;      ///< capacidad perdida por metro, %
  float Volumen = 0;                    ///< del depósito, l
  float UA_deposito = 0;                ///< W/°C
  float LD_deposito = 0;                ///< altura entre diámetro
  float TaltaD = 0, TbajaD = 0;         ///< consignas del depósito, °C
  float AintermbD = 0, AintermbD2 = 0;  ///< serpentín del generador y solar, m2
  float EfiIntercamb = 0;               ///< %
  BombaCircuito SBZ, GEN1, GEN2, DEP, INT, RET;
  float TimpCalor = 0, saltoGenerador = 0, TimpACS = 0, TimpFrio = 0, saltoZona = 0;  ///< °C
  float CaudalVent = 0;  ///< de una unidad terminal, m3/h
  float SaltoPVent = 0;  ///< Pa
  float rendVent = 0;
  float QcalorCaldera1 = 0, RendCalor1 = 0;  ///< kW, fracción sobre PCI
  std::string CombCalor1, CombCalorBio1;
  float RadiadorElectrico = 0;  ///< kW
  int Nradiadores = 0;          ///< tipo de vivienda, 0 a 5, que sirve un depósito de un bloque
  float QcalorCaldera2 = 0, RendCalor2 = 0;
  std::string CombCalor2, CombCalorBio2;
  float QcalorBC1 = 0, WeCalor1 = 0, QcalorBC2 = 0, WeCalor2 = 0;  ///< kW
  float RendCalorEst = 0, RendFrioEst = 0, RendACSEst = 0;
  float SCOP = 0;
  float QFrioSen1 = 0, QFrioTot1 = 0, WeFrio1 = 0;  ///< kW
  float QFrioSen2 = 0, QFrioTot2 = 0, WeFrio2 = 0;  ///< kW
  float QApoyoEquipo = 0;                           ///< resistencia de un termo, kW
  float QApoyoTermo = 0;  ///< resistencia de apoyo de una bomba de calor, kW
  std::string CombEst;    ///< vector de los rendimientos estacionales
  std::string Fabricante, Modelo;
  CurvasEquipo curvas;
  /// Campos del fichero que no están en este registro, en su orden.
  std::vector<NodoConservado> campos;

  bool operator==(const Instalaciones&) const = default;
};

/// Fabricante de las curvas genéricas, que se toman siempre del catálogo.
inline constexpr const char* kFabricanteDefecto = "Defecto";

}  // namespace novex
