#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Tabla.h"
#include "outputs/SerieResultado.h"

namespace novex {

/// Variables que caben en una tabla numérica.
inline constexpr std::size_t kMaximoSeries = 25;

/// Qué columnas van delante de las series.
struct ColumnasTiempo {
  bool conta = true;  ///< "Conta": la fila, desde 1
  bool hora = true;   ///< "hora": del día, 1 a 24
  bool dia = true;    ///< "día": del mes
  bool mes = true;    ///< "mes": 1 a 12
};

/// Tabla de un periodo, una fila por hora y una columna por serie con su texto de cabecera. Con más
/// de 25 series, o un periodo que no existe, da el aviso.
ConAviso<Tabla> TablaNumerica(std::span<const SerieMostrada> series, const PeriodoSerie& periodo,
                              const ColumnasTiempo& columnas = {});

/// Una serie contra otra en un periodo: los valores de `x` en el eje horizontal y los de `y` en su
/// única serie, hora a hora. Un periodo que no existe da su aviso.
ConAviso<Grafico> GraficoXY(const SerieMostrada& x, const SerieMostrada& y,
                            const PeriodoSerie& periodo);

inline constexpr std::size_t kSeriesPorEje = 5;
/// Lo que se elige en un eje para no poner una serie.
inline constexpr std::string_view kNinguno = "Ninguno";

/// Códigos elegidos para el gráfico de dos ejes; "Ninguno" o vacío es que no hay.
struct SeleccionEjes {
  std::array<std::string, kSeriesPorEje> izquierda, derecha;  ///< `CBIzq1`..., `CBDer1`...
};

/// Gráfico de dos ejes: comparten las horas del horizontal.
struct GraficoDosEjes {
  Grafico izquierda, derecha;  ///< el que no tiene series lleva las horas y ninguna línea
  /// Por eje, el de que hay series con otra unidad, que no se dibujan; y los códigos que no
  /// existen.
  std::vector<Mensaje> avisos;
};

/// El gráfico de dos ejes de un periodo. La primera serie de cada eje fija su unidad.
/// \param caso ya calculado
ConAviso<GraficoDosEjes> GraficoMas(const Edificio& edificio, const calculo& caso,
                                    const SeleccionEjes& seleccion, const PeriodoSerie& periodo);

}  // namespace novex
