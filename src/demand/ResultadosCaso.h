#pragma once

#include <array>
#include <string>

#include "demand/Series.h"
#include "demand/VectorEnergetico.h"

namespace novex {

/// Sustitución de un servicio por un generador supuesto.
struct ServicioForzado {
  std::string modo = "Normales";  ///< o "CasoConcreto"
  std::string combustible;        ///< nombre de un vector
  float rendimiento = 0;
  bool Concreto() const { return modo == "CasoConcreto"; }
  bool operator==(const ServicioForzado&) const = default;
};

/// Cambios que una medida impone al cálculo sin tocar el caso; 0 es sin cambio.
struct Forzados {
  float ExtraRCubiertas = 0, ExtraRMuros = 0, ExtraRSuelos = 0;  ///< m2K/W
  float ExtraPotPicoFV = 0;                                      ///< kW
  float UCristalForzado = 0, UMarcoForzado = 0;                  ///< W/m2K
  float FSCristalForzado = 0;
  int PuentesForzados = 0;                        ///< 0 ninguno
  float FactorSolarVerano = 0;                    ///< multiplicador
  float PermeabilidadForzada = 0;                 ///< m3/h m2 a 100 Pa
  float ReduccionHuecos = 0, ReduccionMuros = 0;  ///< fracción que se quita
  float EficienciaRecuperadorForzada = 0;         ///< %
  ServicioForzado CasoACS, CasoCalefaccion, CasoRefrigeracion;
  bool operator==(const Forzados&) const = default;
};

/// Coeficientes de paso de una fila.
struct FactorConversion {
  float CO2 = 0;                          ///< kg/kWh
  float EPR = 0, EPNoR = 0, EPTotal = 0;  ///< kWh/kWh
};
inline constexpr std::size_t kFilasFactores = 13;

/// Rendimiento y vector del equipo por defecto de cada servicio. El de refrigeración ya lleva el
/// 0,7.
struct EquipoDefecto {
  std::array<float, kServiciosDemanda> rendimiento{};
  std::array<std::string, kServiciosDemanda> combustible;
};

/// Indicadores que se califican, en el orden de las filas de la escala.
enum class Indicador : std::size_t {
  EmisionesTotales,
  DemandaCalefaccion,
  DemandaRefrigeracion,
  EmisionesCalefaccion,
  EmisionesRefrigeracion,
  EmisionesACS,
  EPriNoRCalefaccion,
  EPriNoRRefrigeracion,
  EPriNoRACS,
  EPriNoRTotales,
  EmisionesIlu,
  EPriNoRIlu
};
inline constexpr std::size_t kIndicadores = 12;

/// Umbrales, valores de referencia y letras de un caso.
struct EscalaCaso {
  std::array<std::array<float, 6>, kIndicadores> th{};  ///< [indicador][th0 a th5]
  std::array<float, kIndicadores> referencia{};
  float DemandaACS = 0, DemandaACS_solar_minima = 0;  ///< kWh/m2
  float iluminacionReferencia = 0;                    ///< kWh/m2
  /// Totales del edificio de referencia con los servicios que el caso tiene, kg/m2 y kWh/m2.
  float totalReferenciaEmisiones = 0, totalReferenciaPrimaria = 0;
  std::array<std::string, kIndicadores> letra;  ///< "A" a "G" o "( - )"
};

/// Lo que resulta de un servicio, por unidad: el año y los meses, por m2 de superficie útil.
struct IndicadoresServicio {
  std::array<TablaMensual, kUnidadesEnergia> porUnidad{};
  /// Energía final sin la solar, la del ambiente ni la fotovoltaica, kWh/m2 y año.
  float finalSinRenovables = 0;
  float finalDefecto = 0;  ///< energía final del equipo por defecto, kWh/m2 y año
  /// Energía final por vector tal como la toma el cómputo, kWh del edificio.
  std::array<TablaMensual, kVectores> finalPorVector{};
};

/// Límites del DB-HE de un caso, kWh/m2 y año.
struct LimitesCaso {
  float demandaCalefaccion = 0, demandaRefrigeracion = 0;
  float CepNren = 0, CepTot = 0;  ///< energía primaria no renovable y total
  bool puestos = false;           ///< falso si la zona no es ninguna
  bool deSuLetra = false;         ///< la tabla no trae la zona: son los de su letra, corregidos
};

/// Resultados anuales de un caso, con sus límites, umbrales y letras.
struct ResultadosCaso {
  Forzados forzados;
  std::array<FactorConversion, kFilasFactores> factores{};
  EquipoDefecto defecto;
  EscalaCaso escala;
  LimitesCaso limites;

  // Envolvente.
  float alturaLibre = 0;                                ///< F: parte de la altura que no es forjado
  float superficieTotal = 0, volumenTotal = 0;          ///< m2, m3
  std::array<float, kRanuras> Uefectiva{};              ///< W/m2K, por posición
  std::array<float, kRanuras> Uequivalente{};           ///< de los elementos al terreno, W/m2K
  std::array<float, kRanuras> factorNoAcondicionado{};  ///< b de los elementos a no acondicionado
  std::array<float, kRanuras> bU{};                     ///< b por U, W/m2K
  std::array<float, kSectores> proporcionHuecos{};  ///< huecos entre huecos más muro, por sector

  // Demandas del año, kWh/m2, todas positivas.
  float demandaCalefaccion = 0, demandaRefrigeracion = 0, demandaACS = 0;
  float horasFueraCalefaccion = 0, horasFueraRefrigeracion = 0;
  float horasOcupacion = 0;
  std::array<float, kServiciosDemanda> noServido{};   ///< kWh del año que ningún sistema da
  std::array<float, kServiciosDemanda> noCubierto{};  ///< kWh del año que los sistemas no alcanzan

  std::array<IndicadoresServicio, kServicios> servicio{};
  float emisionesElectricidad = 0;  ///< kg/m2 debidos a la electricidad
  /// Totales que se califican, por unidad, por m2 y año.
  std::array<float, kUnidadesEnergia> total{};
  bool calificado = false;
  /// Algún depósito del caso no tiene volumen: su agua caliente no se ha calculado y los
  /// resultados no se muestran.
  bool depositoNulo = false;
};

}  // namespace novex
