#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/Grafico.h"
#include "demand/calculo.h"
#include "model/Edificio.h"

namespace novex {

/// Cifras del año de un caso, por m2 de superficie útil.
struct ResumenAnual {
  float superficie = 0;  ///< útil, m2
  /// Demanda de cada servicio, kWh/m2 y año, positiva.
  std::array<float, kServiciosDemanda> demanda{};
  /// Por unidad y servicio: kWh/m2 y año, y en `kEmisiones` kg de CO2/m2 y año.
  std::array<std::array<float, kServicios>, kUnidadesEnergia> porServicio{};
  std::array<float, kUnidadesEnergia> total{};  ///< los totales que se califican
  /// Demanda entre energía final de cada servicio, %; 0 sin energía.
  std::array<float, kServiciosDemanda> eficiencia{};
  /// Demanda total entre energía total; 0 sin energía.
  float eficienciaFinal = 0, eficienciaPrimaria = 0;
  std::vector<std::string> lineas;  ///< textos en su orden
};

/// Reúne las cifras del año y sus textos. Donde la refrigeración no se califica tampoco está en los
/// totales, y se dice. \param caso ya plegado y calificado
ResumenAnual ResumirAno(const Edificio& edificio, const calculo& caso);

/// Títulos de los dos gráficos por meses.
inline constexpr std::string_view kTituloGraficoMensual = "Demanda/energía/emisiones";
inline constexpr std::string_view kTituloGraficoEficiencia = "Eficiencia sistemas y total";

/// Lo que se elige ver por meses en `Tipo resultado`, en su orden: la demanda y las unidades de la
/// energía.
enum class TipoResultado : std::size_t {
  Demanda,
  EnergiaFinal,
  PrimariaTotal,
  PrimariaNoRenovable,
  PrimariaRenovable,
  Emisiones
};
inline constexpr std::array<std::string_view, 6> kTextoTipoResultado = {
    "Demanda",
    "Energia Final",
    "Energía primaria",
    "Energia primaria no renovable",
    "Energía primaria renovable",
    "Emisiones CO2"};

/// Gráfico de un resultado por meses, una serie por servicio, por m2: kWh, o kg de CO2 en las
/// emisiones. La ventilación y la iluminación no tienen demanda; la iluminación es solo de
/// terciario. \param caso ya plegado
Grafico GraficoMensual(const Edificio& edificio, const calculo& caso, TipoResultado tipo);

/// Gráfico de la eficiencia por meses, %: la demanda entre la energía de la clase elegida, de cada
/// servicio y del total, en que entran también la ventilación y la iluminación. Un mes sin esa
/// energía da 0. \param tipo una energía; con la demanda o las emisiones no hay series
Grafico GraficoEficiencia(const Edificio& edificio, const calculo& caso, TipoResultado tipo);

}  // namespace novex
